# What is installed, used as others use it, from a prefix that was moved: tests/install.

if(TARGET zn_host_library AND NOT ZN_SANITIZE AND NOT ZN_COVERAGE)
    set(folder "${PROJECT_SOURCE_DIR}/tests/install")
    set(scratch "${PROJECT_BINARY_DIR}/Testing/install")
    set(tcltest "${PROJECT_SOURCE_DIR}/tests/all.tcl")
    set(run "${folder}/run.sh")
    set(places "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}" "${scratch}")
    find_program(ZN_TCLSH tclsh8.6 REQUIRED)
    find_program(ZN_WISH wish8.6 REQUIRED)

    add_test(NAME install/prefix COMMAND "${run}" prefix ${places})
    foreach(kind cmake pkg-config plain example)
        add_test(NAME install/${kind} COMMAND "${run}" ${kind} ${places})
    endforeach()
    add_test(NAME install/tclsh COMMAND "${ZN_TCLSH}" "${tcltest}" "${folder}/package.test")
    add_test(NAME install/wish COMMAND "${PROJECT_SOURCE_DIR}/tests/tk/on_display.sh"
        "${ZN_WISH}" "${tcltest}" "${folder}/window_package.test")

    if(CMAKE_BUILD_TYPE MATCHES "^Rel" AND CMAKE_CXX_COMPILER_ID STREQUAL GNU) # others inline less, or other things
        add_test(NAME install/symbols
            COMMAND "${PROJECT_SOURCE_DIR}/packaging/symbols.sh" compare "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
    endif()

    set_tests_properties(install/prefix PROPERTIES FIXTURES_SETUP installed)
    set_tests_properties(install/cmake install/pkg-config install/plain install/example
        install/tclsh install/wish PROPERTIES
        FIXTURES_REQUIRED installed
        ENVIRONMENT "ZN_PREFIX=${scratch}/moved away"
        TIMEOUT 120)
endif()
