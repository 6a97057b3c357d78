# What the default browser remembers between its runs, in the user's configuration directory: for each database and
# table what the user has chosen, and the databases opened last. Nothing of it is needed: where it cannot be read or
# written, the browser does without.
#
# The file holds a dictionary, and is read as data. Two browsers may run: each writes what it has changed into what the
# file holds then.

namespace eval ::znbrowser::any {
    variable memory {}     ;# what the file held when it was read, with what was remembered since
    variable remembered {} ;# keys and values that are not in the file yet
    variable memoryRead 0
    variable passing {}    ;# what is remembered of databases in memory
    variable mostRecent 12
}

proc ::znbrowser::any::MemoryFile {} {
    if {[info exists ::env(XDG_CONFIG_HOME)] && [file pathtype $::env(XDG_CONFIG_HOME)] eq "absolute"} {
        set folder $::env(XDG_CONFIG_HOME)
    } elseif {[info exists ::env(HOME)]} {
        set folder [file join $::env(HOME) .config]
    } else {
        return
    }
    return [file join $folder znbrowser memory]
}

# What the file holds; nothing when there is none, or it is damaged.
proc ::znbrowser::any::ReadMemory {} {
    if {[catch {
        set channel [open [MemoryFile]]
        fconfigure $channel -encoding utf-8
        set text [read $channel]
        close $channel
        dict size $text
    }]} {
        catch {close $channel}
        return {}
    }
    return $text
}

# The file or the server of a data control, which is what its memory goes by; empty for a database in memory.
proc ::znbrowser::any::FileOf {control} {
    variable files
    if {![info exists files($control)]} {
        set files($control) [Do app datactrl file $control]
    }
    return $files($control)
}

# About a table, in the window of a browser. Of a database in memory nothing outlives the program.
proc ::znbrowser::any::Remembered {window table key} {
    variable passing
    set control [ControlOf $window]
    if {[FileOf $control] ne ""} {return [Recall [list table [FileOf $control] $table $key]]}
    if {[dict exists $passing [list $control $table $key]]} {return [dict get $passing [list $control $table $key]]}
}

proc ::znbrowser::any::Remember {window table key value} {
    variable passing
    set control [ControlOf $window]
    if {[FileOf $control] eq ""} {return [dict set passing [list $control $table $key] $value]}
    Keep [list table [FileOf $control] $table $key] $value
}

proc ::znbrowser::any::Recall {key} {
    variable memory
    variable memoryRead
    if {!$memoryRead} {
        set memory [ReadMemory]
        set memoryRead 1
    }
    if {[dict exists $memory $key]} {return [dict get $memory $key]} ;# an `expr` would take a name for a number
}

# Remembers a value; an empty one is forgotten. It is written a moment later, with what is remembered meanwhile.
proc ::znbrowser::any::Keep {key value} {
    variable memory
    variable remembered
    if {[Recall $key] eq $value} return
    dict set memory $key $value
    dict set remembered $key $value
    after cancel ::znbrowser::any::WriteMemory
    after 400 ::znbrowser::any::WriteMemory
}

# The file is replaced as a whole, so that it is never half written.
proc ::znbrowser::any::WriteMemory {} {
    variable memory
    variable remembered
    after cancel ::znbrowser::any::WriteMemory
    if {$remembered eq "" || [MemoryFile] eq ""} return
    set memory [dict filter [dict merge [ReadMemory] $remembered] script {key value} {expr {$value ne ""}}]
    set remembered {}
    catch {
        set file [MemoryFile]
        file mkdir [file dirname $file]
        set channel [open $file.new[pid] w]
        fconfigure $channel -encoding utf-8
        puts -nonewline $channel $memory
        close $channel
        file rename -force $file.new[pid] $file
    }
}

# ---- Databases opened last

proc ::znbrowser::any::RecentFiles {} {return [Recall recent]}

proc ::znbrowser::any::NoteRecent {file} {
    if {$file eq ""} return
    set others [lsearch -all -inline -exact -not [RecentFiles] $file]
    Keep recent [lrange [linsert $others 0 $file] 0 $::znbrowser::any::mostRecent-1]
}

# ---- States of files that are only read
#
# They are kept in a file of their own, beside what else is remembered; those of a file that holds some itself, in that.

proc ::znbrowser::any::StateFile {control} {
    set file [FileOf $control]
    if {$file eq "" || [MemoryFile] eq "" || [IsOnServer $control]} return
    set sum [format %08x [zlib crc32 [encoding convertto utf-8 $file]]]
    return [file join [file dirname [MemoryFile]] states "[file tail $file]-$sum.db"]
}

proc ::znbrowser::any::HoldsStates {control} {
    return [expr {[catch {Do app state names $control} names] || $names ne ""}]
}

# States that were kept in an earlier session are there again.
proc ::znbrowser::any::FindStates {control} {
    set file [StateFile $control]
    if {$file ne "" && [file exists $file] && ![HoldsStates $control]} {catch {Do app state file $control $file}}
}

proc ::znbrowser::any::MakeStates {n} {
    upvar #0 ::znbrowser::window$n w
    set control [ControlOf $w(name)]
    set file [StateFile $control]
    if {$file eq "" || [Do app datactrl write $control] || [Do app state file $control] ne "" || [HoldsStates $control]} return
    file mkdir [file dirname $file]
    ::znbrowser::tell $n [list app state file $control $file]
}
