# The popup menu of rows: the view's operations, and what can be done with any row.

# The menu of a window, for scripts and tests.
proc ::znbrowser::popup {name} {return [set ::znbrowser::window[number $name](path)].popup}

proc ::znbrowser::pressRight {n x y state rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    focus $w(tree)
    hideTip $n
    flush $n
    set at [pointed $n $x $y]
    if {[dict get $at where] eq "header"} {
        popupAt $n [winfo parent $w(searchField)].columns.menu $rootX $rootY
        return
    }
    if {![dict exists $at row]} return
    if {![dict exists $at column]} {dict set at column [firstColumn $n]}
    openMenu $n [dict get $at row] [dict get $at column] $rootX $rootY
}

# The name of the first column that is shown.
proc ::znbrowser::firstColumn {n} {
    upvar #0 ::znbrowser::window$n w
    return [dict get [lindex $w(columns) [lindex $w(shown) 0]] name]
}

# By the keyboard: below the row with the focus.
proc ::znbrowser::menuAtActive {n} {
    upvar #0 ::znbrowser::window$n w
    set row [activeRow $n]
    set slot [expr {$row eq "" ? -1 : [slotOf $n [lindex $row 0]]}]
    if {$slot < 0} return
    lassign [$w(tree) item bbox $w(item,$slot)] x1 y1 x2 y2
    openMenu $n $row [firstColumn $n] [expr {[winfo rootx $w(tree)] + $x1 + 24}] \
        [expr {[winfo rooty $w(tree)] + $y2}]
}

# A menu is about the selected rows; a click on another row selects that one first.
proc ::znbrowser::openMenu {n row column rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    set index [lindex $row 0]
    setActive $n $index
    if {![lindex $row 6]} {
        set w(anchor) $index
        selectRows $n OnTkTreeRequestSelectionUpdate $index
    }
    if {![isOpen $n]} return
    event $n OnTkTreeRightHandClick $column {*}[host selected $n]
    if {![isOpen $n]} return
    event $n OnTkTreePopupMenu true
    if {![isOpen $n]} return
    flush $n
    fillMenu $n $row
    popupAt $n [popup $w(name)] $rootX $rootY
}

proc ::znbrowser::fillMenu {n row} {
    upvar #0 ::znbrowser::window$n w
    set menu $w(path).popup
    destroy $menu
    makeMenu $menu
    bind $menu <Unmap> [list ::znbrowser::menuClosed $n]
    foreach operation [dict get $w(look) operations] {
        $menu add command -label [oneLine $operation] \
            -command [list ::znbrowser::event $n OnTkTreePerformPopupOperation $operation ""]
    }
    if {[dict get $w(look) operations] ne ""} {$menu add separator}
    $menu add command -label [expr {[lindex $row 5] ? "Collapse" : "Expand"}] \
        -state [expr {[lindex $row 7] ? "normal" : "disabled"}] -command [list ::znbrowser::toggle $n $row]
    $menu add command -label "Expand all below" -command [list ::znbrowser::command $n window expandselected]
    $menu add command -label "Collapse selected" \
        -command [list ::znbrowser::command $n window collapseselected]
    $menu add separator
    $menu add command -label "Copy text" -command [list ::znbrowser::copyRow $n $row]
}

proc ::znbrowser::menuClosed {n} {
    upvar #0 ::znbrowser::window$n w
    if {[isOpen $n]} {event $n OnTkTreePopupMenu false}
}

proc ::znbrowser::popupAt {n menu rootX rootY} {tk_popup $menu $rootX $rootY}

# The texts of a row's cells, tabs between them.
proc ::znbrowser::copyRow {n row} {
    set texts [list [lindex $row 4]]
    foreach cell [lindex $row 11] {
        set text [join [lmap element [lrange $cell 1 end] {lindex $element 1}] " "]
        if {$text ne [lindex $row 4]} {lappend texts $text}
    }
    clipboard clear
    clipboard append -- [join $texts \t]
}
