# The column with the tree: it stays where it is when the others are scrolled sideways, and has room for texts however
# deep their rows lie.
#
#   locked    whether it stays: it is the first one, and leaves room for the others
#   sideways  how far the window was scrolled sideways, before its columns became others
#   indents   how many levels are left out on the left, and how many pixels each of the others takes

namespace eval ::znbrowser {
    variable besideTree 46    ;# pixels of a cell there, beside its text and its indent
    variable textInTree 160   ;# pixels for a text, at least, where the window has them
    variable longInTree 320   ;# and for a longer one, as far as the column becomes wider for it
    variable mostForTree 0.55 ;# of the width of a window; wider than that it does not stay
}

# Before a page is drawn: the column is wide enough for what is in it, or its rows are indented less.
proc ::znbrowser::fitTree {n} {
    upvar #0 ::znbrowser::window$n w
    set number [treeNumber $n]
    set w(indents) [list 0 [scaled 18]]
    if {$number >= 0} {
        if {$w(bare)} {growTree $n $number}
        set w(indents) [indentsFor $w(width,$number) [lmap row $w(page) {lindex $row 2}]]
    }
    lockTree $n $number
}

# The number of the column with the tree; -1 while it is not shown.
proc ::znbrowser::treeNumber {n} {
    upvar #0 ::znbrowser::window$n w
    foreach number $w(shown) {
        if {[dict get [lindex $w(columns) $number] tree]} {return $number}
    }
    return -1
}

# It grows with the texts of deep rows, up to a part of the window, unless the user has said how wide it is.
proc ::znbrowser::growTree {n number} {
    upvar #0 ::znbrowser::window$n w
    if {[dict get [lindex $w(columns) $number] name] in $w(sized)} return
    set wanted 0
    foreach row $w(page) {
        set text [font measure znBrowser00 [string range [lindex $row 4] 0 59]]
        set wanted [expr {max($wanted, [lindex $row 2] * [scaled 18] + min($text, [scaled $::znbrowser::longInTree]))}]
    }
    set at [sideways $n]
    growColumn $n $number [expr {min($wanted + [scaled $::znbrowser::besideTree],
        int([winfo width $w(tree)] * $::znbrowser::mostForTree))}]
    if {[sideways $n] != $at} {$w(tree) xview moveto $at} ;# the widget keeps the place of the left edge, also below it
}

# How rows of these depths are indented in a column of that width: where a text would not be seen the levels that
# all of them have are left out, and if that does not suffice each takes less.
proc ::znbrowser::indentsFor {width depths} {
    set step [scaled 18]
    set deepest [tcl::mathfunc::max 0 {*}$depths]
    set room [expr {max(0, $width - [scaled $::znbrowser::besideTree] - min([scaled $::znbrowser::textInTree], $width / 2))}]
    if {$deepest * $step <= $room} {return [list 0 $step]}
    set left [expr {min([tcl::mathfunc::min {*}$depths], $deepest - $room / $step)}]
    set levels [expr {$deepest - $left}]
    return [list $left [expr {$levels * $step <= $room ? $step : double($room) / $levels}]]
}

proc ::znbrowser::indentOf {n depth} {
    upvar #0 ::znbrowser::window$n w
    lassign $w(indents) left step
    return [expr {round(max(0, $depth - $left) * $step)}]
}

# ---- Scrolling sideways

# Lets the column stay, or go with the others.
proc ::znbrowser::lockTree {n number} {
    upvar #0 ::znbrowser::window$n w
    set locks [expr {$number >= 0 && $number == [lindex $w(shown) 0] && [llength $w(shown)] > 1
        && $w(width,$number) <= $::znbrowser::mostForTree * [winfo width $w(tree)]}]
    if {$locks == $w(locked)} return
    forgetSlots $n ;# what spans columns spans others now
    set at [expr {[info exists w(sideways)] ? $w(sideways) : [sideways $n]}]
    unset -nocomplain w(sideways)
    $w(tree) column configure $w(column,[expr {$locks ? $number : [lindex $w(shown) 0]}]) -lock [expr {$locks ? "left" : "none"}]
    set w(locked) $locks
    $w(tree) xview moveto $at
}

# How far the window is scrolled sideways. One that is not seen has no place to speak of.
proc ::znbrowser::sideways {n} {
    upvar #0 ::znbrowser::window$n w
    return [expr {[winfo viewable $w(tree)] ? [lindex [$w(tree) xview] 0] : 0}]
}

# The column of the tree widget from which on a row has the whole width for a text: no text goes on from a column that
# stays into one that does not.
proc ::znbrowser::wideColumn {n} {
    upvar #0 ::znbrowser::window$n w
    return $w(column,[lindex $w(shown) $w(locked)])
}
