# The collector bar: what is collected, what is done with it, and what is taken back. Its controls are those of the
# collector's words, which show and enable them; what stands in them is what the host says of the collector.
#
#   collector      what the host said last
#   collecting     whether the bar is shown, for the button that shows it
#   tools          by control its widgets, each with what must be counted so that it can be pressed
#   marks          whether rows have room for the mark of what is collected
#   pick,*         what is chosen in the menus of the bar
#
# What users named is no part of a path, and reaches the manager as a single word.

namespace eval ::znbrowser {
    # Each control with its buttons: name, text, the collector's words, when they can be pressed (a number of which
    # there must be some, or nothing), and a tip.
    variable collectorButtons {
        addremove {
            add Add {selection add} {} "Collects the selected items, too"
            remove Remove {selection remove} collected "Takes the selected items out of the collection"
        }
        optionselector {
            isolate Isolate isolate collected "Shows only what is collected, with what lies above and below it"
            showonly "Show only" showonly collected "Of their kind, shows only the collected items"
            hide Hide {showhide hide} collected "Hides the collected items"
        }
        undo {
            undo Undo undo undo "Takes back the last step: Ctrl-Z"
            restore Redo {undo restore} restore "Does again what was taken back: Ctrl-Shift-Z"
        }
    }
    # The menus: control, name, and the procedure that fills the menu.
    variable collectorMenus {
        entityselector kind fillKinds "What kind of item is collected"
        selection count fillSelection "How many items are collected"
        optionselector option fillOptions "Chooses the action of the button beside it"
        optionselector clicks fillClicks "How clicks on rows collect"
        pnlcolselector named fillNamed "Collections that have a name"
    }
    variable collectorTexts {
        showhide "Show or hide" showonly "Show only" isolate Isolate isolateonly "Isolate only"
        none "Clicks do not collect" select "What is selected is collected" toggle "Clicks collect and let go"
    }
}

# ---- For tests and scripts

# A widget of the bar, by its control and its name there: collectorWidget W undo restore. Empty while there is none.
proc ::znbrowser::collectorWidget {name control widget} {
    set path [set ::znbrowser::window[number $name](path)].collector.${control}_$widget
    return [expr {[winfo exists $path] ? $path : ""}]
}

# ---- Building

# The button that shows and hides the bar.
proc ::znbrowser::buildCollectorButton {n bar} {
    upvar #0 ::znbrowser::window$n w
    array set w {collector {} collecting 0 marks 0 preselected 0}
    ttk::checkbutton $bar.collect -text "Collect" -style Tool.Toolbutton \
        -variable ::znbrowser::window${n}(collecting) -command [list ::znbrowser::showCollector $n]
    giveTip $n $bar.collect "Shows the collector bar: Ctrl-K"
    pack $bar.collect -side right -padx {6 0}
}

proc ::znbrowser::makeCollector {n bar} {
    variable collectorButtons
    variable collectorMenus
    upvar #0 ::znbrowser::window$n w
    ttk::frame $bar -style Browser.TFrame
    set w(tools) {entityselector {} selection {} addremove {} optionselector {} undo {} pnlcolselector {} preselector {} autofit {}}
    dict for {control buttons} $collectorButtons {
        foreach {name text words need tip} $buttons {
            addTool $n $bar $control $name $tip $need ttk::button -text $text -style Tool.TButton \
                -command [list ::znbrowser::collect $n {*}$words]
        }
    }
    addTool $n $bar optionselector perform "Performs the chosen action" {} ttk::button -style Tool.TButton \
        -command [list ::znbrowser::collect $n option perform]
    foreach {control name fill tip} $collectorMenus {
        set menu $bar.${control}_$name.menu
        addTool $n $bar $control $name $tip {} ttk::menubutton -style Tool.TMenubutton -menu $menu
        makeMenu $menu -postcommand [list ::znbrowser::$fill $n $menu]
    }
    foreach {control text tip} {
        preselector "Mark pointed" "Marks the row under the pointer"
        autofit "Autofit" "Scrolls to what is collected after an action"
    } {
        addTool $n $bar $control on $tip {} ttk::checkbutton -text $text -style Bar.TCheckbutton \
            -variable ::znbrowser::window${n}(pick,$control) -command [list ::znbrowser::switchCollector $n $control]
    }
    takeWindowKeys $bar
}

# Adds a widget to a control; `need` is what the host must have counted some of.
proc ::znbrowser::addTool {n bar control name tip need type args} {
    upvar #0 ::znbrowser::window$n w
    set path [$type $bar.${control}_$name {*}$args]
    giveTip $n $path $tip
    dict lappend w(tools) $control $path $need
}

# The hint below the rows: how many are hidden. A click shows all.
proc ::znbrowser::buildHidden {n status} {
    ttk::button $status.hidden -style Link.TButton -command [list ::znbrowser::collect $n showhide all]
    giveTip $n $status.hidden "Shows all items again"
}

# ---- Drawing

# Asks the host, and draws what it says.
proc ::znbrowser::drawCollector {n} {
    upvar #0 ::znbrowser::window$n w
    set w(collector) [host collector $n]
    set w(collecting) [dict get $w(collector) shown]
    set bar $w(path).collector
    if {$w(collecting)} {
        if {![winfo exists $bar]} {makeCollector $n $bar}
        fillCollector $n $bar
        pack $bar -side top -fill x -padx 8 -pady {0 6} -after $w(path).bar
    } elseif {[winfo exists $bar] && [winfo manager $bar] ne ""} {
        if {[string match $bar* [focus -displayof $bar]]} {focus $w(tree)}
        pack forget $bar
    }
    set w(marks) [expr {$w(collecting) || [fromCollector $n collected 0] > 0}]
    drawHidden $n
}

proc ::znbrowser::fromCollector {n key {other ""}} {
    upvar #0 ::znbrowser::window$n w
    if {[dict exists $w(collector) $key]} {return [dict get $w(collector) $key]}
    return $other
}

proc ::znbrowser::fillCollector {n bar} {
    upvar #0 ::znbrowser::window$n w
    set pairs {}
    dict for {control tools} $w(tools) {
        lassign {1 1} shown enabled ;# of what no word hides
        if {[dict exists $w(collector) controls $control]} {lassign [dict get $w(collector) controls $control] shown enabled}
        set gap 14
        foreach {tool need} $tools {
            set usable [expr {$enabled && [dict exists $w(collector) kinds] && ($need eq "" || [fromCollector $n $need 0])}]
            $tool state [expr {$usable ? "!disabled" : "disabled"}]
            if {$shown} {lappend pairs $tool $gap}
            set gap 4
        }
    }
    set kind [fromCollector $n kind]
    if {$kind eq ""} {set kind all}
    set current [fromCollector $n current]
    if {$current eq ""} {set current Collections}
    foreach {tool text} [list entityselector_kind "Kind: [shortened $kind]" \
        selection_count "[grouped [fromCollector $n collected 0]] collected" \
        optionselector_perform [shortened [optionText [fromCollector $n option]]] \
        optionselector_clicks "Clicks: [fromCollector $n click]" \
        pnlcolselector_named [shortened $current]] {
        $bar.$tool configure -text $text
    }
    set w(pick,autofit) [fromCollector $n autofit]
    set w(pick,preselector) [fromCollector $n preselector]
    flowIn $n $bar $pairs
}

proc ::znbrowser::drawHidden {n} {
    upvar #0 ::znbrowser::window$n w
    set hint $w(path).status.hidden
    set hidden [fromCollector $n hidden 0]
    if {$hidden} {
        $hint configure -text "[grouped $hidden] hidden · show all"
        pack $hint -side left -padx {12 0} -after $w(path).status.count
    } else {
        if {[focus -displayof $hint] eq $hint} {focus $w(tree)}
        pack forget $hint
    }
}

proc ::znbrowser::shortened {text} {
    set text [oneLine $text]
    if {[string length $text] > 24} {return "[string range $text 0 22]…"}
    return $text
}

proc ::znbrowser::optionText {name} {
    variable collectorTexts
    if {[dict exists $collectorTexts $name]} {return [dict get $collectorTexts $name]}
    return $name
}

# ---- The menus

# A line for each value, of which the current one is ticked.
#   pairs  values and their texts
#   words  what is called with the window's number and the value when one is chosen
proc ::znbrowser::addChoices {n menu name current pairs words} {
    upvar #0 ::znbrowser::window$n w
    set w(pick,$name) $current
    foreach {value text} $pairs {
        $menu add radiobutton -label [oneLine $text] -value $value -variable ::znbrowser::window${n}(pick,$name) \
            -command [list {*}$words $value]
    }
}

# Of each data source the items are a kind; "none" of them is chosen where all are collected.
proc ::znbrowser::fillKinds {n menu} {
    $menu delete 0 end
    set kind [fromCollector $n kind]
    if {$kind eq ""} {set kind none}
    set pairs {none "All kinds"}
    foreach name [fromCollector $n kinds] {lappend pairs $name $name}
    addChoices $n $menu kind $kind $pairs \
        [list ::znbrowser::event $n OnTkColListItemSelected]
}

proc ::znbrowser::fillSelection {n menu} {
    $menu delete 0 end
    foreach {text words} {
        "Collect only what is selected" {selection set} "Collect what is displayed" {selection set displayed}
        "Collect all" {selection set all} "Add or remove what is selected" {selection toggle} "" ""
        "Collect nothing" {selection clear}
    } {
        if {$text eq ""} {
            $menu add separator
        } else {
            $menu add command -label $text -command [list ::znbrowser::collect $n {*}$words]
        }
    }
}

proc ::znbrowser::fillOptions {n menu} {
    $menu delete 0 end
    set pairs {}
    foreach name [fromCollector $n options] {lappend pairs $name [optionText $name]}
    addChoices $n $menu option [fromCollector $n option] $pairs [list ::znbrowser::event $n OnTkColOptionItemSelected]
}

proc ::znbrowser::fillClicks {n menu} {
    variable collectorTexts
    $menu delete 0 end
    addChoices $n $menu click [fromCollector $n click] [dict filter $collectorTexts key none select toggle] \
        [list ::znbrowser::collect $n optionselector current]
}

proc ::znbrowser::fillNamed {n menu} {
    $menu delete 0 end
    set current [fromCollector $n current]
    set pairs {}
    foreach name [fromCollector $n named] {lappend pairs $name $name}
    addChoices $n $menu named $current $pairs [list ::znbrowser::collect $n pnlcolselector current]
    if {$pairs ne ""} {$menu add separator}
    $menu add command -label "Keep what is collected …" -command [list after idle [list ::znbrowser::keepCollected $n]]
    if {$current eq ""} return
    foreach {text words} [list "Add what is collected to \"[shortened $current]\"" {addtopnlcol} \
        "Delete \"[shortened $current]\"" [list pnlcolselector delete $current]] {
        $menu add command -label $text -command [list ::znbrowser::collect $n {*}$words]
    }
}

# ---- What the user does

# The collector's words, about the window. What is taken back later is how it looks now.
proc ::znbrowser::collect {n args} {
    if {![isOpen $n]} {return 0}
    reportScroll $n
    return [command $n collector {*}$args]
}

# The button was pressed: its variable says what is wanted.
proc ::znbrowser::showCollector {n} {
    upvar #0 ::znbrowser::window$n w
    set wanted $w(collecting)
    if {![collect $n show [expr {$wanted ? "true" : "false"}]] && [isOpen $n]} {set w(collecting) [expr {!$wanted}]}
}

proc ::znbrowser::toggleCollector {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    flush $n
    set w(collecting) [expr {!$w(collecting)}]
    showCollector $n
}

# A key does what the button does, wherever the bar is; where the button does not answer, neither does the key.
proc ::znbrowser::undoStep {n} {travel $n undo}
proc ::znbrowser::restoreStep {n} {travel $n undo restore}
proc ::znbrowser::travel {n args} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    flush $n
    if {[lindex [dict get $w(collector) controls undo] 1]} {collect $n {*}$args}
}

proc ::znbrowser::switchCollector {n control} {
    upvar #0 ::znbrowser::window$n w
    set words [expr {$control eq "autofit" ? {false true} : {off on}}]
    set on $w(pick,$control)
    if {![collect $n $control [lindex $words $on]] && [isOpen $n]} {set w(pick,$control) [expr {!$on}]}
}

# Asks for the name under which to keep what is collected.
proc ::znbrowser::keepCollected {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    for {set number 1} {"Collection $number" in [fromCollector $n named]} {incr number} {}
    lassign [askInput $n "Keep what is collected" Name 5 "Collection $number" {}] done name
    if {$done eq "ok" && [isOpen $n]} {collect $n pnlcolselector create $name}
}

# ---- The row under the pointer

# While the preselector is on, the row under the pointer is marked, and the host hears which one it is.
proc ::znbrowser::preselect {n} {
    upvar #0 ::znbrowser::window$n w
    set slot [expr {[info exists w(hover)] ? $w(hover) : -1}]
    set on [expr {$slot >= 0 && $slot < [llength $w(page)] && [fromCollector $n preselector 0]}]
    if {$slot >= 0} {$w(tree) item state set $w(item,$slot) [expr {$on ? "pointed" : "!pointed"}]}
    set index [expr {$on ? [lindex $w(page) $slot 0] : 0}]
    if {$index == $w(preselected) || [host busy]} return
    set w(preselected) $index
    host preselect $n $index
}
