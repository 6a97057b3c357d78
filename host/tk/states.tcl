# The menu "State": what a window looks like is kept by a name, and brought back, by the words of states.

proc ::znbrowser::buildStates {n bar} {
    ttk::menubutton $bar.state -text "State" -style Status.TMenubutton -menu $bar.state.menu
    makeMenu $bar.state.menu -postcommand [list ::znbrowser::fillStates $n $bar.state.menu]
    pack $bar.state -side right -padx {4 0}
}

# The menu of a window, for scripts and tests.
proc ::znbrowser::stateMenu {name} {return [set ::znbrowser::window[number $name](path)].status.state.menu}

# The names of states are somebody else's: they become labels, and words of commands.
proc ::znbrowser::fillStates {n menu} {
    $menu delete 0 end
    destroy $menu.forget
    $menu add command -label "Keep as…" -command [list ::znbrowser::askState $n]
    set names [stateNames $n]
    if {$names eq ""} return
    makeMenu $menu.forget
    $menu add separator
    foreach name $names {
        $menu add command -label [oneLine $name] -command [list ::znbrowser::restoreState $n $name]
        $menu.forget add command -label [oneLine $name] -command [list ::znbrowser::forgetState $n $name]
    }
    $menu add separator
    $menu add cascade -label "Forget" -menu $menu.forget
}

proc ::znbrowser::stateNames {n} {
    upvar #0 ::znbrowser::window$n w
    if {![chooseControl $n] || [catch {manager app state names [dict get $w(look) control]} names]} return
    return $names
}

# The data control of the window's view becomes the current one: states are its.
proc ::znbrowser::chooseControl {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n] || ![dict exists $w(look) control] || [dict get $w(look) control] eq ""} {return 0}
    return [tell $n [list datactrl current [dict get $w(look) control]]]
}

proc ::znbrowser::askState {n} {
    set answer [askInput $n "Keep this state" Name 5 "" {}]
    if {[isOpen $n] && [lindex $answer 0] eq "ok" && [lindex $answer 1] ne ""} {keepState $n [lindex $answer 1]}
}

# What is kept by that name already is replaced. Some windows have a command, `keeping`, that finds a place for states
# where there is none.
proc ::znbrowser::keepState {n name} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(keeping)]} {catch {{*}$w(keeping) $n}} ;# the reason why they cannot be kept is told below
    if {$name ni [stateNames $n]} {
        if {![tell $n [list app state create [dict get $w(look) control] $name]]} return
    }
    if {[useState $n $name save]} {say $n "Kept as \"$name\""}
}

proc ::znbrowser::restoreState {n name} {useState $n $name restore}

proc ::znbrowser::useState {n name action} {
    upvar #0 ::znbrowser::window$n w
    if {![chooseControl $n]} {return 0}
    foreach words [list [list window current $w(name)] [list state current $name] [list state $action]] {
        if {![tell $n $words]} {return 0}
    }
    return 1
}

proc ::znbrowser::forgetState {n name} {
    upvar #0 ::znbrowser::window$n w
    if {[isOpen $n]} {tell $n [list app state delete [dict get $w(look) control] $name]}
}
