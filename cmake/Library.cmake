# The scripting layer: include/ and src/.

add_library(zn_headers INTERFACE)
target_include_directories(zn_headers INTERFACE
    "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR};${CMAKE_INSTALL_INCLUDEDIR}/znBrowserScripting>")
install(TARGETS zn_headers EXPORT znBrowserScripting)

zn_find_sources(sources src/*.cpp)
if(sources)
    # The objects are compiled once and linked several times: into the library, which hides everything but the
    # public classes, into the program, which starts faster so, and into the unit tests, which also reach what is
    # hidden.
    add_library(zn_objects OBJECT ${sources})
    set_target_properties(zn_objects PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    # Nobody interposes the library's own functions: calls within it are direct.
    target_compile_options(zn_objects PRIVATE -fno-semantic-interposition)
    target_include_directories(zn_objects PRIVATE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(zn_objects PUBLIC zn_headers PRIVATE zn_tcl_stubs)
    # A command passes through many small functions of several files: the linker joins them.
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_BUILD_TYPE MATCHES Rel)
        target_compile_options(zn_objects PRIVATE -flto=auto)
        target_link_options(zn_objects INTERFACE -flto=auto "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
    endif()

    add_library(znBrowserScripting SHARED)
    target_link_options(znBrowserScripting PRIVATE -Wl,-Bsymbolic-functions)
    zn_shared_library(znBrowserScripting znBrowserScripting)
    target_link_libraries(znBrowserScripting PUBLIC zn_headers PRIVATE zn_objects zn_tcl_stubs)
    zn_install(znBrowserScripting library LIBRARY "$ORIGIN")

    # What the headers of the host need stands with that.
    install(DIRECTORY include/ DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/znBrowserScripting" COMPONENT development
        PATTERN znBrowserHost.h EXCLUDE)
endif()
