# The program: shell/.

zn_find_sources(sources shell/*.cpp)
if(sources AND TARGET znBrowserScripting AND TARGET znbrowserhost)
    # The examples of the manual become part of the program.
    zn_find_sources(word_scripts examples/words/*.tcl)
    set(word_source "${PROJECT_BINARY_DIR}/word_scripts.cpp")
    string(REPLACE ";" "|" word_script_words "${word_scripts}")
    add_custom_command(
        OUTPUT "${word_source}"
        COMMAND ${CMAKE_COMMAND} "-DOUTPUT=${word_source}" -DHEADER=word_scripts.h -DTYPE=WordScript
            -DFUNCTION=WordScripts "-DSCRIPTS=${word_script_words}"
            -P "${PROJECT_SOURCE_DIR}/cmake/EmbedScripts.cmake"
        DEPENDS ${word_scripts} "${PROJECT_SOURCE_DIR}/cmake/EmbedScripts.cmake"
        COMMENT "Embedding the examples of the manual"
        VERBATIM)
    add_executable(znbrowsersh ${sources} "${word_source}")
    target_include_directories(znbrowsersh PRIVATE "${PROJECT_SOURCE_DIR}/shell")
    target_include_directories(znbrowsersh SYSTEM PRIVATE ${EDIT_INCLUDE_DIRS}) # loaded when the prompt shows
    target_link_libraries(znbrowsersh PRIVATE zn_objects znbrowserhost zn_tcl "${ZN_TCL_STUB_LIBRARY}"
        CLI11::CLI11 ${CMAKE_DL_LIBS})
    # The loader looks up thousands of symbols of libstdc++: a third of the time that a short script would take.
    if(NOT ZN_SANITIZE AND NOT ZN_COVERAGE)
        target_link_options(znbrowsersh PRIVATE -static-libstdc++ -static-libgcc)
    endif()
    zn_install(znbrowsersh program RUNTIME "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

    # The manual page of the command comes from the tables of words.
    set(manual "${PROJECT_BINARY_DIR}/znbrowsermanager.n")
    add_custom_command(OUTPUT "${manual}" COMMAND znbrowsersh --manual > "${manual}" DEPENDS znbrowsersh
        COMMENT "Writing the manual page of the command" VERBATIM)
    add_custom_target(manual ALL DEPENDS "${manual}")
    add_dependencies(installed manual)
    zn_install_manual("${manual}" documentation)
    zn_install_manual("${PROJECT_SOURCE_DIR}/doc/znbrowsersh.1" program)
endif()
