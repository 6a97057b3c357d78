# Tooltips: the whole text of a cell that has no room for it, and the help of menu entries.

proc ::znbrowser::pointTip {n x y rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    set text [cutText $n $x $y]
    if {[info exists w(tip)] && $w(tip) eq $text} return
    hideTip $n
    set w(tip) $text
    if {$text ne ""} {set w(timer,tip) [after 500 [list ::znbrowser::showTip $n $text $rootX $rootY]]}
}

# The text at a point, if it is cut off; else nothing.
proc ::znbrowser::cutText {n x y} {
    upvar #0 ::znbrowser::window$n w
    $w(tree) identify -array at $x $y
    if {$at(where) ne "item" || ![string match text* $at(element)]} {return ""}
    set text [$w(tree) item element cget $at(item) $at(column) $at(element) -text]
    set font [$w(tree) item element cget $at(item) $at(column) $at(element) -font]
    if {$font eq ""} {set font znBrowser00}
    lassign [$w(tree) item bbox $at(item) $at(column) $at(element)] x1 y1 x2 y2
    if {[font measure $font $text] <= $x2 - $x1 + 1} {return ""}
    return $text
}

proc ::znbrowser::showTip {n text rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,tip)
    set tip $w(path).tip
    toplevel $tip -background [colour line]
    wm withdraw $tip
    wm overrideredirect $tip 1
    label $tip.text -text $text -background [colour tip] -foreground [colour text] -font znBrowser00 \
        -justify left -wraplength 600 -padx 6 -pady 3
    pack $tip.text -padx 1 -pady 1
    update idletasks
    set x [expr {max(0, min($rootX + 12, [winfo screenwidth $tip] - [winfo reqwidth $tip]))}]
    wm geometry $tip +$x+[expr {$rootY + 18}]
    wm deiconify $tip
    raise $tip
}

proc ::znbrowser::hideTip {n} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,tip)]} {after cancel $w(timer,tip)}
    unset -nocomplain w(timer,tip) w(tip)
    destroy $w(path).tip
}

# ---- Buttons

# The tip of a widget; what else it does with the pointer stays.
proc ::znbrowser::giveTip {n widget text} {
    set ::znbrowser::window${n}(tipOf,$widget) $text
    bind $widget <Enter> [list ::znbrowser::pointAtWidget $n %W]
    foreach event {<Leave> <ButtonPress> <Unmap>} {bind $widget $event [list ::znbrowser::hideTip $n]}
}

proc ::znbrowser::pointAtWidget {n widget} {
    upvar #0 ::znbrowser::window$n w
    hideTip $n
    set w(tip) $w(tipOf,$widget)
    set w(timer,tip) [after 500 [list ::znbrowser::showTip $n $w(tip) [expr {[winfo rootx $widget] - 8}] \
        [expr {[winfo rooty $widget] + [winfo height $widget] - 12}]]]
}

# ---- Menus

# Another entry of a menu is the active one: what it does stands in the status line, and soon beside it.
proc ::znbrowser::entrySelected {n menu} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n] || ![info exists w(helps,$menu)]} return
    hideHelp $n
    set place [$menu index active]
    if {$place eq "none"} return
    lassign [lindex $w(helps,$menu) $place] help description
    set texts [lmap text [list $help $description] {if {$text eq ""} continue; oneLine $text}]
    $w(path).status.help configure -text [join $texts "   ·   "]
    if {$help eq ""} return
    set y [expr {[winfo rooty $menu] + [$menu yposition $place] + [rowHeight] - 14}]
    set w(tip) $help
    set w(timer,tip) [after 500 [list ::znbrowser::showTip $n $help \
        [expr {[winfo rootx $menu] + [winfo width $menu] - 8}] $y]]
}

proc ::znbrowser::hideHelp {n} {
    upvar #0 ::znbrowser::window$n w
    hideTip $n
    $w(path).status.help configure -text ""
}
