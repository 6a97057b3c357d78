# Ends a server of the tests when the process that it is for is gone, however that ended: tclsh server_keeper.tcl
# DIRECTORY PROCESS.
source [file join [file dirname [info script]] server.tcl]
lassign $argv server::directory process

proc look {} {
    if {[file exists /proc/$::process] && [file exists $server::directory]} {return [after 500 look]}
    server::end
    exit
}

look
vwait forever
