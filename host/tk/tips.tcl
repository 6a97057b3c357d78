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
    set whole [dict get [pointed $n $x $y] text]
    if {$whole ne "" && $text ne [oneLine $whole] && [string is double -strict $whole]} {return $whole}
    set font [$w(tree) item element cget $at(item) $at(column) $at(element) -font]
    if {$font eq ""} {set font znBrowser00}
    lassign [$w(tree) item bbox $at(item) $at(column) $at(element)] x1 y1 x2 y2
    set whole [dict get [pointed $n $x $y] text] ;# with its line breaks
    if {[oneLine $whole] ne $text} {set whole $text}
    if {[font measure $font $text] > $x2 - $x1 + 1 || [string first \n $whole] >= 0} {return $whole}
}

# Below the place, or above it where the screen ends; of a long text the beginning.
proc ::znbrowser::showTip {n text rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,tip)
    set tip $w(path).tip
    toplevel $tip -background [colour line]
    wm withdraw $tip
    wm overrideredirect $tip 1
    label $tip.text -text [beginningOf $text] -background [colour tip] -foreground [colour text] -font znBrowser00 \
        -justify left -wraplength [expr {min([scaled 600], [winfo screenwidth $tip] - 20)}] -padx 6 -pady 3
    pack $tip.text -padx 1 -pady 1
    update idletasks
    set x [expr {max(0, min($rootX + 12, [winfo screenwidth $tip] - [winfo reqwidth $tip]))}]
    set y [expr {$rootY + 18}]
    if {$y + [winfo reqheight $tip] > [winfo screenheight $tip]} {
        set y [expr {max(0, $rootY - [winfo reqheight $tip] - 6)}]
    }
    wm geometry $tip +$x+$y
    wm deiconify $tip
    raise $tip
}

# So much of a text as a tip has room for.
proc ::znbrowser::beginningOf {text} {
    set lines [split [string range $text 0 1000] \n]
    if {[string length $text] <= 1000 && [llength $lines] <= 20} {return $text}
    return "[string trimright [join [lrange $lines 0 19] \n]] …"
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
