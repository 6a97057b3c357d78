# The menu of a header: sorting by its column, and filtering by the values in it.

proc ::znbrowser::headerMenu {n number} {
    upvar #0 ::znbrowser::window$n w
    set menu $w(path).header
    destroy $menu
    makeMenu $menu
    set column [lindex $w(columns) $number]
    fillHeaderMenu $n $menu $column
    $menu add separator
    $menu add command -label "Columns…" -command [list ::znbrowser::openChooser $n]
    return $menu
}

# What is chosen now is ticked.
proc ::znbrowser::fillHeaderMenu {n menu column} {
    upvar #0 ::znbrowser::window$n w
    set w(header,order) [dict get $column order]
    set w(header,natural) [dict get $column natural]
    set w(header,filter) [lindex [dict get $column filter] 0]
    set name [dict get $column name]
    set mine ::znbrowser::window${n}(header,
    set state [expr {[dict get $column sorts] ? "normal" : "disabled"}]
    foreach {label order} {"Sort ascending" ascending "Sort descending" descending "Do not sort" ""} {
        $menu add radiobutton -label $label -variable ${mine}order) -value $order -state $state \
            -command [list ::znbrowser::sortInOrder $n $name $order]
    }
    $menu add checkbutton -label "Natural order: row 2 before row 10" -variable ${mine}natural) -state $state \
        -command [list ::znbrowser::sortNaturally $n $name]
    $menu add separator
    foreach {label kind} {"Contains…" contains "Equals…" equals "Between…" between "Is null" null "No filter" ""} {
        $menu add radiobutton -label $label -variable ${mine}filter) -value $kind \
            -command [list ::znbrowser::askFilter $n $name $kind]
    }
}

# ---- Sorting

proc ::znbrowser::sortInOrder {n name order} {
    if {$order eq ""} {return [columnCommand $n $name view sort disabled]}
    columnCommand $n $name view sort enabled
    if {[isOpen $n]} {columnCommand $n $name view sort $order}
}

proc ::znbrowser::sortNaturally {n name} {
    upvar #0 ::znbrowser::window$n w
    command $n app sort natural [dict get $w(look) view] $name [expr {$w(header,natural) ? "true" : "false"}]
}

# ---- Filtering

# Asks for the values of a filter, unless it needs none, and sets it.
proc ::znbrowser::askFilter {n name kind} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    lassign [columnFilter $n $name] before low high
    if {$before ne $kind} {set low [set high ""]}
    set fields [dict get {contains {Contains} equals {Equals} between {From To} null {} "" {}} $kind]
    set values {}
    if {$fields ne ""} {
        set asked {}
        foreach field $fields value [lrange [list $low $high] 0 [llength $fields]-1] {
            lappend asked $field 5 $value {} ;# a text, whichever
        }
        set answer [askInput $n $name {*}$asked]
        if {![isOpen $n] || [lindex $answer 0] ne "ok"} return
        set values [lrange $answer 1 end]
    }
    filterColumn $n $name [expr {$kind eq "" ? "none" : $kind}] {*}$values
}

# The filter of a column, as the words that set it.
proc ::znbrowser::columnFilter {n name} {
    upvar #0 ::znbrowser::window$n w
    foreach column $w(columns) {
        if {[dict get $column name] eq $name} {return [dict get $column filter]}
    }
}

proc ::znbrowser::filterColumn {n name args} {
    upvar #0 ::znbrowser::window$n w
    set w(first) 0
    set w(page) {}
    command $n app filter column [dict get $w(look) view] $name {*}$args
    if {[isOpen $n]} {flush $n}
    if {[isOpen $n] && ![filtered $n]} {showSelected $n}
}

proc ::znbrowser::filtered {n} {
    upvar #0 ::znbrowser::window$n w
    return [expr {[dict exists $w(look) filtered] && [dict get $w(look) filtered]}]
}

# Shows all rows again.
proc ::znbrowser::clearFilters {n} {
    upvar #0 ::znbrowser::window$n w
    foreach column $w(columns) {
        if {[dict get $column filter] ne "" && [isOpen $n]} {
            command $n app filter column [dict get $w(look) view] [dict get $column name] none
        }
    }
    if {[isOpen $n]} {clearSearch $n}
    if {[isOpen $n]} {showSelected $n}
}
