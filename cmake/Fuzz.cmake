# The fuzzer: fuzz/. With ZN_FUZZ it is libFuzzer's; in each build its corpus is replayed by a test.

zn_find_sources(sources fuzz/*.cpp)
list(REMOVE_ITEM sources "${PROJECT_SOURCE_DIR}/fuzz/replay.cpp")
if(sources AND TARGET zn_objects AND TARGET znbrowserhost)
    if(ZN_FUZZ)
        add_executable(command_fuzz ${sources})
        target_link_options(command_fuzz PRIVATE -fsanitize=fuzzer)
    else()
        add_executable(command_fuzz ${sources} "${PROJECT_SOURCE_DIR}/fuzz/replay.cpp")
        add_test(NAME fuzz/corpus COMMAND command_fuzz "${PROJECT_SOURCE_DIR}/fuzz/corpus")
    endif()
    target_compile_definitions(command_fuzz PRIVATE ZN_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    target_include_directories(command_fuzz PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(command_fuzz PRIVATE
        zn_objects znbrowserhost zn_tcl "${ZN_TCL_STUB_LIBRARY}" sqlite3)
endif()
