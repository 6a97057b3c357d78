# Writes the table "for this command, implement these operations" of doc/embedding.md: what the embedded host was asked
# while a script ran that uses every row of the command tables.
#     znbrowsersh host_calls.tcl ?PAGE?            prints the table, or writes it into the page
#     znbrowsersh host_calls.tcl -record SECTION   prints what one section of that script asked, on a host of its own
set mark "<!-- What follows is written by tests/faults/host_calls.tcl. -->"
source [file join [file dirname [info script]] every_family.tcl]

# What else the script's lines would ask from within is not theirs.
proc told {args} {}

# Every line of a section, and the operations that it asked for.
proc record {lines} {
    lmap line $lines {
        znbrowsermanager app journal clear
        znbrowsermanager app journal on
        zn {*}$line
        znbrowsermanager app journal off
        list $line [lmap call [znbrowsermanager app journal] {lindex $call 0}]
    }
}

# One section on a host of its own, that of this process, behind the opening.
proc recordSection {section} {
    global model opening sections
    znbrowsermanager app datactrl create m
    foreach statement $model {znbrowsermanager app sql m $statement}
    return [concat [record $opening] [record [dict get $sections $section]]]
}

# The words of every command, without arguments, in the order of the reference.
proc commands {} {
    set below {}
    set table ""
    foreach line [split [exec [info nameofexecutable] --reference] \n] {
        if {[regexp {^## `znbrowsermanager ?(.*)`$} $line - level]} {
            dict set below $level {}
        } elseif {[regexp {^As `znbrowsermanager (.*)`\.$} $line - same]} {
            dict set below $level [dict get $below $same]
        } elseif {[regexp {^\| (word|goes wrong) \|} $line - table]} {
            continue
        } elseif {$table eq "word" && [regexp {^\| `([A-Za-z]+)[ `]} $line - word]} {
            dict lappend below $level $word
        }
    }
    dict unset below app
    return [commandsFrom $below {}]
}
proc commandsFrom {below level} {
    set commands {}
    if {![dict exists $below $level]} {return {}}
    foreach word [dict get $below $level] {
        set command [string trimleft "$level $word"]
        lappend commands $command {*}[commandsFrom $below $command]
    }
    return $commands
}

# The longest command, in `known` in lower case, that the line begins with, or "".
proc commandOf {line known} {
    for {set last [expr {[llength $line] - 1}]} {$last >= 0} {incr last -1} {
        set command [string tolower [join [lrange $line 0 $last]]]
        if {[dict exists $known $command]} {return $command}
    }
    return ""
}

# "`znIBrowser`: CreateView, GetViewList; ...", in the order in which they were asked for first.
proc grouped {operations} {
    set byClass {}
    foreach operation $operations {
        regexp {^(.*)::(.*)$} $operation - class name
        if {![dict exists $byClass $class] || $name ni [dict get $byClass $class]} {dict lappend byClass $class $name}
    }
    return [join [lmap {class names} $byClass {string cat "`$class`: " [join $names {, }]}] "; "]
}

# What nearly every command needs is told above the table.
set everywhere {znIBrowserApplication::GetBrowser znIBrowser::GetError}

# The lines of the table.
proc table {} {
    global sections everywhere
    set asked {}
    set commands [commands]
    foreach command $commands {dict set asked [string tolower $command] {}}
    foreach section [dict keys $sections] {
        foreach entry [exec [info nameofexecutable] [info script] -record $section] {
            lassign $entry line operations
            set command [commandOf $line $asked]
            if {$command ne ""} {dict lappend asked $command {*}$operations}
        }
    }
    set lines {{| command | operations |} {|---|---|}}
    foreach command $commands {
        set operations [lmap operation [dict get $asked [string tolower $command]] {
            if {$operation in $everywhere} continue
            set operation
        }]
        if {$operations ne ""} {lappend lines "| `$command` | [grouped $operations] |"}
    }
    return $lines
}

proc readPage {page} {
    set channel [open $page]
    try {read $channel} finally {close $channel}
}
proc writePage {page text} {
    set channel [open $page w]
    try {puts -nonewline $channel $text} finally {close $channel}
}

if {[lindex $argv 0] eq "-record"} {
    puts [recordSection [lindex $argv 1]]
} elseif {$argc} {
    lassign $argv page
    set text [readPage $page]
    set end [string first $mark $text]
    if {$end < 0} {error "$page has no line \"$mark\""}
    writePage $page "[string range $text 0 $end-1]$mark\n\n[join [table] \n]\n"
} else {
    puts [join [table] \n]
}
