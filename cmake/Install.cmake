# How what is built becomes what is installed. A prefix may be moved: nothing in it names a place outside.
# Components: library, host, development, program, tclpackage, documentation, debug.

# Installed binaries are stripped; what a debugger wants lies in lib/debug, by build id.
install(CODE "set(CMAKE_INSTALL_DO_STRIP ON)" ALL_COMPONENTS)
set(CMAKE_EXE_LINKER_FLAGS "${CMAKE_EXE_LINKER_FLAGS} -Wl,--build-id")
set(CMAKE_SHARED_LINKER_FLAGS "${CMAKE_SHARED_LINKER_FLAGS} -Wl,--build-id")
set(CMAKE_MODULE_LINKER_FLAGS "${CMAKE_MODULE_LINKER_FLAGS} -Wl,--build-id")

add_custom_target(installed)

option(ZN_PACKAGE "Prepare Debian packages; wants the prefix /usr, and CMAKE_SKIP_INSTALL_RPATH" OFF)

# zn_install(TARGET COMPONENT KIND RPATH ?DESTINATION FOLDER?): installs a binary, and apart from it what was
# stripped off.
function(zn_install target component kind rpath)
    set(namelink)
    if(kind STREQUAL LIBRARY)
        set(namelink NAMELINK_COMPONENT development)
    endif()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${rpath}")
    if(NOT ARGN)
        install(TARGETS ${target} EXPORT znBrowserScripting ${kind} COMPONENT ${component} ${namelink})
    else()
        install(TARGETS ${target} ${kind} ${ARGN} COMPONENT ${component})
    endif()
    add_dependencies(installed ${target})
    install(CODE "
        set(ZN_BINARY \"$<TARGET_FILE:${target}>\")
        include(\"${PROJECT_SOURCE_DIR}/cmake/InstallDebug.cmake\")" COMPONENT debug)
endfunction()

# zn_shared_library(TARGET NAME): a library for others. It shows its public classes only, is bound to no Tcl, and
# stays in memory once it is loaded: Tcl keeps, with the words of scripts, what the library has made of them.
function(zn_shared_library target name)
    set(map "${PROJECT_SOURCE_DIR}/cmake/library.map")
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
        LINK_DEPENDS "${map}")
    target_link_options(${target} PRIVATE "-Wl,--version-script=${map}" -Wl,-z,nodelete)
    if(NOT (ZN_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES Clang)) # whose runtime is in the program only
        target_link_options(${target} PRIVATE -Wl,-z,defs)
    endif()
endfunction()

# zn_install_manual(FILE COMPONENT): installs a manual page in the folder of its section. In Debian pages are
# compressed, and those of section n stand in 3tcl.
function(zn_install_manual file component)
    get_filename_component(page "${file}" NAME)
    string(REGEX MATCH "[^.]$" section "${page}")
    if(ZN_PACKAGE AND section STREQUAL n)
        string(REGEX REPLACE "n$" "3tcl" page "${page}")
        set(section 3)
    endif()
    set(folder "${CMAKE_INSTALL_MANDIR}/man${section}")
    install(FILES "${file}" DESTINATION "${folder}" RENAME "${page}" COMPONENT ${component})
    if(ZN_PACKAGE)
        install(CODE "
            set(page \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}/${page}\")
            execute_process(COMMAND sed -i \"1s/ n / 3tcl /\" \"\${page}\" COMMAND_ERROR_IS_FATAL ANY)
            execute_process(COMMAND gzip -9nf \"\${page}\" COMMAND_ERROR_IS_FATAL ANY)" COMPONENT ${component})
    endif()
endfunction()

# The Tcl package that checks a host: scripts alone.
set(folder "${PROJECT_SOURCE_DIR}/packaging/hostcheck")
configure_file("${folder}/pkgIndex.tcl.in" "${PROJECT_BINARY_DIR}/hostcheck/pkgIndex.tcl" @ONLY)
install(FILES "${folder}/hostcheck.tcl" "${folder}/promises.tcl" "${PROJECT_BINARY_DIR}/hostcheck/pkgIndex.tcl"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/tcltk/znbrowser_hostcheck${PROJECT_VERSION}" COMPONENT development)
