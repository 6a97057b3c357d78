# A PostgreSQL server of the tests' own: in a temporary directory, on a Unix socket, ended at the end. One serves all
# tests of a run of ctest (`shared_server.tcl`), with a database for each; who ends it, or reads its log, has another.
package require Tcl 8.6

namespace eval server {
    variable directory ""
    variable count 0
    variable isOurs 1
    variable library "" ;# that its processes load before any other: full_disk.so
    variable harness [file dirname [file normalize [info script]]]
}

# The folder of the server's programs, "" when it is not installed.
proc server::programs {} {
    set found [lsort -dictionary [glob -nocomplain /usr/lib/postgresql/*/bin/initdb]]
    if {![llength $found]} {return ""}
    return [file dirname [lindex $found end]]
}

# Runs one of the server's programs: as another user where the tests are root's, which it refuses.
proc server::run {program args} {
    variable directory
    set as {}
    if {[exec id -u] == 0} {set as {setpriv --reuid=postgres --regid=postgres --clear-groups}}
    set loaded [glob -nocomplain -directory $directory *.so]
    exec -ignorestderr {*}$as env LC_ALL=C.UTF-8 LD_PRELOAD=$loaded ZN_FULL_DISK=[file join $directory full] \
        [file join [programs] $program] {*}$args > [file join $directory log] 2>@1
}

# Starts the server, which ends with the process. `settings` are more of its options.
proc server::start {{settings {}} {process {}}} {
    variable directory
    variable harness
    variable library
    if {$process eq ""} {set process [pid]}
    if {[programs] eq ""} {error "PostgreSQL is not installed: apt-get install postgresql"}
    set directory [exec mktemp -d /tmp/znserver.XXXXXX]
    if {[exec id -u] == 0} {exec chown postgres $directory}
    if {$library ne ""} {file copy $library $directory} ;# its user may not see the folder of the tests
    exec tclsh8.6 [file join $harness server_keeper.tcl] $directory $process < /dev/null >& /dev/null &
    run initdb -D [file join $directory data] -U tester -A trust -E UTF8 --no-sync --no-instructions
    launch $settings
}

# Uses the server of the run: its directory stands in the file that ZN_TEST_SERVER names. Without one, starts it.
proc server::share {} {
    variable directory
    variable isOurs
    if {![info exists ::env(ZN_TEST_SERVER)] || ![file exists $::env(ZN_TEST_SERVER)]} {return [start]}
    set channel [open $::env(ZN_TEST_SERVER)]
    try {set directory [gets $channel]} finally {close $channel}
    set isOurs 0
}

proc server::launch {{settings {}}} {
    variable directory
    set options "-k $directory -c listen_addresses= -c fsync=off -c max_connections=300"
    foreach {name value} $settings {append options " -c $name=$value"}
    run pg_ctl start -w -D [file join $directory data] -o $options -l [file join $directory server.log]
}

proc server::stop {{how immediate}} {
    variable directory
    run pg_ctl stop -w -m $how -D [file join $directory data]
}

proc server::end {} {
    variable directory
    variable isOurs
    if {$directory eq ""} return
    if {$isOurs} {
        catch {stop}
        exec rm -rf $directory ;# many files: Tcl takes long
    }
    set directory ""
}

# From now on the disk is full in this folder of its data, "" in none: for a server that has loaded full_disk.so.
proc server::fill {folder} {
    variable directory
    file delete [file join $directory full]
    if {$folder ne ""} {file link -symbolic [file join $directory full] [file join $directory data $folder]}
}

# The name of one of its databases for a data control.
proc server::url {database {user tester}} {
    variable directory
    return postgresql://$user@/$database?host=$directory
}

# What psql answers: by another connection than those of the data controls.
proc server::ask {database sql {user tester}} {
    variable directory
    exec psql -X -q -A -t -v ON_ERROR_STOP=1 -h $directory -U $user -d $database -c $sql
}

# A new empty database.
proc server::database {} {
    variable count
    variable isOurs
    set name test[expr {$isOurs ? "" : "[pid]_"}][incr count]
    ask postgres "CREATE DATABASE $name"
    return $name
}

# The rows of a data source of the current data control, as a window shows them: each with the values of these columns,
# whose types follow their names.
proc shown {source args} {
    foreach {family names} [list window [zn window names] view [zn view names]] {
        foreach name $names {
            zn $family current $name
            zn $family delete
        }
    }
    zn view create V false
    zn view datactrl connect
    zn view folder current V
    zn view list create $source
    foreach {column type} $args {
        zn view property create $column
        zn view property type $type
        zn view property connect $source $column
        zn view column create $column
    }
    zn window create W
    zn window expandall
    lmap row [zn app rows W] {
        if {[dict get $row kind] ne "item"} continue
        join [list [dict get $row text] {*}[lmap {column type} $args {dict get $row cells $column}]] /
    }
}
