# The embedded host: host/. A client of include/ only; who links it adds the scripting layer.

zn_find_sources(sources host/*.cpp)
set(zn_host_face "${PROJECT_SOURCE_DIR}/host/tk/browser_host.cpp")
list(REMOVE_ITEM sources "${zn_host_face}")
if(NOT ZN_POSTGRES)
    list(FILTER sources EXCLUDE REGEX "/host/store/postgres/")
endif()
if(sources)
    # The scripts of the windows become part of the library.
    zn_find_sources(tk_scripts host/tk/*.tcl)
    set(tk_source "${PROJECT_BINARY_DIR}/tk_scripts.cpp")
    string(REPLACE ";" "|" tk_script_words "${tk_scripts}")
    add_custom_command(
        OUTPUT "${tk_source}"
        COMMAND ${CMAKE_COMMAND} "-DOUTPUT=${tk_source}" -DHEADER=tk/tk_scripts.h -DTYPE=znhost::TkScript
            -DFUNCTION=znhost::TkScripts "-DSCRIPTS=${tk_script_words}"
            -P "${PROJECT_SOURCE_DIR}/cmake/EmbedScripts.cmake"
        DEPENDS ${tk_scripts} "${PROJECT_SOURCE_DIR}/cmake/EmbedScripts.cmake"
        COMMENT "Embedding the scripts of the windows"
        VERBATIM)

    # The operations that can be seen and refused are those that the headers of the interfaces declare.
    zn_find_sources(host_headers include/host/*.h)
    set(generated "${PROJECT_BINARY_DIR}/generated")
    set(operation_names "${generated}/base/operation_names.h")
    string(REPLACE ";" "|" header_words "${host_headers}")
    add_custom_command(
        OUTPUT "${operation_names}"
        COMMAND ${CMAKE_COMMAND} "-DOUTPUT=${operation_names}" "-DHEADERS=${header_words}"
            -P "${PROJECT_SOURCE_DIR}/cmake/OperationNames.cmake"
        DEPENDS ${host_headers} "${PROJECT_SOURCE_DIR}/cmake/OperationNames.cmake"
        COMMENT "Listing the operations of the host interfaces"
        VERBATIM)

    add_library(znbrowserhost STATIC ${sources} "${tk_source}" "${operation_names}")
    # It calls Tcl through the stubs, which the program or the application fills: the same objects serve both.
    set_target_properties(znbrowserhost PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_include_directories(znbrowserhost PUBLIC "${PROJECT_SOURCE_DIR}/host" "${generated}")
    target_compile_features(znbrowserhost PUBLIC cxx_std_20) # names are checked by consteval functions
    target_link_libraries(znbrowserhost PUBLIC zn_headers PRIVATE zn_tcl_stubs sqlite3)
    if(ZN_POSTGRES)
        target_compile_definitions(znbrowserhost PRIVATE ZN_POSTGRES)
        target_include_directories(znbrowserhost SYSTEM PRIVATE ${PQ_INCLUDE_DIRS})
        target_link_libraries(znbrowserhost PRIVATE ${CMAKE_DL_LIBS}) # libpq is loaded when it is needed
    endif()

    # The same for others: one public class.
    add_library(zn_host_library SHARED "${zn_host_face}")
    set_target_properties(zn_host_library PROPERTIES EXPORT_NAME host CXX_VISIBILITY_PRESET hidden)
    zn_shared_library(zn_host_library znBrowserHost)
    target_link_libraries(zn_host_library PRIVATE znbrowserhost PUBLIC znBrowserScripting PRIVATE zn_tcl_stubs)
    zn_install(zn_host_library host LIBRARY "$ORIGIN")
    install(FILES include/znBrowserHost.h DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/znBrowserScripting"
        COMPONENT development)

    # The Tcl package lies where the Tcl of a Debian system looks.
    set(ZN_TCL_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/tcltk/znbrowser${PROJECT_VERSION}")
    if(CMAKE_LIBRARY_ARCHITECTURE AND CMAKE_INSTALL_LIBDIR MATCHES "/${CMAKE_LIBRARY_ARCHITECTURE}$")
        set(ZN_TCL_PACKAGE_DIR "lib/tcltk/${CMAKE_LIBRARY_ARCHITECTURE}/znbrowser${PROJECT_VERSION}")
    endif()
    add_library(zn_tcl_package MODULE "${PROJECT_SOURCE_DIR}/packaging/tcl_package.cpp")
    set_target_properties(zn_tcl_package PROPERTIES OUTPUT_NAME znbrowser CXX_VISIBILITY_PRESET hidden)
    target_link_libraries(zn_tcl_package PRIVATE zn_host_library zn_tcl_stubs)
    zn_install(zn_tcl_package tclpackage LIBRARY "$ORIGIN/../.." DESTINATION "${ZN_TCL_PACKAGE_DIR}")
    configure_file("${PROJECT_SOURCE_DIR}/packaging/pkgIndex.tcl.in" "${PROJECT_BINARY_DIR}/lib/pkgIndex.tcl" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/lib/pkgIndex.tcl" DESTINATION "${ZN_TCL_PACKAGE_DIR}"
        COMPONENT tclpackage)
endif()
