# What the tests of windows on a display share: a gearbox in miniature in a window, and a mouse and a keyboard.
source [file join [file dirname [info script]] .. rows row_testing.tcl]

# The model's view "V" in the window "W", posted, with columns to tick, to press and to sort by.
proc startWindow {} {
    start
    foreach {column type} {mass double visible bool} {addColumn $column $type}
    zn view column create drill button
    zn view operation create drill
    zn view operation script {lappend ::notes drilled}
    zn view column current Name
    set ::notes {}
    zn window post true
    update
    wm geometry [winfo toplevel [znbrowser::tree W]] 900x600+0+0
    raise [winfo toplevel [znbrowser::tree W]]
    update
    zn app sql model {update part set visible = true, assembly_id = assembly_id}
}

proc closeWindow {} {
    zn window current W
    zn window post false
    update
}

# The same with the tree open down to the parts.
proc startExpanded {} {
    startWindow
    expand tree structure box input output
    update
}

# Waits until the condition is true; an error when it does not become so.
proc await {condition {milliseconds 10000}} {
    set end [expr {[clock milliseconds] + $milliseconds}]
    while {![uplevel 1 [list expr $condition]]} {
        if {[clock milliseconds] > $end} {error "waited in vain for: $condition"}
        after 10 {set ::tick 1}
        vwait ::tick
    }
}

# The middle of a row, of its cell in a column, or of an element there: x and y in the tree.
proc placeOf {text args} {
    set box [znbrowser::boxOf W [index $text] {*}$args]
    if {[llength $box] != 4} {error "the row $text {$args} is not on the screen"}
    lassign $box x1 y1 x2 y2
    return [list [expr {($x1 + $x2) / 2}] [expr {($y1 + $y2) / 2}]]
}

proc mouseOrKey {event args} {
    event generate [znbrowser::tree W] $event {*}$args
    update
}
# Presses a button and lets it go; clicks at one place are no double click, unless asked for.
proc clickAt {x y {modifier ""} {button 1} {times 1}} {
    incr ::mouseTime 10000
    mouseOrKey <Motion> -x $x -y $y
    foreach time [lrepeat $times $::mouseTime] {
        mouseOrKey <${modifier}ButtonPress-$button> -x $x -y $y -time $time
        mouseOrKey <${modifier}ButtonRelease-$button> -x $x -y $y -time $time
    }
}
proc click {place {modifier ""} {button 1}} {clickAt {*}[placeOf {*}$place] $modifier $button}
# A key, perhaps with modifiers: Down, Shift-Down.
proc key {name} {
    focus -force [znbrowser::tree W]
    set modifiers [string range $name 0 [string last - $name]]
    set name [string range $name [string length $modifiers] end]
    foreach event {KeyPress KeyRelease} {mouseOrKey <$modifiers$event-$name>}
}

# The host calls made to the window while the script runs: each operation, and what it is called with.
proc calls {script} {
    return [lmap call [uplevel 1 [list journalOf znIBrowserWindowAccess::* $script]] {
        if {![regexp {^znIBrowserWindowAccess::(Request\w+|Selection\w+|CheckBoxClick|WindowButtonClick|RightHandClick|SetDropItem|P\w+)$} \
            [lindex $call 0] -> operation]} continue
        list $operation {*}[lrange $call 1 end]
    }]
}

# Drags the row, and all that are selected with it, onto another one.
proc drag {text onto} {
    lassign [placeOf $text Name] x y
    lassign [placeOf $onto Name] toX toY
    mouseOrKey <ButtonPress-1> -x $x -y $y
    foreach part {0.3 0.7 1.0} {
        mouseOrKey <Button1-Motion> -x [expr {int($x + $part * ($toX - $x))}] -y [expr {int($y + $part * ($toY - $y))}]
    }
    mouseOrKey <ButtonRelease-1> -x $toX -y $toY
}

# The header of a column: its box, its text, a click on it.
proc headerBox {column} {[znbrowser::tree W] header bbox 0 [znbrowser::columnAt W $column]}
proc headerText {column} {[znbrowser::tree W] column cget [znbrowser::columnAt W $column] -text}
proc clickHeader {column} {
    lassign [headerBox $column] x1 y1 x2 y2
    clickAt [expr {($x1 + $x2) / 2}] [expr {($y1 + $y2) / 2}]
}

# Types a text into a field.
proc typeInto {field text} {
    focus -force $field
    foreach character [split $text ""] {
        event generate $field <KeyPress> -keysym $character
        event generate $field <KeyRelease> -keysym $character
    }
    update
}

proc menuLabels {menu} {
    set labels {}
    for {set entry 0} {$entry <= [$menu index end]} {incr entry} {
        if {[$menu type $entry] ne "separator"} {lappend labels [$menu entrycget $entry -label]}
    }
    return $labels
}

# Errors in what the window does by itself.
set errors {}
proc bgerror {message} {lappend ::errors $::errorInfo}
