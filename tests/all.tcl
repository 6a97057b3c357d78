# Runs one tcltest file in this process: znbrowsersh tests/all.tcl FILE ?tcltest option ...?
# Exits 1 when a test fails, when the file itself fails, and when none of its tests passes. A test fails, too, when it
# has a host call refused that does not come.
package require tcltest 2.5

set file [file normalize [lindex $argv 0]]
::tcltest::configure -testdir [file dirname $file] -file [file tail $file] -singleproc 1 \
    -tmpdir [file join [pwd] Testing scratch [string map {/ -} $file]] \
    -verbose {body error start} {*}[lrange $argv 1 end]
::tcltest::testConstraint interactive 1 ;# or tcltest exits by itself, with 0, once Tk is loaded

rename ::tcltest::test ::tcltest::testBody
proc ::tcltest::test {name args} {
    uplevel 1 [list ::tcltest::testBody $name {*}$args]
    if {![catch {znbrowsermanager app refuse} waiting] && [llength $waiting]} {
        puts "==== $name FAILED\n---- never called, though refused: $waiting"
        incr ::unused
    }
}
set unused 0

proc ::tcltest::cleanupTestsHook {} {
    set ::passed $::tcltest::numTests(Passed)
    if {[info procs ::server::end] ne ""} {::server::end}
}
set failed [expr {[::tcltest::runAllTests] || $unused}]
if {!$failed && $passed == 0} {
    puts stderr "no test passed in $file"
    set failed 1
}
exit $failed
