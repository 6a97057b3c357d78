# Tests must not lean on each other: runs each test of tcltest files alone, in a process of its own, then each file's
# tests in the reversed order, and prints those that fail.
#   znbrowsersh tests/alone.tcl FILE ...        exits 1 when a test fails
#   znbrowsersh tests/alone.tcl -only N FILE    runs the N-th test of the file alone; N of -1 only counts them
#   znbrowsersh tests/alone.tcl -reversed FILE  runs the last test first
# Statements between tests run in any case. So reversed tests see what all of them leave behind, but for variables of
# loops, which are as they were where the test stands.
package require tcltest 2.5

set all [file join [file dirname [file normalize [info script]]] all.tcl]

# ---- One file in this process: `test` chooses or defers, the rest is as always ---------------------------------

namespace eval alone {
    variable only "" seen -1 deferred {} variables {}
}

proc alone::choose {args} {
    variable only
    variable seen
    if {[incr seen] == $only} { uplevel 1 [list ::tcltest::realTest {*}$args] }
}

proc alone::count {args} {
    variable only
    variable seen
    if {$only < 0} {
        puts "[expr {$seen + 1}] tests"
        exit
    }
    uplevel 1 [list ::tcltest::realCleanupTests {*}$args]
}

proc alone::globals {} {
    set values {}
    foreach name [info globals] {
        if {![array exists ::$name] && [info exists ::$name] && $name ni {errorInfo errorCode}} {
            dict set values $name [set ::$name]
        }
    }
    return $values
}

proc alone::defer {args} {
    variable deferred
    lappend deferred [list $args [globals]]
}

# The variables that are not the same at each test.
proc alone::varying {} {
    variable deferred
    set seen {}
    foreach entry $deferred {
        dict for {name value} [lindex $entry 1] { dict set seen $name $value 1 }
    }
    return [dict keys [dict filter $seen script {- values} { expr {[dict size $values] > 1} }]]
}

proc alone::runReversed {args} {
    variable deferred
    set varying [varying]
    set entries [lreverse $deferred]
    set deferred {} ;# cleaned up is once more, after the last file
    foreach entry $entries {
        lassign $entry words values
        foreach name $varying {
            if {[dict exists $values $name]} { set ::$name [dict get $values $name] }
        }
        uplevel #0 [list ::tcltest::realTest {*}$words]
    }
    uplevel 1 [list ::tcltest::realCleanupTests {*}$args]
}

# Runs the file with these commands for `test` and `cleanupTests`; does not return.
proc alone::runFile {file test cleanupTests} {
    rename ::tcltest::test ::tcltest::realTest
    interp alias {} ::tcltest::test {} $test
    rename ::tcltest::cleanupTests ::tcltest::realCleanupTests
    interp alias {} ::tcltest::cleanupTests {} $cleanupTests
    set ::argv [list $file]
    uplevel #0 [list source $::all]
}

switch [lindex $argv 0] {
    -only {
        set alone::only [lindex $argv 1]
        alone::runFile [lindex $argv 2] ::alone::choose ::alone::count
    }
    -reversed { alone::runFile [lindex $argv 1] ::alone::defer ::alone::runReversed }
}

# ---- Each file in processes of its own -------------------------------------------------------------------------

# Runs this script on the file; gives whether it succeeded, and its output.
proc alone::run {file args} {
    set tk [expr {[file tail [file dirname $file]] eq "tk" ? "--tk" : ""}]
    set failed [catch {exec -ignorestderr [info nameofexecutable] {*}$tk [info script] {*}$args $file 2>@1} output]
    return [list [expr {!$failed}] $output]
}

proc alone::tryFile {file} {
    lassign [run $file -only -1] passed output
    if {!$passed || ![regexp -line {^(\d+) tests$} $output - count]} { error "cannot count the tests of $file:\n$output" }
    set faults {}
    for {set n 0} {$n < $count} {incr n} {
        lassign [run $file -only $n] passed output
        if {!$passed && ![regexp {Skipped\s+1\M} $output]} { lappend faults "alone: $output" }
    }
    lassign [run $file -reversed] passed output
    if {!$passed} { lappend faults "reversed: $output" }
    puts "$file: $count tests, [llength $faults] faults"
    if {[llength $faults]} { puts [join $faults \n] }
    flush stdout
    return [llength $faults]
}

set faults 0
foreach file $argv { incr faults [alone::tryFile [file normalize $file]] }
exit [expr {$faults > 0}]
