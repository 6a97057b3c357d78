# How many instructions a command takes, beside a command that does nothing. Unlike times, they do not depend on what
# else the machine does, so that this is a test.
#
#     znbrowsersh instructions.tcl COMMAND_COST_PROGRAM
set limit 2.4

proc count {command times} {
    global program
    set log [exec valgrind --tool=callgrind --callgrind-out-file=/dev/null $program $command $times 2>@1]
    if {![regexp {Collected : (\d+)} $log -> instructions]} {error "no count of instructions in: $log"}
    return $instructions
}

# What the start of the program takes is in both counts.
proc instructionsOf {command} {
    expr {([count $command 6000] - [count $command 1000]) / 5000}
}

set program [lindex $argv 0]
set nothing [instructionsOf noop]
set caption [instructionsOf znbrowsermanager]
set ratio [expr {double($caption) / $nothing}]
puts [format "a command of five words: %d instructions, a no-op: %d; %.2f times, at most %.2f" \
    $caption $nothing $ratio $limit]
exit [expr {$ratio > $limit}]
