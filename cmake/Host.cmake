# The embedded host: host/. A client of include/ only; who links it adds the scripting layer.

zn_find_sources(sources host/*.cpp)
if(sources)
    # The scripts of the windows become part of the library.
    zn_find_sources(tk_scripts host/tk/*.tcl)
    set(tk_source "${PROJECT_BINARY_DIR}/tk_scripts.cpp")
    string(REPLACE ";" "|" tk_script_words "${tk_scripts}")
    add_custom_command(
        OUTPUT "${tk_source}"
        COMMAND ${CMAKE_COMMAND} "-DOUTPUT=${tk_source}" "-DSCRIPTS=${tk_script_words}"
            -P "${PROJECT_SOURCE_DIR}/cmake/EmbedScripts.cmake"
        DEPENDS ${tk_scripts} "${PROJECT_SOURCE_DIR}/cmake/EmbedScripts.cmake"
        COMMENT "Embedding the scripts of the windows"
        VERBATIM)

    add_library(znbrowserhost STATIC ${sources} "${tk_source}")
    target_include_directories(znbrowserhost PUBLIC "${PROJECT_SOURCE_DIR}/host")
    target_link_libraries(znbrowserhost PUBLIC zn_headers zn_tcl PRIVATE sqlite3)
endif()
