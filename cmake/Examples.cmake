# build/examples: the example scripts and their pictures, and beside them the model databases made from
# examples/models/*.sql.

find_program(ZN_SQLITE3 sqlite3 REQUIRED)

zn_find_sources(scripts examples/*.tcl examples/icons/*.png)
zn_find_sources(models examples/models/*.sql)
set(ZN_EXAMPLES_DIR "${PROJECT_BINARY_DIR}/examples")
set(prepared)

foreach(script IN LISTS scripts)
    file(RELATIVE_PATH name "${PROJECT_SOURCE_DIR}/examples" "${script}")
    add_custom_command(
        OUTPUT "${ZN_EXAMPLES_DIR}/${name}"
        COMMAND ${CMAKE_COMMAND} -E copy "${script}" "${ZN_EXAMPLES_DIR}/${name}"
        DEPENDS "${script}"
        VERBATIM)
    list(APPEND prepared "${ZN_EXAMPLES_DIR}/${name}")
endforeach()

file(MAKE_DIRECTORY "${ZN_EXAMPLES_DIR}/models")
foreach(model IN LISTS models)
    get_filename_component(name "${model}" NAME_WE)
    set(database "${ZN_EXAMPLES_DIR}/models/${name}.db")
    add_custom_command(
        OUTPUT "${database}"
        COMMAND ${CMAKE_COMMAND} -E rm -f "${database}" "${database}.part"
        COMMAND "${ZN_SQLITE3}" -batch -bail -init "${model}" "${database}.part" ""
        COMMAND ${CMAKE_COMMAND} -E rename "${database}.part" "${database}"
        DEPENDS "${model}"
        COMMENT "Building model ${name}"
        VERBATIM)
    list(APPEND prepared "${database}")
endforeach()

add_custom_target(examples ALL DEPENDS ${prepared})
