# Writes the Tcl scripts into a C++ source, so that the program needs no script files beside it.
# cmake -DOUTPUT=FILE -DSCRIPTS=SCRIPT|SCRIPT... -P EmbedScripts.cmake

string(REPLACE "|" ";" SCRIPTS "${SCRIPTS}")
set(source "#include \"tk/tk_scripts.h\"\n\nnamespace znhost {\n\n")
string(APPEND source "const std::vector<TkScript>& TkScripts() {\n    static const std::vector<TkScript> scripts = {\n")
foreach(script IN LISTS SCRIPTS)
    get_filename_component(name "${script}" NAME)
    file(READ "${script}" text)
    string(APPEND source "{\"${name}\", R\"script(${text})script\"},\n")
endforeach()
string(APPEND source "    };\n    return scripts;\n}\n\n} // namespace znhost\n")
file(WRITE "${OUTPUT}" "${source}")
