# The program: shell/.

zn_find_sources(sources shell/*.cpp)
if(sources AND TARGET znBrowserScripting AND TARGET znbrowserhost)
    add_executable(znbrowsersh ${sources})
    target_include_directories(znbrowsersh PRIVATE "${PROJECT_SOURCE_DIR}/shell")
    target_link_libraries(znbrowsersh PRIVATE
        znbrowserhost znBrowserScripting zn_tcl CLI11::CLI11 PkgConfig::EDIT)
    zn_install(znbrowsersh program RUNTIME "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
endif()
