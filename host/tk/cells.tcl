# Drawing rows: each cell has a style of the tree widget, made for the kinds of elements that it shows.

# What every style is made of. More elements follow as cells need them.
proc ::znbrowser::prepareCells {n} {
    upvar #0 ::znbrowser::window$n w
    foreach state {chosen odd drop hover current expanded expandable pointed collected marks} {$w(tree) state define $state}
    $w(tree) element create back rect -outlinewidth 1 -open we
    $w(tree) element create mark text -text "●" -font znBrowser00 -draw {yes collected no {}}
    $w(tree) element create indent rect -height 1
    $w(tree) element create expander image -image \
        [list znbrowser::image::opened expanded znbrowser::image::closed expandable]
    $w(tree) element create icon image
    set w(elements) {}
    set w(styles) {}
    styleTree $n
}

# Colours and sizes, of the theme and the zoom.
proc ::znbrowser::styleTree {n} {
    upvar #0 ::znbrowser::window$n w
    $w(tree) configure -background [colour paper] -headerforeground [colour text] -itemheight [rowHeight] \
        -yscrollincrement [rowHeight] -highlightbackground [colour line] -highlightcolor [colour accent]
    $w(tree) element configure back -outline [list [colour accent] pointed [colour focus] current]
    $w(tree) element configure mark -fill [colour accent]
    $w(tree) element configure expander -width [scaled 16]
    foreach name $w(elements) {styleElement $n $name}
}

proc ::znbrowser::styleElement {n name} {
    upvar #0 ::znbrowser::window$n w
    switch [$w(tree) element type $name] {
        text {
            set fill [colour [expr {[string match null* $name] ? "faint" : "text"}]]
            $w(tree) element configure $name -fill [fillOf $n $fill]
        }
        rect {
            set colours [expr {[string match found* $name] ? {found found} : {button buttonLine}}]
            lassign [lmap colour $colours {colour $colour}] fill outline
            $w(tree) element configure $name -fill $fill -outline $outline
        }
    }
}

# What stands before the elements of a cell: in the column of the tree what shows the depth of the row; where that column
# is left out, the first one has the mark of what is collected.
proc ::znbrowser::leadOf {n number inTree} {
    upvar #0 ::znbrowser::window$n w
    if {$inTree} {return {mark indent expander}}
    return [expr {$w(flat) && $number == [lindex $w(shown) 0] ? "mark" : ""}]
}

# The style for elements of these kinds, with what stands before them.
proc ::znbrowser::styleFor {n lead kinds} {
    upvar #0 ::znbrowser::window$n w
    set key [list $lead $kinds]
    if {[dict exists $w(styles) $key]} {return [dict get $w(styles) $key]}
    set style style[dict size $w(styles)]
    dict set w(styles) $key $style
    $w(tree) style create $style
    set parts [list back {*}$lead]
    if {[lindex $kinds 0] eq "image"} {lappend parts icon}
    set place 0
    foreach kind $kinds {
        lappend parts {*}[elementsFor $n $kind $place]
        incr place
    }
    $w(tree) style elements $style $parts
    layoutStyle $n $style $parts
    return $style
}

# The elements of the tree widget that draw the element at that place of a cell.
proc ::znbrowser::elementsFor {n kind place} {
    upvar #0 ::znbrowser::window$n w
    # A button is a rectangle around a text; in a text that was found a rectangle is behind the part that matched.
    set types [dict get {text text why text null text icon image disabled image check image button {rect text} image {}
        found {text rect text text}} $kind]
    set suffixes [expr {$kind eq "found" ? {{} Mark Match Rest} : {{} t}}]
    set names [lmap type $types suffix [lrange $suffixes 0 [llength $types]-1] {string cat $kind $place $suffix}]
    foreach name $names type $types {
        if {$name in $w(elements)} continue
        lappend w(elements) $name
        $w(tree) element create $name $type
        if {$type eq "text"} {
            $w(tree) element configure $name -lines 1 -wrap none -font znBrowser00
        } elseif {$type eq "rect"} {
            $w(tree) element configure $name -outlinewidth 1 -rx [expr {$kind eq "button" ? 3 : 0}]
        }
        styleElement $n $name
    }
    return $names
}

proc ::znbrowser::layoutStyle {n style parts} {
    upvar #0 ::znbrowser::window$n w
    foreach part $parts {
        switch -regexp $part {
            {^back$} {$w(tree) style layout $style back -detach yes -iexpand xy}
            {^mark$} {$w(tree) style layout $style mark -visible {yes marks no {}} -padx {4 0} -expand ns}
            {^indent$} {$w(tree) style layout $style indent -padx [list [scaled 4] 0]}
            {^expander$} {
                # A text without an icon begins where that of the row above does, beside whose icon it stands.
                set gap [expr {"icon" in $parts ? 0 : max(0, [scaled 16] + 6 - [scaled 18])}]
                $w(tree) style layout $style expander -padx [list 0 [expr {2 + $gap}]] -expand ns
            }
            {^button\d+$} {
                $w(tree) style layout $style $part -union ${part}t -ipadx 8 -ipady 1 -padx 4
            }
            {^button\d+t$} {$w(tree) style layout $style $part -expand ns -squeeze x}
            {^found\d+$} {$w(tree) style layout $style $part -padx {4 0} -expand ns}
            {^found\d+Mark$} {$w(tree) style layout $style $part -union [string map {Mark Match} $part]}
            {^found\d+Match$} {$w(tree) style layout $style $part -expand ns}
            {^found\d+Rest$} {$w(tree) style layout $style $part -padx {0 4} -expand ns -squeeze x}
            {^why} {
                $w(tree) style layout $style $part -padx 4 -expand nes -squeeze x ;# on the left, whatever the column does
            }
            {^(text|null)} {$w(tree) style layout $style $part -padx 4 -expand ns -squeeze x}
            default {$w(tree) style layout $style $part -padx 3 -expand ns}
        }
    }
}

# ---- Rows

# Draws a row in a slot. What a slot shows already is not drawn again.
proc ::znbrowser::drawRow {n slot row} {
    upvar #0 ::znbrowser::window$n w
    set odd [expr {($w(first) + $slot) % 2}]
    set drawn [list $row $odd [expr {[lindex $row 0] == $w(active)}] $w(marks) $w(indents) $w(visible)]
    if {[info exists w(drawn,$slot)] && $w(drawn,$slot) eq $drawn} return
    if {![info exists w(item,$slot)]} {
        set w(item,$slot) [$w(tree) item create -parent root -visible yes]
        set w(slot,$w(item,$slot)) $slot
    } elseif {![info exists w(drawn,$slot)]} {
        $w(tree) item configure $w(item,$slot) -visible yes
    }
    set w(drawn,$slot) $drawn
    drawState $n $slot $row $odd
    $w(tree) item style set $w(item,$slot) $w(filler) [styleFor $n {} {}]
    lassign $row index parent depth kind
    set cells [lindex $row 11]
    set isNote [expr {[lindex $row 10] eq "note"}]
    spanRow $n $slot $isNote
    foreach number $w(visible) {
        set inTree [dict get [lindex $w(columns) $number] tree]
        if {$kind ne "item"} {
            drawContainer $n $slot $number [expr {$inTree || ($w(flat) && $number == [lindex $w(shown) 0])}] $row
        } else {
            set cell [lsearch -exact -integer -inline -index 0 $cells $number]
            drawCell $n $slot $number $inTree $depth [lrange $cell 1 end]
        }
    }
    if {$isNote} {drawNote $n $slot [lindex $row 4]}
}

# A row that says why something cannot be read has the whole width for it.
proc ::znbrowser::spanRow {n slot spans} {
    upvar #0 ::znbrowser::window$n w
    if {$spans == [info exists w(span,$slot)]} return
    $w(tree) item span $w(item,$slot) [wideColumn $n] [expr {$spans ? [llength $w(shown)] + 1 - $w(locked) : 1}]
    if {$spans} {set w(span,$slot) 1} else {unset w(span,$slot)}
}

proc ::znbrowser::drawState {n slot row odd} {
    upvar #0 ::znbrowser::window$n w
    set expanded [lindex $row 5]
    set states {}
    set expandable [expr {!$expanded && [lindex $row 7]}]
    set current [expr {[lindex $row 0] == $w(active)}]
    foreach {state on} [list chosen [lindex $row 6] odd $odd expanded $expanded expandable $expandable \
            current $current collected [lindex $row 12] marks $w(marks)] {
        lappend states [expr {$on ? $state : "!$state"}]
    }
    $w(tree) item state set $w(item,$slot) $states
}

# A folder, tree or list: its name and icon, in the column of the tree.
proc ::znbrowser::drawContainer {n slot number inTree row} {
    upvar #0 ::znbrowser::window$n w
    if {!$inTree} {
        setStyle $n $slot $number [styleFor $n {} {}]
        return
    }
    lassign $row index parent depth kind text expanded selected hasRows bold italic icon
    set item $w(item,$slot)
    set column $w(column,$number)
    set kinds [expr {$icon ne "note" ? {image text} : $w(locked) ? {image button} : {image button text}}]
    setStyle $n $slot $number [styleFor $n [leadOf $n $number 1] $kinds]
    $w(tree) item element configure $item $column indent -width [indentOf $n $depth]
    $w(tree) item element configure $item $column icon -image [imageNamed $icon]
    if {$icon eq "note"} {return [$w(tree) item element configure $item $column button1t -text "Retry"]}
    $w(tree) item element configure $item $column text1 -text [oneLine $text] -fill {} \
        -font [fontOf $bold $italic]
}

# Why something cannot be read, behind the button: in a column of its own where that of the tree stays.
proc ::znbrowser::drawNote {n slot text} {
    upvar #0 ::znbrowser::window$n w
    set column [wideColumn $n]
    if {$w(locked)} {setStyle $n $slot [lindex $w(shown) 1] [styleFor $n {} why]}
    $w(tree) item element configure $w(item,$slot) $column [expr {$w(locked) ? "why0" : "text2"}] -text "  [oneLine $text]" \
        -fill [fillOf $n [colour problem]]
}

# A cell of an item: the elements that it shows, each a list of kind, text, colour and name.
proc ::znbrowser::drawCell {n slot number inTree depth elements} {
    upvar #0 ::znbrowser::window$n w
    set item $w(item,$slot)
    set column $w(column,$number)
    set italic [dict get [lindex $w(columns) $number] italic]
    if {!$w(bare)} {set elements [lsearch -all -inline -not -exact -index 0 $elements null]}
    set elements [lmap element $elements {markFound $n $element $inTree}]
    setStyle $n $slot $number [styleFor $n [leadOf $n $number $inTree] [lmap element $elements {lindex $element 0}]]
    if {$inTree} {$w(tree) item element configure $item $column indent -width [indentOf $n $depth]}
    set place 0
    foreach element $elements {
        lassign $element kind text colour
        switch $kind {
            text {
                $w(tree) item element configure $item $column text$place \
                    -text [fitNumber $n $number $inTree [oneLine $text]] \
                    -font [fontOf 0 $italic] -fill [textFill $n $colour]
            }
            found {drawFound $n $item $column $place $element $italic}
            null {
                $w(tree) item element configure $item $column null$place -text NULL -font [fontOf 0 1]
            }
            button {
                $w(tree) item element configure $item $column button${place}t -text [oneLine $text]
            }
            check {$w(tree) item element configure $item $column check$place -image [checkImage $text]}
            icon - disabled {
                $w(tree) item element configure $item $column $kind$place -image \
                    [fileImage $text [expr {$kind eq "disabled"}]]
            }
        }
        incr place
    }
}

# A text in the three parts before, in and behind what the filter found there.
proc ::znbrowser::drawFound {n item column place element italic} {
    upvar #0 ::znbrowser::window$n w
    lassign $element kind text colour name found
    lassign $found first last
    set text [oneLine $text]
    foreach {part from to} [list {} 0 $first-1 Match $first $last Rest $last+1 end] {
        $w(tree) item element configure $item $column found$place$part \
            -text [string range $text $from $to] -font [fontOf 0 $italic] -fill [textFill $n $colour]
    }
}

# An element of a cell; a text in which the filter found something is of another kind, and knows where.
proc ::znbrowser::markFound {n element inTree} {
    lassign $element kind text colour name
    if {$kind ne "text"} {return $element}
    set place [foundIn $n $text $inTree]
    if {$place eq "" || [lindex $place 1] > 999} {return $element}
    return [list found $text $colour $name $place]
}

# What a text of a colour that a user named is drawn with; nothing, when Tk knows none of that name.
proc ::znbrowser::textFill {n colour} {
    set colour [colourOr $colour ""]
    return [expr {$colour eq "" ? "" : [fillOf $n $colour]}]
}

# The colour, or where it could not be read on a row in that state one like it. What a script chose is right for a light
# row, whatever it is.
proc ::znbrowser::fillOf {n colour} {
    upvar #0 ::znbrowser::window$n w
    variable theme
    if {$theme eq "light"} {return [list $colour]}
    set fill {}
    foreach state {chosen drop hover} {lappend fill [legibleOn $colour [colour $state]] $state}
    if {[dict get $w(look) stripes]} {lappend fill [legibleOn $colour [colour stripe]] odd}
    return [lappend fill [legibleOn $colour $w(paper)] {}]
}

proc ::znbrowser::setStyle {n slot number style} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(style,$slot,$number)] && $w(style,$slot,$number) eq $style} return
    set w(style,$slot,$number) $style
    $w(tree) item style set $w(item,$slot) $w(column,$number) $style
}

# A text as one line; more of it than any screen has room for is not looked at.
proc ::znbrowser::oneLine {text} {
    return [string map {\n " " \r " " \t " " \v " " \f " "} [string range $text 0 999]]
}

# Nothing is drawn from that slot on.
proc ::znbrowser::clearSlots {n slot} {
    upvar #0 ::znbrowser::window$n w
    for {} {[info exists w(item,$slot)]} {incr slot} {
        if {![info exists w(drawn,$slot)]} continue
        unset w(drawn,$slot)
        $w(tree) item configure $w(item,$slot) -visible no
    }
}

# The columns are others: every slot is drawn anew.
proc ::znbrowser::forgetSlots {n} {
    upvar #0 ::znbrowser::window$n w
    foreach slot [array names w drawn,*] {unset w($slot)}
    foreach style [array names w style,*] {unset w($style)}
    foreach slot [array names w span,*] {spanRow $n [lindex [split $slot ,] 1] 0}
    foreach key [array names w item,*] {$w(tree) item configure $w($key) -visible no}
}

# The tree widget's name of the element at that place of a cell.
proc ::znbrowser::elementNamed {name tkIndex column place} {
    set n [number $name]
    upvar #0 ::znbrowser::window$n w
    if {![string is integer $place]} {return $place}
    foreach cell [lindex [lindex $w(page) [slotOf $n $tkIndex]] 11] {
        if {[dict get [lindex $w(columns) [lindex $cell 0]] name] eq $column} {
            set kind [lindex [markFound $n [lindex $cell [expr {$place + 1}]] [dict get [lindex $w(columns) [lindex $cell 0]] tree]] 0]
            return $kind[expr {$kind eq "found" ? "${place}Match" : $place}]
        }
    }
    return text1
}
