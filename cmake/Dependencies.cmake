# The libraries of all that comes with the scripting layer, from Debian packages. `./dev build` installs the ones that
# are missing.

find_package(CLI11 REQUIRED)
find_package(GTest REQUIRED)
find_package(benchmark REQUIRED)
if(ZN_POSTGRES)
    pkg_check_modules(PQ REQUIRED libpq)
endif()
pkg_check_modules(EDIT REQUIRED libedit)

find_library(ZN_TCL_LIBRARY tcl8.6 REQUIRED)

# Programs link Tcl itself.
add_library(zn_tcl INTERFACE)
target_include_directories(zn_tcl SYSTEM INTERFACE ${TCL_INCLUDE_DIRS})
target_link_libraries(zn_tcl INTERFACE "${ZN_TCL_LIBRARY}")
