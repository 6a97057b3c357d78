# Columns: their headers, and what the mouse does to them.

proc ::znbrowser::prepareColumns {n} {
    upvar #0 ::znbrowser::window$n w
    set w(layout) {}
    $w(tree) header dragconfigure -enable yes
    foreach {event detail} {Header invoke ColumnDrag receive} {
        $w(tree) notify install <$event-$detail>
    }
    $w(tree) notify bind $w(tree) <Header-invoke> [list ::znbrowser::sortBy $n %C]
    $w(tree) notify bind $w(tree) <ColumnDrag-receive> [list ::znbrowser::columnDropped $n %C %b]
}

# Makes the columns of the tree those of the view. Those that only look different stay what they are.
proc ::znbrowser::drawColumns {n} {
    upvar #0 ::znbrowser::window$n w
    set w(columns) {}
    if {[dict exists $w(look) columns]} {set w(columns) [dict get $w(look) columns]}
    set shown {}
    set number 0
    foreach column $w(columns) {
        if {[dict get $column shown] && !($w(flat) && [dict get $column tree])} {lappend shown $number}
        incr number
    }
    set layout [lmap column $w(columns) {list [dict get $column name] [dict get $column shown] $w(flat)}]
    if {$layout ne $w(layout)} {
        set w(layout) $layout
        makeColumns $n $shown
    }
    set w(shown) $shown
    foreach number $shown {configureColumn $n $number}
    forgetSlots $n
    refillChooser $n
}

proc ::znbrowser::makeColumns {n shown} {
    upvar #0 ::znbrowser::window$n w
    forgetSlots $n
    set w(sideways) [sideways $n]
    $w(tree) column delete all
    set w(locked) 0
    foreach key [array names w column,*] {unset w($key)}
    foreach key [array names w number,*] {unset w($key)}
    foreach number $shown {
        set w(column,$number) [$w(tree) column create -borderwidth 1 -textpadx {5 5} -textpady 5 \
            -minwidth [scaled 24] -arrowpadx {4 6} -arrowpady {2 0} \
            -arrowimage {znbrowser::image::up up znbrowser::image::down down} \
            -background [list [colour headerHot] active [colour line] pressed [colour header] {}]]
        set w(number,$w(column,$number)) $number
    }
    # What is left of the width belongs to a column of nothing, so that rows are marked all the way.
    set w(filler) [$w(tree) column create -borderwidth 1 -expand yes -minwidth 0 -button no \
        -resize no -background [list [colour header] {}]]
    $w(tree) column configure tail -background [list [colour header] {}] -borderwidth 1
}

proc ::znbrowser::configureColumn {n number} {
    upvar #0 ::znbrowser::window$n w
    set column [lindex $w(columns) $number]
    set arrow [dict get {{} none ascending up descending down} [dict get $column order]]
    $w(tree) column configure $w(column,$number) -text [oneLine [dict get $column caption]] \
        -width [set w(width,$number) [widthOf $n $column]] -arrow $arrow -arrowside right \
        -justify [dict get $column justify] -itemjustify [dict get $column justify] \
        -font [fontOf 0 [dict get $column italic]] -button [dict get $column sorts] \
        -image [expr {[dict get $column filter] eq "" ? "" : "znbrowser::image::search"}]
}

# ---- What the mouse does to headers

# A click on a header sorts by the column, once more the other way round, and a third time not at all.
proc ::znbrowser::sortBy {n treeColumn} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(number,$treeColumn)]} return
    set column [lindex $w(columns) $w(number,$treeColumn)]
    if {![dict get $column sorts]} return
    sortInOrder $n [dict get $column name] \
        [dict get {"" ascending ascending descending descending ""} [dict get $column order]]
}

# A header was dropped in front of another one, or behind the last.
proc ::znbrowser::columnDropped {n treeColumn before} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(number,$treeColumn)]} return
    set from $w(number,$treeColumn)
    set to [expr {[info exists w(number,$before)] ? $w(number,$before) : [llength $w(columns)]}]
    if {$to > $from} {incr to -1}
    if {$to == $from} return
    columnCommand $n [dict get [lindex $w(columns) $from] name] view column move $to
}

# The mouse was let go over the headers: perhaps a column has another width now.
proc ::znbrowser::columnsResized {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    foreach number $w(shown) {
        set width [$w(tree) column cget $w(column,$number) -width]
        if {$width eq ""} {set width [$w(tree) column width $w(column,$number)]}
        set column [lindex $w(columns) $number]
        if {$width == [widthOf $n $column]} continue
        lappend w(sized) [dict get $column name]
        columnCommand $n [dict get $column name] view column width [unscaled $width]
        if {![isOpen $n]} return
    }
}
