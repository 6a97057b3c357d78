# A million rows in a window of ours, in a ttk::treeview and in a treectrl, both filled by hand with the same rows, each
# in a process of its own: znbrowsersh --tk other_trees.tcl ?ROWS?
# Prints for each the processor time until the first rows are drawn, to scroll by a page, and to find the first row
# with some text near the end; and the memory at the end, in MiB.

lassign $argv rows kind

# Of processor time: what else the machine does, and the display, are not in it.
proc processorTime {} {
    set status [open /proc/thread-self/schedstat]
    set nanoseconds [lindex [read $status] 0]
    close $status
    return [expr {$nanoseconds / 1e6}]
}
proc milliseconds {script} {
    set start [processorTime]
    uplevel 1 $script
    return [expr {[processorTime] - $start}]
}

proc median {times} {lindex [lsort -real $times] [expr {[llength $times] / 2}]}

proc residentMemory {} {
    set status [open /proc/self/status]
    regexp {VmRSS:\s+(\d+) kB} [read $status] -> kilobytes
    close $status
    return [expr {$kilobytes / 1024.0}]
}

# The same in all: item I, half of I, odd or even.
proc rowsOf {first last script} {
    upvar 1 row row
    for {set i $first} {$i <= $last} {incr i} {
        set row [list "item $i" [expr {$i * 0.5}] [expr {$i % 2}]]
        uplevel 1 $script
    }
}
proc databaseOfRows {rows} {
    close [file tempfile database]
    znbrowsermanager app datactrl create speed $database
    znbrowsermanager app sql speed {create table item (id integer primary key, name text, weight real, odd integer)}
    znbrowsermanager app sql speed "insert into item with recursive n(i) as (select 1 union all select i + 1 from n
        where i < $rows) select i, 'item ' || i, i * 0.5, i % 2 from n"
    return $database
}

proc fill-ours {rows} {
    znbrowsermanager datactrl current speed
    foreach words {
        {view create speed true} {view datactrl connect} {view datasource connect item}
        {view property create name} {view property type string} {view property connect item name}
        {view property create weight} {view property type double} {view property connect item weight}
        {view column create weight}
        {view property create odd} {view property type integer} {view property connect item odd}
        {view column create odd}
        {view folder current speed} {view list create item} {window create speed} {window post true}
    } {
        znbrowsermanager {*}$words
    }
    update
    znbrowsermanager window expandall
    znbrowsermanager window find property add name
    znbrowsermanager window find property current name
    znbrowsermanager window find property criterion current value
    znbrowsermanager window find type next
    return [znbrowser::tree speed]
}
proc find-ours {tree text} {
    znbrowsermanager window find property criterion value $text
    znbrowsermanager window find perform
}
proc page-ours {tree} {event generate $tree <Next>}

proc fill-treeview {rows} {
    ttk::treeview .t -columns {weight odd} -height 30
    pack .t -fill both -expand true
    rowsOf 1 $rows {.t insert {} end -text [lindex $row 0] -values [lrange $row 1 end]}
    return .t
}
proc find-treeview {tree text} {
    foreach item [$tree children {}] {
        if {[string first $text [$tree item $item -text]] >= 0} break
    }
    $tree selection set $item
    $tree see $item
}
proc page-treeview {tree} {$tree yview scroll 1 pages}

proc fill-treectrl {rows} {
    package require treectrl
    treectrl .t -showroot false -width 600 -height 600
    pack .t -fill both -expand true
    .t element create text text
    .t style create cell
    .t style elements cell text
    foreach column {name weight odd} {.t column create -tags $column -text $column -itemstyle cell}
    .t configure -treecolumn name
    rowsOf 1 $rows {
        set item [.t item create -parent root]
        .t item text $item name [lindex $row 0] weight [lindex $row 1] odd [lindex $row 2]
    }
    return .t
}
proc find-treectrl {tree text} {
    foreach item [$tree item children root] {
        if {[string first $text [$tree item text $item name]] >= 0} break
    }
    $tree selection add $item
    $tree see $item
}
proc page-treectrl {tree} {$tree yview scroll 1 pages}

if {$kind ne ""} {
    package require Tk
    set database [expr {$kind eq "ours" ? [databaseOfRows $rows] : ""}]
    if {$kind ne "ours"} {wm deiconify .}
    update
    set before [residentMemory]
    set opened [milliseconds {set tree [fill-$kind $rows]; update}]
    focus -force $tree
    set pages [lmap page [lrepeat 50 .] {milliseconds {page-$kind $tree; update}}]
    set found [milliseconds {find-$kind $tree "item [expr {$rows - 10}]"; update}]
    puts [list $opened [median $pages] $found [expr {[residentMemory] - $before}]]
    if {$database ne ""} {file delete $database}
    exit
}
if {$rows eq ""} {set rows 1000000}
puts [format "%-12s %14s %12s %12s %12s" "$rows rows" "first rows, ms" "page, ms" "find, ms" MiB]
foreach kind {ours treeview treectrl} {
    lassign [exec [info nameofexecutable] --tk [info script] $rows $kind] opened page found memory
    puts [format "%-12s %14.0f %12.1f %12.0f %12.0f" $kind $opened $page $found $memory]
}
exit
