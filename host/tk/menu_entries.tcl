# What stands in a popup menu. An entry is a dictionary: those of scripts as the host answers them, and the window's
# own, which have a `command` instead of an item.
#
# Captions are somebody else's: they become labels, and nothing else.
#
#   entries,MENU  what a cascade will show: it is filled when it opens for the first time
#   helps,MENU    for each entry of a menu its help and its description
#   ticked,NUMBER the check boxes of the menu
#   made          how many check boxes and cascades there have been

namespace eval ::znbrowser {
    variable mostEntries 50    ;# more do not fit onto a screen: they stand in cascades
    variable labelLength 80    ;# so many characters of a caption
    variable copiedRows 200000 ;# more are not copied at once
}

# The window's menu, empty. It is kept when it closes: a new one would cost as much as its entries.
proc ::znbrowser::newMenu {n menu} {
    upvar #0 ::znbrowser::window$n w
    if {[winfo exists $menu]} {
        $menu delete 0 end
        destroy {*}[winfo children $menu]
    } else {
        makeMenu $menu
    }
    array unset w entries,*
    array unset w helps,*
    array unset w ticked,*
    prepareEntries $n $menu
    return $menu
}

proc ::znbrowser::prepareEntries {n menu} {
    upvar #0 ::znbrowser::window$n w
    set w(helps,$menu) {}
    bind $menu <<MenuSelect>> [list ::znbrowser::entrySelected $n]\ %W
}

# Adds entries. `own` stand behind them, and count for what fits.
proc ::znbrowser::addEntries {n menu entries {own {}}} {
    upvar #0 ::znbrowser::window$n w
    set letters {}
    foreach entry [concat [folded $entries] $own] {
        set entry [dict merge {kind command caption {} enabled 1 help {} description {} icon {}} $entry]
        lappend w(helps,$menu) [list [dict get $entry help] [dict get $entry description]]
        if {[dict get $entry kind] eq "separator"} {
            $menu add separator
        } else {
            addEntry $n $menu $entry [labelOf $entry letters]
        }
    }
}

# The options for the caption of an entry: the first letter of it that no other entry has yet is underlined.
proc ::znbrowser::labelOf {entry lettersName} {
    upvar 1 $lettersName letters
    set label [oneLine [dict get $entry caption]]
    if {[string length $label] > $::znbrowser::labelLength} {
        set label [string range $label 0 [expr {$::znbrowser::labelLength - 2}]]…
    }
    set options [list -label $label]
    set place -1
    foreach letter [split [string tolower $label] ""] {
        incr place
        if {![string is alnum $letter] || [dict exists $letters $letter]} continue
        dict set letters $letter 1
        return [list {*}$options -underline $place]
    }
    return $options
}

proc ::znbrowser::addEntry {n menu entry options} {
    upvar #0 ::znbrowser::window$n w
    dict with entry {}
    lappend options -state [expr {$enabled ? "normal" : "disabled"}]
    if {$icon ne ""} {lappend options -image [fileImage $icon [expr {!$enabled}]] -compound left}
    switch $kind {
        cascade {$menu add cascade {*}$options -menu [cascadeOf $n $menu $entries]}
        check {
            set number [incr w(made)]
            set w(ticked,$number) $checked
            $menu add checkbutton {*}$options -variable ::znbrowser::window${n}(ticked,$number) \
                -command [list ::znbrowser::performCheck $n $item $number]
        }
        default {
            if {![info exists command]} {set command [list ::znbrowser::perform $n $item $value]}
            $menu add command {*}$options -command $command
        }
    }
}

# The user turned the check box over: Tk has done so already.
proc ::znbrowser::performCheck {n item number} {
    upvar #0 ::znbrowser::window$n w
    if {[isOpen $n]} {perform $n $item [expr {$w(ticked,$number) ? "true" : "false"}]}
}

# ---- Cascades

proc ::znbrowser::cascadeOf {n menu entries} {
    upvar #0 ::znbrowser::window$n w
    set cascade $menu.m[incr w(made)]
    set w(entries,$cascade) $entries
    makeMenu $cascade -postcommand [list ::znbrowser::fillCascade $n $cascade]
    return $cascade
}

proc ::znbrowser::fillCascade {n cascade} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n] || ![info exists w(entries,$cascade)]} return
    set entries $w(entries,$cascade)
    unset w(entries,$cascade)
    prepareEntries $n $cascade
    addEntries $n $cascade $entries
}

# Entries that are too many stand in cascades: first those of the data sources of one item, then all of them.
proc ::znbrowser::folded {entries} {
    variable mostEntries
    if {[llength $entries] <= $mostEntries} {return $entries}
    set together {}
    set run {}
    foreach entry $entries {
        if {$run ne "" && ![sameContainer [lindex $run 0] $entry]} {
            lappend together {*}[inCascades $run]
            set run {}
        }
        lappend run $entry
    }
    lappend together {*}[inCascades $run]
    while {[llength $together] > $mostEntries} {set together [inCascades $together]}
    return $together
}

proc ::znbrowser::sameContainer {one other} {
    return [expr {[dict get $other kind] eq "source" && [dict get $one kind] eq "source"
        && [dict get $one item] eq [dict get $other item]}]
}

# The entries, those that are too many as cascades that name the first and the last of theirs.
proc ::znbrowser::inCascades {entries} {
    variable mostEntries
    while {[llength $entries] > $mostEntries} {
        set cascades {}
        for {set first 0} {$first < [llength $entries]} {incr first $mostEntries} {
            set part [lrange $entries $first [expr {$first + $mostEntries - 1}]]
            lappend cascades [dict create kind cascade entries $part ends [endsOf $part] \
                caption [join [lmap text [endsOf $part] {string range [oneLine $text] 0 30}] " … "]]
        }
        set entries $cascades
    }
    return $entries
}

# The captions of the first and the last of entries, or of the entries in them.
proc ::znbrowser::endsOf {entries} {
    set texts [lmap entry [list [lindex $entries 0] [lindex $entries end]] {
        if {[dict exists $entry ends]} {dict get $entry ends} else {lrepeat 2 [dict get $entry caption]}
    }]
    return [list [lindex $texts 0 0] [lindex $texts 1 1]]
}

# ---- The window's own entries

# The operations of the view, where no script has made a menu.
proc ::znbrowser::operationEntries {n} {
    upvar #0 ::znbrowser::window$n w
    if {![dict exists $w(look) operations]} return
    return [lmap operation [dict get $w(look) operations] {
        dict create caption $operation command [list ::znbrowser::perform $n $operation ""]
    }]
}

# What can be done with any row, and with all of them.
proc ::znbrowser::standardEntries {n row column} {
    upvar #0 ::znbrowser::window$n w
    set entries {}
    if {$row ne ""} {
        set entries [list \
            [dict create caption [expr {[lindex $row 5] ? "Collapse" : "Expand"}] enabled [lindex $row 7] \
                command [list ::znbrowser::toggle $n $row]] \
            [dict create caption "Expand all below" command [list ::znbrowser::command $n window expandselected]] \
            [dict create caption "Collapse selected" \
                command [list ::znbrowser::command $n window collapseselected]]]
    }
    return [concat $entries [copyEntries $n $row $column] [exportEntries $n $row]]
}

proc ::znbrowser::copyEntries {n row column} {
    upvar #0 ::znbrowser::window$n w
    set entries {}
    if {$row ne ""} {
        set text [cellText $n $row $column]
        set entries [list {kind separator} \
            [dict create caption "Copy cell" enabled [expr {$text ne ""}] command [list ::znbrowser::copy $text]] \
            [dict create caption "Copy rows" command [list ::znbrowser::copySelected $n] \
                help "The selected rows, to be pasted into a table (Ctrl-C)"] \
            [dict create caption "Copy rows with captions" command [list ::znbrowser::copySelected $n tsv] \
                help "The selected rows below the names of the columns"] \
            [dict create caption "Copy rows as CSV" command [list ::znbrowser::copySelected $n csv] \
                help "The selected rows below the names of the columns, with commas between the cells"] \
            [dict create caption "Copy rows as SQL" command [list ::znbrowser::copySelected $n sql] \
                help "The statements that insert the selected rows, with all that is stored of them"]]
    }
    set rows [dict get $w(look) rows]
    lappend entries [dict create caption "Copy all" command [list ::znbrowser::copyAll $n] \
        enabled [expr {$rows > 0 && $rows <= $::znbrowser::copiedRows}] \
        help "Every row that is open, below the names of the columns, to be pasted into a table"]
    return $entries
}

proc ::znbrowser::exportEntries {n row} {
    upvar #0 ::znbrowser::window$n w
    set rows [dict get $w(look) rows]
    set entries {}
    if {$row ne "" && [lindex $row 3] ne "item" && [lindex $row 7]} {
        lappend entries [dict create caption "Export this [lindex $row 3] …" \
            command [list ::znbrowser::export $n [lindex $row 0]] help "Every open row below it, into a file of CSV, TSV or SQL"]
    }
    if {$row ne "" && [lindex $row 7]} {
        lappend entries [dict create caption "Export all below …" help "Closed rows too, into a file of CSV, TSV or SQL" \
            command [list ::znbrowser::export $n [lindex $row 0] deep]]
    }
    if {$row ne ""} {
        lappend entries [dict create caption "Export selected rows …" command [list ::znbrowser::export $n selected] \
            help "Into a file of CSV, TSV or SQL"]
    }
    lappend entries [dict create caption "Export all …" command [list ::znbrowser::export $n all] enabled [expr {$rows > 0}] \
        help "Every row that is open, into a file of CSV, TSV or SQL"]
    return $entries
}
