# Runs one tcltest file in this process: znbrowsersh tests/all.tcl FILE ?tcltest option ...?
# Exits 1 when a test fails, when the file itself fails, and when none of its tests passes.
package require tcltest 2.5

set file [file normalize [lindex $argv 0]]
::tcltest::configure -testdir [file dirname $file] -file [file tail $file] -singleproc 1 \
    -tmpdir [file join [pwd] Testing scratch [string map {/ -} $file]] \
    -verbose {body error start} {*}[lrange $argv 1 end]
::tcltest::testConstraint interactive 1 ;# or tcltest exits by itself, with 0, once Tk is loaded

proc ::tcltest::cleanupTestsHook {} {
    set ::passed $::tcltest::numTests(Passed)
}
set failed [::tcltest::runAllTests]
if {!$failed && $passed == 0} {
    puts stderr "no test passed in $file"
    set failed 1
}
exit $failed
