# The libraries, all from Debian packages. `./dev build` installs the ones that are missing.

find_package(PkgConfig REQUIRED)
find_package(CLI11 REQUIRED)
find_package(GTest REQUIRED)
find_package(benchmark REQUIRED)
pkg_check_modules(EDIT REQUIRED IMPORTED_TARGET libedit)
pkg_check_modules(TCL REQUIRED tcl8.6)

find_library(ZN_TCL_LIBRARY tcl8.6 REQUIRED)
find_library(ZN_TCL_STUB_LIBRARY tclstub8.6 REQUIRED)

# Programs link Tcl itself.
add_library(zn_tcl INTERFACE)
target_include_directories(zn_tcl SYSTEM INTERFACE ${TCL_INCLUDE_DIRS})
target_link_libraries(zn_tcl INTERFACE "${ZN_TCL_LIBRARY}")

# The scripting library links only the stubs, so that it loads into a host with a Tcl of its own.
add_library(zn_tcl_stubs INTERFACE)
target_compile_definitions(zn_tcl_stubs INTERFACE USE_TCL_STUBS)
target_include_directories(zn_tcl_stubs SYSTEM INTERFACE ${TCL_INCLUDE_DIRS})
target_link_libraries(zn_tcl_stubs INTERFACE "${ZN_TCL_STUB_LIBRARY}")
