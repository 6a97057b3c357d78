# Writes Tcl scripts into a C++ source, so that the program needs no script files beside it. A record has the name
# of the file and its text.
# cmake -DOUTPUT=FILE -DHEADER=HEADER -DTYPE=RECORD -DFUNCTION=NAME -DSCRIPTS=SCRIPT|SCRIPT... -P EmbedScripts.cmake

string(REPLACE "|" ";" SCRIPTS "${SCRIPTS}")
set(source "#include \"${HEADER}\"\n\nconst std::vector<${TYPE}>& ${FUNCTION}() {\n")
string(APPEND source "    static const std::vector<${TYPE}> scripts = {\n")
foreach(script IN LISTS SCRIPTS)
    get_filename_component(name "${script}" NAME)
    file(READ "${script}" text)
    string(APPEND source "{\"${name}\", R\"script(${text})script\"},\n")
endforeach()
string(APPEND source "    };\n    return scripts;\n}\n")
file(WRITE "${OUTPUT}" "${source}")
