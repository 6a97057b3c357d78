# The benchmarks: bench/*_bench.cpp, one program. They measure the library as it is shipped.

zn_find_sources(sources bench/*_bench.cpp)
if(sources AND TARGET zn_objects AND TARGET znbrowserhost)
    add_executable(znbrowserbench ${sources})
    target_include_directories(znbrowserbench PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(znbrowserbench PRIVATE
        zn_objects znbrowserhost zn_tcl "${ZN_TCL_STUB_LIBRARY}" benchmark::benchmark_main)
endif()
