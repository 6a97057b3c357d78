# The server that the tests of a run of ctest share: tclsh shared_server.tcl start|stop FILE. Its directory is written to
# FILE.
source [file join [file dirname [info script]] server.tcl]
lassign $argv what file

# Who runs this script.
proc parent {} {
    set channel [open /proc/[pid]/stat]
    try {return [lindex [lindex [split [read $channel] )] end] 1]} finally {close $channel}
}

switch $what {
    start {
        server::start {} [parent]
        set channel [open $file w]
        puts $channel $server::directory
        close $channel
    }
    stop {
        set ::env(ZN_TEST_SERVER) $file
        server::share
        set server::isOurs 1
        server::end
        file delete $file
    }
}
