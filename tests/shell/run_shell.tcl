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

# A statement that never ends, in the middle of its first step.
set endless {with recursive n(i) as (select 1 union all select i + 1 from n) select count(*) from n}

# Starts a script in a shell of its own and sends it SIGINT as soon as it prints a line; then gives the rest of its
# output, standard error too, its exit code, and whether it ended at once.
proc interruptShell {script args} {
    set file [::tcltest::makeFile $script interrupted.tcl]
    set pipe [open |[list [info nameofexecutable] {*}$args $file 2>@1]]
    gets $pipe
    exec kill -INT [pid $pipe]
    set sent [clock milliseconds]
    set output [read $pipe]
    set took [expr {[clock milliseconds] - $sent}]
    set code [expr {[catch {close $pipe} message options] ? [lindex [dict get $options -errorcode] 2] : 0}]
    ::tcltest::removeFile interrupted.tcl
    list $output $code [expr {$took < 1000 ? "at once" : "after $took ms"}]
}
