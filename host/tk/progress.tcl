# What is seen while the host works for longer than a moment: how long it has taken, how many rows it has read, and a way
# to cancel.

# The panel with its button, for scripts and tests.
proc ::znbrowser::progressPanel {name} {return [set ::znbrowser::window[number $name](path)].progress}

proc ::znbrowser::showProgress {n milliseconds rows} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(path)] || ![winfo exists $w(path)]} return
    set panel $w(path).progress
    if {![winfo exists $panel]} {makeProgress $n $panel}
    set text [format "Working … %.1f s" [expr {$milliseconds / 1000.0}]]
    if {$rows} {append text ", [grouped $rows] rows"}
    $panel.text configure -text $text
    $panel.bar configure -value [expr {$milliseconds / 20 % 100}]
}

# Nothing else takes the mouse or the keyboard as long as the panel is there. Escape cancels; no other key does: it
# was meant for something else.
proc ::znbrowser::makeProgress {n panel} {
    upvar #0 ::znbrowser::window$n w
    ttk::frame $panel -style Panel.TFrame -padding {18 14}
    ttk::label $panel.text -style Panel.TLabel -width 32
    ttk::progressbar $panel.bar -mode indeterminate -length 180 -style Browser.Horizontal.TProgressbar
    ttk::button $panel.cancel -text "Cancel" -style Tool.TButton -takefocus 0 -command [list ::znbrowser::host cancel]
    bind $panel <Escape> [list $panel.cancel invoke]
    grid $panel.text -sticky w
    grid $panel.bar $panel.cancel -pady {8 0}
    grid $panel.cancel -padx {14 0}
    place $panel -in $w(path).body -relx 0.5 -rely 0.4 -anchor center
    raise $panel
    set w(focus) [focus -displayof $panel]
    catch {grab $panel}
    focus $panel
}

proc ::znbrowser::hideProgress {n args} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(path)] || ![winfo exists $w(path).progress]} return
    grab release $w(path).progress
    destroy $w(path).progress
    if {[winfo exists $w(focus)]} {focus $w(focus)}
}
