# A line to a server that takes its time: tclsh slow_line.tcl PORT MILLISECONDS FILE. Prints the port to connect to, and
# keeps in FILE how many round trips there were: questions that came after the answer to the one before. It ends with
# its standard input.
lassign $argv serverPort delay file
set trips 0

proc note {} {
    set channel [open $::file w]
    puts -nonewline $channel $::trips
    close $channel
}

proc accept {client args} {
    set server [socket 127.0.0.1 $::serverPort]
    foreach channel [list $client $server] {fconfigure $channel -translation binary -blocking 0 -buffering none}
    set ::asked($client) 0
    fileevent $client readable [list ask $client $server]
    fileevent $server readable [list answer $client $server]
}

proc ask {client server} {
    set data [read $client]
    if {[eof $client]} {return [finish $client $server]}
    if {!$::asked($client)} {
        set ::asked($client) 1
        incr ::trips
        note
    }
    after $::delay [list pass $server $data]
}

proc answer {client server} {
    set data [read $server]
    if {[eof $server]} {return [finish $client $server]}
    set ::asked($client) 0
    pass $client $data
}

proc pass {channel data} {catch {puts -nonewline $channel $data}}

proc finish {args} {foreach channel $args {catch {close $channel}}}

note
puts [lindex [fconfigure [socket -server accept -myaddr 127.0.0.1 0] -sockname] 2]
flush stdout
fileevent stdin readable {if {[gets stdin] eq "" && [eof stdin]} exit}
vwait forever
