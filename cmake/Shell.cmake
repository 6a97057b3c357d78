# The program: shell/.

zn_find_sources(sources shell/*.cpp)
if(sources AND TARGET znBrowserScripting AND TARGET znbrowserhost)
    add_executable(znbrowsersh ${sources})
    target_include_directories(znbrowsersh PRIVATE "${PROJECT_SOURCE_DIR}/shell")
    target_link_libraries(znbrowsersh PRIVATE
        znbrowserhost znBrowserScripting zn_tcl CLI11::CLI11 PkgConfig::EDIT)
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
