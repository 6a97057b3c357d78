# What the tests of the view family share.
package require tcltest
namespace import ::tcltest::*

interp alias {} zn {} znbrowsermanager

# The message of a command that fails.
proc fault args {
    set answer [zn {*}$args]
    if {[regexp {^\[Command\] [^\n]*\n\t\[Error\] (.*)$} $answer -> message]} {
        return $message
    }
    return "no error: $answer"
}

# The first line of an answer, without the indentation of usage texts.
proc firstLine args {
    return [string trim [lindex [split [zn {*}$args] \n] 0]]
}

# One test per row of the table: words, and the message of the failure.
proc testFaults {name table args} {
    foreach {words message} $table {
        test "$name-[incr number]" "\"$words\" fails: $message" {*}$args \
            -body "fault $words" -result $message
    }
}

# One test per row of the table: words, and the first line of the usage text they answer.
proc testUsages {name table args} {
    foreach {words line} $table {
        test "$name-[incr number]" "\"$words\" answers its usage text" {*}$args \
            -body "firstLine $words" -result $line
    }
}

# Leaves no view, and so no current object of any view.
proc deleteViews {} {
    foreach name [zn view names] {
        zn view current $name
        zn view delete
    }
}

# Runs a script with the host calls recorded; gives those whose names match.
proc journalOf {pattern script} {
    zn app journal clear
    zn app journal on
    uplevel 1 $script
    zn app journal off
    return [lsearch -all -inline -index 0 [zn app journal] $pattern]
}
