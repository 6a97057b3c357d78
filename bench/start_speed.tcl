# How long the shell takes to start, beside tclsh: znbrowsersh start_speed.tcl ?TCLSH?
# Each is started in turn, and the shortest of many times counts. Exits with 1 when a limit does not hold.

set tclsh [lindex [concat $argv tclsh] 0]
close [file tempfile empty .tcl]
set shell [info nameofexecutable]
set programs [dict create \
    "tclsh, an empty script" [list $tclsh $empty] "an empty script" [list $shell $empty] --version [list $shell --version]]
foreach turn [lrepeat 60 .] {
    dict for {what command} $programs {
        set start [clock microseconds]
        exec {*}$command
        lappend times($what) [expr {[clock microseconds] - $start}]
    }
}
file delete $empty
proc best {what} {lindex [lsort -integer $::times($what)] 0}
set failed 0
dict for {what limit} {"an empty script" 1.3 --version 1.3} {
    set ratio [expr {double([best $what]) / [best "tclsh, an empty script"]}]
    if {$ratio > $limit} {set failed 1}
    puts [format "%-20s %6.1f ms, to tclsh %5.2f, limit %.1f  %s" $what [expr {[best $what] / 1000.0}] $ratio $limit \
        [expr {$ratio > $limit ? "DOES NOT HOLD" : "holds"}]]
}
exit $failed
