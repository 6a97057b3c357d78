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

    # The operations that can be seen and refused are those that the headers of the interfaces declare.
    zn_find_sources(host_headers include/host/*.h)
    set(generated "${PROJECT_BINARY_DIR}/generated")
    set(operation_names "${generated}/base/operation_names.h")
    string(REPLACE ";" "|" header_words "${host_headers}")
    add_custom_command(
        OUTPUT "${operation_names}"
        COMMAND ${CMAKE_COMMAND} "-DOUTPUT=${operation_names}" "-DHEADERS=${header_words}"
            -P "${PROJECT_SOURCE_DIR}/cmake/OperationNames.cmake"
        DEPENDS ${host_headers} "${PROJECT_SOURCE_DIR}/cmake/OperationNames.cmake"
        COMMENT "Listing the operations of the host interfaces"
        VERBATIM)

    add_library(znbrowserhost STATIC ${sources} "${tk_source}" "${operation_names}")
    target_include_directories(znbrowserhost PUBLIC "${PROJECT_SOURCE_DIR}/host" "${generated}")
    target_compile_features(znbrowserhost PUBLIC cxx_std_20) # names are checked by consteval functions
    target_link_libraries(znbrowserhost PUBLIC zn_headers zn_tcl PRIVATE sqlite3)
endif()
