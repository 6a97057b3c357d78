# Run at installation: puts what a debugger wants of ZN_BINARY where debuggers look, by build id.

execute_process(COMMAND readelf --notes "${ZN_BINARY}" OUTPUT_VARIABLE notes COMMAND_ERROR_IS_FATAL ANY)
if(NOT notes MATCHES "Build ID: (..)([0-9a-f]+)")
    message(FATAL_ERROR "${ZN_BINARY} has no build id")
endif()
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/lib/debug/.build-id/${CMAKE_MATCH_1}")
set(file "${folder}/${CMAKE_MATCH_2}.debug")
message(STATUS "Installing: ${file}")
file(MAKE_DIRECTORY "${folder}")
execute_process(COMMAND objcopy --only-keep-debug "${ZN_BINARY}" "${file}" COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD "${file}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
