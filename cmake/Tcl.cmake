# Tcl: what the scripting layer needs, and all that it needs.

find_package(PkgConfig REQUIRED)
pkg_check_modules(TCL REQUIRED tcl8.6)
find_library(ZN_TCL_STUB_LIBRARY tclstub8.6 REQUIRED)

# The scripting library links only the stubs, so that it loads into a host with a Tcl of its own.
add_library(zn_tcl_stubs INTERFACE)
target_compile_definitions(zn_tcl_stubs INTERFACE USE_TCL_STUBS)
target_include_directories(zn_tcl_stubs SYSTEM INTERFACE ${TCL_INCLUDE_DIRS})
target_link_libraries(zn_tcl_stubs INTERFACE "${ZN_TCL_STUB_LIBRARY}")
