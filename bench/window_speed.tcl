# What a window costs with a million rows in it: znbrowsersh --tk window_speed.tcl
# Prints each value, a median where it was measured often, its limit, and whether it holds; exits with 1 when one
# does not.

interp alias {} zn {} znbrowsermanager

set rows 1000000
set failed 0

# Nobody is there to read a dialog.
proc bgerror {message} {
    puts stderr $::errorInfo
    exit 1
}

# Without a limit it is only said.
proc report {what value unit {limit ""}} {
    if {$limit eq ""} {
        puts [format "%-44s %9.1f %s" $what $value $unit]
        return
    }
    set holds [expr {$value <= $limit}]
    if {!$holds} {incr ::failed}
    puts [format "%-44s %9.1f %-4s limit %7.1f  %s" $what $value $unit $limit [expr {$holds ? "holds" : "DOES NOT HOLD"}]]
}

proc milliseconds {script} {
    set start [clock microseconds]
    uplevel 1 $script
    return [expr {([clock microseconds] - $start) / 1000.0}]
}

# How long the program itself was at work, in milliseconds.
proc processorTime {script} {
    set start [nanosecondsOfWork]
    uplevel 1 $script
    return [expr {([nanosecondsOfWork] - $start) / 1e6}]
}

proc nanosecondsOfWork {} {
    set schedule [open /proc/self/schedstat]
    set work [lindex [read $schedule] 0]
    close $schedule
    return $work
}

proc middle {values} {return [lindex [lsort -real $values] [expr {[llength $values] / 2}]]}

# Each of so many steps with the screen drawn after it: the median and the longest, in milliseconds. What is done
# before each is not counted.
proc steps {count script {before {}}} {
    set times [lsort -real [lmap step [lrepeat $count .] {
        uplevel 1 $before
        milliseconds {uplevel 1 $script; update}
    }]]
    return [list [lindex $times [expr {$count / 2}]] [lindex $times end]]
}

proc memory {field} {
    set status [open /proc/self/status]
    regexp "$field:\\s+(\\d+) kB" [read $status] -> kilobytes
    close $status
    return [expr {$kilobytes / 1024.0}]
}

proc index {text} {
    foreach row [zn app rows speed 0 10] {
        if {[string match "$text*" [dict get $row text]]} {return [dict get $row index]}
    }
}

# ---- A window on a list of a million items, with three columns ----

close [file tempfile database]
zn app datactrl create speed $database
zn app sql speed {create table item (id integer primary key, name text, weight real, shown boolean)}
zn app sql speed "insert into item with recursive n(i) as (select 1 union all select i + 1 from n where i < $rows)
    select i, 'item ' || i, i * 0.5, i % 2 from n"
zn datactrl current speed
zn view create speed true
zn view datactrl connect
zn view datasource connect item
foreach {property type} {weight double shown bool} {
    zn view property create $property
    zn view property type $type
    zn view property connect item $property
    zn view column create $property
}
zn view folder current speed
zn view list create item
zn window create speed
zn window post true
update
set tree [znbrowser::tree speed]
puts "rows: $rows, window: [winfo width $tree] x [winfo height $tree]"

# ---- Expanding, scrolling, memory ----

lassign [steps 5 {
    zn OnTkTreeRequestExpand speed [index item]
    update
    if {[znbrowser::boxOf speed [dict get [lindex [zn app rows speed 1 1] 0] index]] eq ""} {error "no row is drawn"}
} {
    zn OnTkTreeRequestCollapse speed [index item]
    update
}] median longest
report "expanding, until the first rows are drawn" $median ms 1500
report "the longest of 5" $longest ms
foreach {what script} {
    "a page further"                  {event generate $tree <Next>}
    "a page back"                     {event generate $tree <Prior>}
    "to the end, to the top"          {event generate $tree [expr {[incr turn] % 2 ? "<End>" : "<Home>"}]}
    "a turn of the wheel"             {event generate $tree <Button-5> -x 20 -y 60}
} {
    focus -force $tree
    lassign [steps 100 $script] median longest
    report $what $median ms 30
    report "the longest of 100" $longest ms
}
report "memory at the end" [memory VmRSS] MiB 300
report "memory at most" [memory VmHWM] MiB 300

# ---- Keys pressed by another program while the window searches: how long one waits at most ----

# The clock of the display began at another time: what the fastest key took counts as nothing.
proc waits {widget text pace ready} {
    set ::delays {}
    bind $widget <KeyPress> {lappend ::delays [expr {[clock milliseconds] - %t}]}
    focus -force $widget
    update
    exec xdotool key --delay $pace {*}[lmap character [split $text ""] {string map {" " space \b BackSpace} $character}] &
    while {[llength $::delays] < [string length $text] || ![uplevel 1 [list expr $ready]]} {
        after 5 {set ::tick 1}
        vwait ::tick
    }
    bind $widget <KeyPress> {}
    set sorted [lsort -integer $::delays]
    return [expr {[lindex $sorted end] - [lindex $sorted 0]}]
}
proc look {key} {dict get [::znbrowser::host look [znbrowser::number speed]] $key}
zn OnTkTreeRequestExpand speed [index item]
update
set field [znbrowser::searchField speed]
foreach pace {30 120} {
    set text "item 4${pace}77"
    report "a key typed at $pace ms into the search field" [waits $field $text $pace {[look filter] eq $text}] ms 50
    report "the same, taken back" [waits $field [string repeat \b [string length $text]] $pace {[look filter] eq ""}] ms 50
}
focus -force $tree
foreach {what before key} {"a key typed to find the next row" "" i "one for a row some thousands further on" "item 500" 0} {
    lassign [steps 20 {event generate $tree <KeyPress> -keysym $key} {
        set n [znbrowser::number speed]
        ::znbrowser::forgetTyped $n
        ::znbrowser::goTo $n move 4
        foreach character [split $before ""] {::znbrowser::typed $n $character 0}
        update
    }] median longest
    report $what $median ms 50
    report "the longest of 20" $longest ms
}
report "a key typed to find a row that is not there" [waits $tree "item x" 120 {![info exists ::znbrowser::window[znbrowser::number speed](finding)]}] ms 50
zn OnTkTreeRequestCollapse speed [index item]
update

# ---- A popup menu of 30 items, against Tk's menu with the same entries ----

zn view popupmenu create thirty
zn view popupmenu connect view
zn view popupmenu onpost posting
proc posting args {zn view popupmenuitem current item7; zn view popupmenuitem checked [expr {[incr ::posted] % 2}]}
for {set item 0} {$item < 30} {incr item} {
    zn view popupmenuitem create item$item
    zn view popupmenuitem showonfolder true
    zn view popupmenuitem checkable [expr {$item % 3 == 1}]
}
set row [index item]
proc closeMenu {menu} {
    tk::MenuUnpost $menu
    update
}
proc plainMenu {} {
    destroy .plain
    ::znbrowser::makeMenu .plain
    for {set item 0} {$item < 30} {incr item} {
        .plain add {*}[expr {$item % 3 == 1 ? "checkbutton" : "command"}] -label item$item -command list
    }
    foreach label {1 2 3 - 4 5 6} {
        if {$label eq "-"} {.plain add separator} else {.plain add command -label "own $label" -command list}
    }
    tk_popup .plain 100 100
}
set n [znbrowser::number speed]
# In turns, and compared by the processor time of the program: what else the machine does does not count.
for {set round 0} {$round < 100} {incr round} {
    foreach {kind menu script} {
        plain .plain {plainMenu; update}
        own popup {::znbrowser::openMenu $n [::znbrowser::rowOfIndex $n $row] Name 100 100; update}
    } {
        lappend work($kind) [processorTime {lappend took($kind) [milliseconds $script]}]
        closeMenu [expr {$menu eq "popup" ? [znbrowser::popup speed] : $menu}]
    }
}
report "a popup menu of 30 items, plain" [middle $took(plain)] ms
report "the same by a script with onpost" [middle $took(own)] ms
report "ratio of their processor times" [expr {[middle $work(own)] / [middle $work(plain)]}] "" 1.5

zn window post false
file delete $database
exit [expr {$failed > 0}]
