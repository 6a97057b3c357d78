# The detail pane: every column of the current row with its whole value, the rows that it refers to, and the rows that
# refer to it, as links.
#
#   details   whether the pane is open
#   detailOf  the row that it shows, as last drawn; empty: it is drawn anew
#   links     what the links do: a list of commands
#   opened    the references whose rows are listed

namespace eval ::znbrowser {
    variable detailBytes 200000   ;# of a text, before the user asks for more
    variable pictureBytes 8000000 ;# of a picture
    variable hexBytes 256         ;# of any other blob
    variable mostLinks 50         ;# rows listed for a reference
}

# The text of the pane, for scripts and tests.
proc ::znbrowser::details {name} {return [set ::znbrowser::window[number $name](path)].details.text}

proc ::znbrowser::toggleDetails {n} {
    upvar #0 ::znbrowser::window$n w
    switchAid $n details [expr {[winfo exists $w(path).details] ? "false" : "true"}]
}

proc ::znbrowser::hideDetails {n} {
    upvar #0 ::znbrowser::window$n w
    set pane $w(path).details
    set w(watchers) [lsearch -all -inline -exact -not $w(watchers) ::znbrowser::followDetails]
    if {[string match $pane* [focus]]} {focus $w(tree)}
    destroy $pane
    forgetPictures $n
}

proc ::znbrowser::showDetails {n} {
    upvar #0 ::znbrowser::window$n w
    set pane $w(path).details
    makeDetails $n $pane
    $w(path).panes add $pane -weight 0
    update idletasks
    set half [expr {[winfo width $w(path).panes] / 2}]
    if {[winfo reqwidth $pane] > $half} {$w(path).panes sashpos 0 $half} ;# both are in sight
    takeWindowKeys $pane
    lappend w(watchers) ::znbrowser::followDetails
    set w(detailOf) ""
    followDetails $n
}

proc ::znbrowser::makeDetails {n pane} {
    upvar #0 ::znbrowser::window$n w
    ttk::frame $pane -style Browser.TFrame
    set text $pane.text
    text $text -width 40 -height 4 -wrap word -state disabled -cursor {} -borderwidth 0 -highlightthickness 1 \
        -font znBrowser00 -padx 10 -pady 6 -takefocus 1 -insertwidth 0 -yscrollcommand [list $pane.y set]
    ttk::scrollbar $pane.y -orient vertical -command [list $text yview]
    grid $text $pane.y -sticky nsew
    grid rowconfigure $pane 0 -weight 1
    grid columnconfigure $pane 0 -weight 1
    styleDetails $text
    $text tag bind link <Enter> [list $text configure -cursor hand2]
    $text tag bind link <Leave> [list $text configure -cursor {}]
    $text tag bind link <ButtonRelease-1> "[list ::znbrowser::clickLink $n]\ %x %y"
    foreach {key command} [list Tab "chooseLink $n 1" Shift-Tab "chooseLink $n -1" <PrevWindow> "chooseLink $n -1" \
            Return "followChosenLink $n" Escape "leaveDetails $n" F4 "toggleDetails $n"] {
        bind $text <$key> "if {\[::znbrowser::$command\] ne {pass}} break"
    }
    foreach {key amount} {Up {-1 units} Down {1 units} Prior {-1 pages} Next {1 pages}} {
        bind $text <$key> "$text yview scroll $amount; break"
    }
}

proc ::znbrowser::styleDetails {text} {
    $text configure -highlightcolor [colour focus] -highlightbackground [colour line] -background [colour paper] \
        -foreground [colour text]
    $text tag configure title -font znBrowser10 -spacing3 4
    $text tag configure name -foreground [colour faint] -font znBrowserSmall -spacing1 6
    $text tag configure null -foreground [colour faint] -font znBrowser01
    $text tag configure hex -font TkFixedFont
    $text tag configure link -foreground [colour accent] -underline 1
    $text tag configure chosen -background [colour chosen]
}

proc ::znbrowser::leaveDetails {n} {
    upvar #0 ::znbrowser::window$n w
    focus $w(tree)
}

# ---- What stands in it

# Follows the current row.
proc ::znbrowser::followDetails {n} {
    upvar #0 ::znbrowser::window$n w
    if {![winfo exists $w(path).details]} return
    set row [rowOfIndex $n $w(active)]
    set shown [list [lindex $row 0] [lindex $row 4] [lindex $row 11]]
    if {$shown eq $w(detailOf)} return
    if {$w(detailOf) eq "" || [lindex $shown 0] ne [lindex $w(detailOf) 0]} {
        set w(opened) {}
        set w(whole) 0
    }
    set w(detailOf) $shown
    drawDetails $n $row
}

proc ::znbrowser::redrawDetails {n} {
    upvar #0 ::znbrowser::window$n w
    if {[isOpen $n] && [winfo exists $w(path).details]} {drawDetails $n [rowOfIndex $n $w(active)]}
}

proc ::znbrowser::drawDetails {n row} {
    upvar #0 ::znbrowser::window$n w
    set text $w(path).details.text
    set at [lindex [$text yview] 0]
    $text configure -state normal
    $text delete 1.0 end
    set w(links) {}
    set w(link) -1
    forgetPictures $n
    if {[lindex $row 3] ne "item"} {
        $text insert end [expr {$row eq "" ? "No row is chosen." : "[lindex $row 4]\n"}] null
    } elseif {[catch {insertItem $n $text [lindex $row 0]} message]} {
        $text insert end $message null
    }
    $text configure -state disabled
    $text yview moveto $at
}

proc ::znbrowser::insertItem {n text index} {
    upvar #0 ::znbrowser::window$n w
    set bytes [expr {$w(whole) ? 268435456 : $::znbrowser::pictureBytes}]
    set item [manager app item $w(name) $index $bytes]
    set references {}
    foreach reference [manager app references $w(name) $index] {
        dict lappend references [lindex [dict get $reference columns] end] $reference
    }
    $text insert end "[dict get $item table]\n" title
    foreach column [dict get $item columns] {
        set name [dict get $column column]
        $text insert end "$name[expr {[dict get $column key] ? "  (key)" : ""}]\n" name
        insertValue $n $text $column
        if {![dict exists $references $name]} continue
        foreach reference [dict get $references $name] {insertReference $n $text $reference}
    }
    insertReferring $n $text $index
}

proc ::znbrowser::insertValue {n text column} {
    upvar #0 ::znbrowser::window$n w
    set value [dict get $column value]
    switch [dict get $column stored] {
        null {$text insert end "NULL\n" null}
        blob {insertBlob $n $text $column}
        default {
            if {$value eq ""} {return [$text insert end "empty text\n" null]}
            set most $::znbrowser::detailBytes
            if {$w(whole) || [string length $value] <= $most} {return [$text insert end "$value\n"]}
            $text insert end "[string range $value 0 $most-1]…\n"
            insertLink $n $text "Show all [grouped [dict get $column size]] bytes" [list ::znbrowser::showWhole $n]
            $text insert end \n
        }
    }
}

proc ::znbrowser::showWhole {n} {
    upvar #0 ::znbrowser::window$n w
    set w(whole) 1
    redrawDetails $n
}

# A blob: what it is, and a picture of it or its first bytes.
proc ::znbrowser::insertBlob {n text column} {
    upvar #0 ::znbrowser::window$n w
    set bytes [dict get $column value]
    $text insert end "[dict get $column text]\n"
    if {[regexp {^(PNG|GIF) } [dict get $column text]] && ![catch {image create photo -data $bytes} picture]} {
        lappend w(pictures) $picture
        set times [expr {max(1, int(ceil([image width $picture] / 300.0)))}]
        if {$times > 1} {
            set small [image create photo]
            $small copy $picture -subsample $times
            lappend w(pictures) $small
            set picture $small
        }
        $text image create end -image $picture -padx 2 -pady 4
        $text insert end \n
        return
    }
    for {set at 0} {$at < [string length $bytes] && $at < $::znbrowser::hexBytes} {incr at 8} {
        set part [string range $bytes $at $at+7]
        binary scan $part H* digits
        set digits [regsub -all {..} $digits {& }]
        $text insert end [format "%04x  %-24s %s\n" $at $digits [regsub -all {[^ -~]} $part .]] hex
    }
    if {[dict get $column size] > $at} {$text insert end "…\n" hex}
}

proc ::znbrowser::forgetPictures {n} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(pictures)]} {image delete {*}$w(pictures)}
    set w(pictures) {}
}

# ---- References

# The row that the value names.
proc ::znbrowser::insertReference {n text reference} {
    set table [dict get $reference table]
    $text insert end "→ "
    insertLink $n $text "$table: [oneLine [dict get $reference text]]" \
        [list ::znbrowser::jumpTo $n $table [dict get $reference row]]
    $text insert end \n
}

# The rows that refer to this one: each reference by itself, with a count, and the rows once they are asked for.
proc ::znbrowser::insertReferring {n text index} {
    upvar #0 ::znbrowser::window$n w
    set references [manager app referring $w(name) $index]
    if {$references eq ""} return
    $text insert end "\nReferred to by\n" title
    foreach entry $references {
        set reference [dict get $entry reference]
        set count [dict get $entry count]
        set open [expr {$reference in $w(opened)}]
        set label "[expr {$open ? "▾" : "▸"}] [dict get $entry table] · [join [dict get $entry columns] ", "]"
        insertLink $n $text "$label ([expr {$count < 0 ? "…" : [grouped $count]}])" \
            [list ::znbrowser::toggleReference $n $reference]
        $text insert end \n
        if {$open} {insertReferringRows $n $text $index $reference $count}
    }
}

proc ::znbrowser::insertReferringRows {n text index reference count} {
    upvar #0 ::znbrowser::window$n w
    set rows [manager app referring $w(name) $index $reference $::znbrowser::mostLinks]
    foreach entry $rows {
        $text insert end "    "
        insertLink $n $text [oneLine [dict get $entry text]] \
            [list ::znbrowser::jumpTo $n [dict get $entry table] [dict get $entry row]]
        $text insert end \n
    }
    if {$count > [llength $rows]} {$text insert end "    … and [grouped [expr {$count - [llength $rows]}]] more\n" null}
}

proc ::znbrowser::toggleReference {n reference} {
    upvar #0 ::znbrowser::window$n w
    set others [lsearch -all -inline -exact -not $w(opened) $reference]
    set w(opened) [expr {$reference in $w(opened) ? $others : [linsert $others end $reference]}]
    set link $w(link)
    redrawDetails $n
    if {$link >= 0} {markLink $n $link}
}

# Goes to the row of a table; where the window does not show it, a window of its own may.
proc ::znbrowser::jumpTo {n table row} {
    upvar #0 ::znbrowser::window$n w
    host begin $n
    set failed [catch {manager app reveal $w(name) $table $row} found]
    finish $n [expr {$failed ? $found : ""}]
    if {![isOpen $n] || $failed} return
    if {!$found} {
        if {[info exists w(elsewhere)] && [{*}$w(elsewhere) $n $table $row]} return
        return [say $n "$table: the row is not among those shown here"]
    }
    flush $n
    selectRows $n OnTkTreeRequestSelectionUpdate $w(active)
}

# ---- Links

proc ::znbrowser::insertLink {n text label command} {
    upvar #0 ::znbrowser::window$n w
    $text insert end $label [list link link[llength $w(links)]]
    lappend w(links) $command
}

proc ::znbrowser::clickLink {n x y} {
    upvar #0 ::znbrowser::window$n w
    set text $w(path).details.text
    foreach tag [$text tag names @$x,$y] {
        if {[regexp {^link(\d+)$} $tag -> link]} {
            markLink $n $link
            return [{*}[lindex $w(links) $link]]
        }
    }
}

# The next link, or the one before; behind the last and before the first the focus goes on to other controls.
proc ::znbrowser::chooseLink {n step} {
    upvar #0 ::znbrowser::window$n w
    set link [expr {$w(link) < 0 && $step < 0 ? [llength $w(links)] - 1 : $w(link) + $step}]
    if {$link < 0 || $link >= [llength $w(links)]} {
        markLink $n -1
        return pass
    }
    markLink $n $link
}

proc ::znbrowser::markLink {n link} {
    upvar #0 ::znbrowser::window$n w
    set text $w(path).details.text
    set w(link) $link
    $text tag remove chosen 1.0 end
    set range [$text tag ranges link$link]
    if {$range eq ""} return
    $text tag add chosen {*}$range
    $text see [lindex $range 0]
}

proc ::znbrowser::followChosenLink {n} {
    upvar #0 ::znbrowser::window$n w
    if {$w(link) >= 0} {{*}[lindex $w(links) $w(link)]}
}
