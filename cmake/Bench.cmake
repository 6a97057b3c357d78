# The benchmarks: bench/*_bench.cpp, one program. They measure the library as it is shipped.

zn_find_sources(sources bench/*_bench.cpp)
if(sources AND TARGET zn_objects AND EXISTS "${PROJECT_SOURCE_DIR}/host/model/embedded_host.cpp")
    add_executable(znbrowserbench ${sources})
    target_include_directories(znbrowserbench PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(znbrowserbench PRIVATE
        zn_objects $<TARGET_NAME_IF_EXISTS:znbrowserhost> zn_tcl "${ZN_TCL_STUB_LIBRARY}" benchmark::benchmark_main)
endif()
