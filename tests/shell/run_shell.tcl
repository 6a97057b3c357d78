# Runs the shell as a program of its own.
#   runShell INPUT ?WORD ...?  gives {exit code, standard output, standard error}
proc runShell {input args} {
    set errors [::tcltest::makeFile "" errors.txt]
    set code 0
    if {[catch {exec -ignorestderr -keepnewline [info nameofexecutable] {*}$args << $input 2> $errors} output options]} {
        lassign [dict get $options -errorcode] class pid code
        if {$class ne "CHILDSTATUS"} { set code $class }
        set output [string map {"child process exited abnormally" ""} $output]
    }
    set errorOutput [::tcltest::viewFile $errors]
    ::tcltest::removeFile errors.txt
    list $code [string trimright $output \n] $errorOutput
}
