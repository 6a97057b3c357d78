# The documentation as it is installed, and, with ZN_PACKAGE, the Debian packages: one for each component.

set(docs share/doc/znBrowserScripting)
install(FILES README.md CHANGELOG.md DESTINATION "${docs}" COMPONENT documentation)
install(DIRECTORY doc examples DESTINATION "${docs}" COMPONENT documentation)
if(TARGET examples) # with their models, which are built
    install(DIRECTORY "${ZN_EXAMPLES_DIR}/models" DESTINATION "${docs}/examples" COMPONENT documentation)
    add_dependencies(installed examples)
endif()

if(NOT ZN_PACKAGE)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME znbrowserscripting)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "znBrowserScripting maintainers <maintainers@example.org>" CACHE STRING
    "Who answers for the packages")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

string(TIMESTAMP ZN_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC) # SOURCE_DATE_EPOCH, where it is set
configure_file("${PROJECT_SOURCE_DIR}/packaging/changelog.in" "${PROJECT_BINARY_DIR}/changelog.Debian" @ONLY)
execute_process(COMMAND gzip -9nf "${PROJECT_BINARY_DIR}/changelog.Debian" COMMAND_ERROR_IS_FATAL ANY)

# zn_package(COMPONENT PACKAGE SECTION SUMMARY DESCRIPTION ?KEYWORD VALUE ...?): the package of a component; the
# keywords are those of the control file.
function(zn_package component package section summary description)
    string(TOUPPER "${component}" upper)
    set(prefix "CPACK_DEBIAN_${upper}")
    set(${prefix}_PACKAGE_NAME "${package}" PARENT_SCOPE)
    set(${prefix}_PACKAGE_SECTION "${section}" PARENT_SCOPE)
    set(${prefix}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
    while(ARGN)
        list(POP_FRONT ARGN keyword value)
        set(${prefix}_PACKAGE_${keyword} "${value}" PARENT_SCOPE)
    endwhile()
    install(FILES "${PROJECT_SOURCE_DIR}/packaging/copyright" "${PROJECT_BINARY_DIR}/changelog.Debian.gz"
        DESTINATION "share/doc/${package}" COMPONENT ${component})
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_COMPONENTS_ALL "${CPACK_COMPONENTS_ALL}" PARENT_SCOPE)
endfunction()

# zn_package_library(COMPONENT PACKAGE LIBRARY): tells others that link the library which package it is in, and has
# the linker's cache made anew.
function(zn_package_library component package library)
    string(TOUPPER "${component}" upper)
    file(WRITE "${PROJECT_BINARY_DIR}/${component}/shlibs"
        "${library} ${abi} ${package} (>= ${PROJECT_VERSION})\n")
    file(WRITE "${PROJECT_BINARY_DIR}/${component}/triggers" "activate-noawait ldconfig\n")
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
        "${PROJECT_BINARY_DIR}/${component}/shlibs;${PROJECT_BINARY_DIR}/${component}/triggers" PARENT_SCOPE)
endfunction()

set(abi "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
set(version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(layer "libznbrowserscripting${abi} (= ${version})")
set(host "libznbrowserhost${abi} (= ${version})")
set(windows "tk8.6, tktreectrl")
set(servers "libpq5 (>= 14)")
set(about "A model browser shows the objects of an application as trees and lists.
Scripts build and drive it with one Tcl command, znbrowsermanager.
.
")

zn_package(library libznbrowserscripting${abi} libs "scripting layer of a model browser"
    "${about}The layer reaches the model through interfaces that the application implements.")
zn_package(host libznbrowserhost${abi} libs "model browser on SQLite databases"
    "${about}This library brings the model along: any SQLite database."
    DEPENDS "${layer}" RECOMMENDS "${windows}, ${servers}")
zn_package_library(library libznbrowserscripting${abi} libznBrowserScripting)
zn_package_library(host libznbrowserhost${abi} libznBrowserHost)
zn_package(development libznbrowserscripting-dev libdevel "scripting layer of a model browser (development)"
    "${about}The headers, and what CMake and pkg-config find the libraries by."
    DEPENDS "${layer}, ${host}" RECOMMENDS tcl8.6-dev)
zn_package(program znbrowsersh interpreters "Tcl shell with a model browser on SQLite databases"
    "${about}The shell runs such scripts, and opens a window on any SQLite database."
    DEPENDS "libedit2" RECOMMENDS "${windows}, ${servers}")
zn_package(tclpackage tcl-znbrowser interpreters "model browser on SQLite databases (Tcl package)"
    "${about}With this package any Tcl 8.6 has the command, and any Tk 8.6 its windows."
    DEPENDS "${host}, tcl8.6" RECOMMENDS "${windows}")
zn_package(documentation znbrowserscripting-doc doc "model browser for applications (documentation)"
    "${about}The reference of all words, and examples."
    ARCHITECTURE all)
zn_package(debug znbrowserscripting-dbg debug "model browser for applications (debug information)"
    "${about}What a debugger wants of the libraries and of the shell."
    DEPENDS "${layer}, ${host}")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEBUG_PACKAGE_SHLIBDEPS OFF)
include(CPack)
