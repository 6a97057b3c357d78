# The benchmarks: bench/*_bench.cpp, one program. They measure the library as it is shipped. The instructions that a
# command takes are counted by a test.

set(zn_bench_libraries zn_objects znbrowserhost zn_tcl "${ZN_TCL_STUB_LIBRARY}" benchmark::benchmark)

zn_find_sources(sources bench/*_bench.cpp)
if(NOT ZN_POSTGRES)
    list(FILTER sources EXCLUDE REGEX "/server_bench[.]cpp$")
endif()
set_source_files_properties("${PROJECT_SOURCE_DIR}/bench/server_bench.cpp" PROPERTIES
    COMPILE_DEFINITIONS "ZN_HARNESS=\"${PROJECT_SOURCE_DIR}/tests/harness\"")
if(sources AND TARGET zn_objects AND TARGET znbrowserhost)
    add_executable(znbrowserbench ${sources})
    target_include_directories(znbrowserbench PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(znbrowserbench PRIVATE ${zn_bench_libraries} benchmark::benchmark_main)
endif()

# A sanitizer or coverage would count its own instructions, and what is not optimised is not what is shipped.
find_program(ZN_VALGRIND valgrind)
if(TARGET znbrowserbench AND ZN_VALGRIND AND CMAKE_BUILD_TYPE MATCHES "^Rel" AND NOT ZN_SANITIZE
   AND NOT ZN_COVERAGE)
    add_executable(command_cost "${PROJECT_SOURCE_DIR}/bench/command_cost.cpp")
    target_include_directories(command_cost PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(command_cost PRIVATE ${zn_bench_libraries})
    add_test(NAME bench/instructions
        COMMAND znbrowsersh "${PROJECT_SOURCE_DIR}/bench/instructions.tcl" $<TARGET_FILE:command_cost>)
endif()
