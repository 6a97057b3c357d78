# The embedded host: host/. A client of include/ only; who links it adds the scripting layer.

zn_find_sources(sources host/*.cpp)
if(sources)
    add_library(znbrowserhost STATIC ${sources})
    target_include_directories(znbrowserhost PUBLIC "${PROJECT_SOURCE_DIR}/host")
    target_link_libraries(znbrowserhost PUBLIC zn_headers zn_tcl PRIVATE SQLiteCpp sqlite3)
endif()
