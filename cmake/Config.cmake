# What other projects find the libraries by: a CMake package, and files for pkg-config.

include(CMakePackageConfigHelpers)
set(config "${CMAKE_INSTALL_LIBDIR}/cmake/znBrowserScripting")
set(written "${PROJECT_BINARY_DIR}/config")
install(EXPORT znBrowserScripting FILE znBrowserScriptingTargets.cmake NAMESPACE znBrowserScripting::
    DESTINATION "${config}" COMPONENT development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/packaging/znBrowserScriptingConfig.cmake.in"
    "${written}/znBrowserScriptingConfig.cmake" INSTALL_DESTINATION "${config}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${written}/znBrowserScriptingConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${written}/znBrowserScriptingConfig.cmake" "${written}/znBrowserScriptingConfigVersion.cmake"
    DESTINATION "${config}" COMPONENT development)

set(names znBrowserScripting)
if(TARGET zn_host_library)
    list(APPEND names znBrowserHost)
endif()
file(RELATIVE_PATH ZN_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" ZN_PC_PREFIX "${ZN_PC_PREFIX}")
foreach(name IN LISTS names)
    configure_file("${PROJECT_SOURCE_DIR}/packaging/${name}.pc.in" "${written}/${name}.pc" @ONLY)
    install(FILES "${written}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endforeach()
