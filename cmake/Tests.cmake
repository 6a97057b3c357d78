# Three kinds of tests: *_test.cpp (one GoogleTest program), *.test (a tcltest file each, run in the
# shell; those in tk/ on a display) and the examples whose output is recorded in tests/examples/NAME.out.

include(GoogleTest)

# What Tk and the display's libraries keep for good.
set(zn_tk_environment
    "LSAN_OPTIONS=print_suppressions=0:suppressions=${PROJECT_SOURCE_DIR}/tests/tk/leaks.supp")

zn_find_sources(sources tests/*_test.cpp)
if(NOT ZN_POSTGRES)
    list(FILTER sources EXCLUDE REGEX "/pg_[a-z_]*test[.]cpp$")
endif()
if(sources AND TARGET zn_objects AND TARGET znbrowserhost)
    add_executable(znbrowsertest ${sources})
    target_include_directories(znbrowsertest PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src")
    target_compile_definitions(znbrowsertest PRIVATE ZN_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    # g++ 12 takes the temporaries of brace lists in long test bodies for uninitialized
    target_compile_options(znbrowsertest PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_libraries(znbrowsertest PRIVATE
        zn_objects znbrowserhost zn_tcl "${ZN_TCL_STUB_LIBRARY}" GTest::gtest_main)
    gtest_discover_tests(znbrowsertest DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES TEST_FILTER "-*OnDisplay*")
    foreach(suite OnDisplay/AllocationSweep FaultSweepOnDisplay)
        add_test(NAME "tk/${suite}" COMMAND "${PROJECT_SOURCE_DIR}/tests/tk/on_display.sh"
            $<TARGET_FILE:znbrowsertest> "--gtest_filter=*${suite}.*")
        set_tests_properties("tk/${suite}" PROPERTIES TIMEOUT 300 ENVIRONMENT "${zn_tk_environment}")
    endforeach()
endif()

if(TARGET znbrowsersh)
    zn_find_sources(scripts tests/*.test)
    list(FILTER scripts EXCLUDE REGEX "/tests/install/") # those are for other shells
    if(NOT ZN_POSTGRES)
        list(FILTER scripts EXCLUDE REGEX "/tests/server/|_server[.]test$")
    endif()
    foreach(script IN LISTS scripts)
        file(RELATIVE_PATH name "${PROJECT_SOURCE_DIR}/tests" "${script}")
        set(shell $<TARGET_FILE:znbrowsersh>)
        if(name MATCHES "^tk/") # windows, on a display of their own
            set(shell "${PROJECT_SOURCE_DIR}/tests/tk/on_display.sh" ${shell} --tk)
        endif()
        add_test(NAME "${name}" COMMAND ${shell} "${PROJECT_SOURCE_DIR}/tests/all.tcl" "${script}")
        set_tests_properties("${name}" PROPERTIES TIMEOUT 300 ENVIRONMENT
            "${zn_tk_environment}")
    endforeach()

    if(ZN_POSTGRES)
        # A server loads it, which is not instrumented.
        add_library(full_disk MODULE tests/harness/full_disk.cpp)
        set_target_properties(full_disk PROPERTIES PREFIX "" COMPILE_OPTIONS "-Wall;-Wextra" LINK_OPTIONS "")

        # What scripts see of the data is the same on a server. One serves them all.
        set(server_file "${PROJECT_BINARY_DIR}/test-server")
        foreach(step start stop)
            add_test(NAME "server/${step}" COMMAND tclsh8.6
                "${PROJECT_SOURCE_DIR}/tests/harness/shared_server.tcl" ${step} "${server_file}")
            set_tests_properties("server/${step}" PROPERTIES TIMEOUT 900)
        endforeach()
        set_tests_properties("server/start" PROPERTIES FIXTURES_SETUP server)
        set_tests_properties("server/stop" PROPERTIES FIXTURES_CLEANUP server)
        set(on_both data/criteria data/data_ctrl data/data_operation data/data_property data/data_reference
                data/data_source_hierarchical data/data_source_simple data/dropped data/input_field
                data/view_data_source
                extremes/hostile_names extremes/hostile_values extremes/large extremes/nesting extremes/texts
                extremes/words
                hostcheck/hostcheck
                rows/changes rows/export rows/filter rows/items rows/rows rows/row_events shell/default_browser
                state/state state/state_store
                tk/collector_bar tk/default_browser tk/export tk/finding tk/looks tk/meanwhile tk/mouse_and_keys
                tk/parts tk/popup_menus tk/recording tk/windows
                view/dataitem view/folder view/helper view/list view/property view/sort view/tree
                window/collector window/popup_host window/popup_menu)
        if(ZN_SANITIZE) # windows do the same on both
            list(FILTER on_both EXCLUDE REGEX "^tk/")
        endif()
        foreach(name IN LISTS on_both)
            set(shell $<TARGET_FILE:znbrowsersh>)
            if(name MATCHES "^tk/")
                set(shell "${PROJECT_SOURCE_DIR}/tests/tk/on_display.sh" ${shell} --tk)
            endif()
            add_test(NAME "server/${name}" COMMAND ${shell}
                "${PROJECT_SOURCE_DIR}/tests/all.tcl" "${PROJECT_SOURCE_DIR}/tests/${name}.test")
            set_tests_properties("server/${name}" PROPERTIES TIMEOUT 300
                FIXTURES_REQUIRED server
                ENVIRONMENT "${zn_tk_environment};ZN_TEST_SERVER=${server_file}")
        endforeach()
    endif()

    zn_find_sources(outputs tests/examples/*.out)
    foreach(output IN LISTS outputs)
        get_filename_component(name "${output}" NAME_WE)
        add_test(NAME "examples/${name}"
            COMMAND "${PROJECT_SOURCE_DIR}/tests/examples/run_example.sh"
                $<TARGET_FILE:znbrowsersh> "${ZN_EXAMPLES_DIR}" "${name}" "${output}")
        set_tests_properties("examples/${name}" PROPERTIES TIMEOUT 300)
    endforeach()
endif()
