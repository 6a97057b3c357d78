# The columns of the default browser follow the table that is looked at: those of the current row's table come first,
# in the table's order, then what the other tables in view have besides. A column is made when its table is first
# looked at; columns of one name are one column.
#
# What is known of a browser stands in the array ::znbrowser::any::followed, by its name:
#
#   NAME,control  the data control
#   NAME,tables   a dictionary: the columns of each table, as `ReadColumns` gives them
#   NAME,types    a dictionary: the type that all columns of a name have in common
#   NAME,made     a dictionary: the columns made, each with the tables whose values it shows
#   NAME,shown    the columns shown last, in order
#   NAME,widths   a dictionary: the widths that they had then
#   NAME,sort     the column by which the rows were sorted then, and in which order
#   NAME,looked   the tables looked at last, the current row's first
#   NAME,sources  a dictionary: other data sources, each with the table whose rows it has
#   NAME,mode     table, or all: then every column of every table is shown

namespace eval ::znbrowser::any {
    variable followed
    array set followed {}
    variable mostColumns 2000 ;# more are not shown at once
}

# Lets the columns of a browser's window follow its tables.
proc ::znbrowser::any::FollowTables {window control tables sources} {
    variable followed
    foreach {key value} [list control $control tables $tables types [CommonTypes $tables] sources $sources made {} \
            shown {} widths {} looked {} sort {} mode table] {
        set followed($window,$key) $value
    }
    Dress $window
    set n [::znbrowser::number $window]
    upvar #0 ::znbrowser::window$n w
    set w(choices) {table "This table's" all "All columns"}
    set w(choice) table
    set w(choose) [list ::znbrowser::any::SetMode $n]
    set w(offered) {}
    lappend w(watchers) ::znbrowser::any::Follow
    ::znbrowser::flush $n
    if {[::znbrowser::isOpen $n]} {Follow $n}
}

# The data control of a browser's window.
proc ::znbrowser::any::ControlOf {window} {
    variable followed
    return $followed($window,control)
}

# In the window of a browser everything looks as it is stored.
proc ::znbrowser::any::Dress {window} {
    set n [::znbrowser::number $window]
    upvar #0 ::znbrowser::window$n w
    set w(bare) 1
    ::znbrowser::forgetSlots $n
    ::znbrowser::changed $n allCells 0
}

proc ::znbrowser::any::SetMode {n mode} {
    variable followed
    upvar #0 ::znbrowser::window$n w
    set followed($w(name),mode) $mode
    Follow $n
}

# ---- What is looked at

# The tables of the rows in view: that of the current row first, else the one with the most rows.
proc ::znbrowser::any::LookedAt {n} {
    variable followed
    upvar #0 ::znbrowser::window$n w
    set counts {}
    foreach row $w(page) {
        set table [TableOf $w(name) [lindex $row 13]]
        if {$table eq "" || [lindex $row 3] ne "item"} continue
        dict incr counts $table
        if {[lindex $row 0] == $w(active)} {dict incr counts $table 100000}
    }
    if {![dict size $counts] && [dict size $followed($w(name),tables)] == 1} {return [dict keys $followed($w(name),tables)]}
    return [dict keys [lsort -stride 2 -index 1 -integer -decreasing $counts]]
}

# The table whose rows a data source has: for rows that stand in two places there are sources of other names.
proc ::znbrowser::any::TableOf {window source} {
    variable followed
    if {[dict exists $followed($window,tables) $source]} {return $source}
    if {[dict exists $followed($window,sources) $source]} {return [dict get $followed($window,sources) $source]}
}

proc ::znbrowser::any::Follow {n} {
    variable followed
    upvar #0 ::znbrowser::window$n w
    set window $w(name)
    set looked [LookedAt $n]
    Learn $n
    if {$looked ne ""} {set followed($window,looked) $looked}
    if {$followed($window,mode) eq "all"} {set looked [dict keys $followed($window,tables)]}
    if {$looked eq ""} {set looked $followed($window,looked)}
    set before [Do window current]
    set failed [catch {ShowColumns $n $window [WantedColumns $window $looked]} message]
    if {$before ne "" && [Do window current] ne $before} {catch {Do window current $before}} ;# what is current stays so
    if {$failed} {return [::znbrowser::say $n $message]}
    if {[llength $w(offered)] >= $::znbrowser::any::mostColumns} {
        ::znbrowser::say $n "Only the first $::znbrowser::any::mostColumns columns are shown"
    }
}

# The columns to be shown for those tables; all that there could be are offered for choice.
proc ::znbrowser::any::WantedColumns {window tables} {
    variable followed
    upvar #0 ::znbrowser::window[::znbrowser::number $window] w
    set wanted {}
    set offered {}
    foreach table $tables {
        set hidden [Remembered $window $table hidden]
        foreach column [OrderedColumns $window $table] {
            if {$column in $offered} continue
            if {[llength $wanted] >= $::znbrowser::any::mostColumns} break
            lappend offered $column
            MakeFollowed $window $column
            if {$column ni $hidden} {lappend wanted $column}
        }
    }
    if {$offered ne $w(offered)} {
        set w(offered) $offered
        ::znbrowser::refillChooser [::znbrowser::number $window]
    }
    return $wanted
}

# The columns of a table in the order in which the user has put them, else in its own. The built-in column shows one
# that is called "Name" already.
proc ::znbrowser::any::OrderedColumns {window table} {
    variable followed
    set flat [set ::znbrowser::window[::znbrowser::number $window](flat)]
    set own {}
    foreach {column type isKey isNamed} [dict get $followed($window,tables) $table] {
        if {$flat || !$isNamed || ![string equal -nocase $column Name]} {lappend own $column}
    }
    set ordered [lsearch -all -inline -exact -not [Remembered $window $table order] ""]
    set ordered [lmap column $ordered {if {$column ni $own} continue; set column}]
    foreach column $own {
        if {$column ni $ordered} {lappend ordered $column}
    }
    return $ordered
}

# ---- Making and showing columns

# Makes a column, unless it is there: for every table that has one of that name.
proc ::znbrowser::any::MakeFollowed {window column} {
    variable followed
    if {[dict exists $followed($window,made) $column]} return
    dict set followed($window,made) $column 1
    set tables {}
    dict for {table columns} $followed($window,tables) {
        foreach {own type isKey isNamed} $columns {
            if {$own eq $column} {lappend tables $table}
        }
    }
    dict for {source table} $followed($window,sources) {
        if {$table in $tables} {lappend tables $source}
    }
    Do window current $window
    set current [Do view column current]
    if {[catch {MakeColumn $column [dict get $followed($window,types) $column] $tables}]} return
    Do view column show false
    foreach table $tables {
        set width [Remembered $window $table width,$column]
        if {$width eq ""} continue
        Do view column width $width
        lappend ::znbrowser::window[::znbrowser::number $window](sized) $column
    }
    if {$current ne ""} {Do view column current $current}
}

# The names of the view's columns, in their order.
proc ::znbrowser::any::ViewColumns {n} {
    return [lmap column [dict get [::znbrowser::host look $n] columns] {dict get $column name}]
}

# Shows exactly these columns, in this order, behind the one with the tree.
proc ::znbrowser::any::ShowColumns {n window wanted} {
    variable followed
    if {$wanted eq $followed($window,shown)} return
    Do window current $window
    set current [Do view column current]
    set known [ViewColumns $n]
    set wanted [lmap column $wanted {if {$column ni $known} continue; set column}]
    foreach column $followed($window,shown) {
        if {$column in $wanted || $column ni $known} continue
        Do view column current $column
        Do view column show false
    }
    set place 0
    foreach column $wanted {
        Do view column current $column
        if {$column ni $followed($window,shown)} {Do view column show true}
        if {[lsearch -exact $known $column] != [incr place]} {
            Do view column move $place
            set known [linsert [lsearch -all -inline -exact -not $known $column] $place $column]
        }
    }
    if {$current ne ""} {catch {Do view column current $current}}
    set followed($window,shown) $wanted
    set followed($window,widths) {}
}

# ---- What the user has changed

# Whatever has another place or width, or is hidden or shown, was changed by the user: it is kept for the tables that
# are looked at.
proc ::znbrowser::any::Learn {n} {
    variable followed
    upvar #0 ::znbrowser::window$n w
    set window $w(name)
    set shown {}
    set widths {}
    set sort {}
    foreach column $w(columns) {
        if {[dict get $column order] ne ""} {set sort [list [dict get $column name] [dict get $column order]]}
        if {[dict get $column tree]} continue
        set name [dict get $column name]
        dict set widths $name [dict get $column width]
        if {[dict get $column shown]} {lappend shown $name}
    }
    if {$followed($window,widths) ne ""} {
        LearnShown $window $shown
        LearnWidths $window $widths
        if {$sort ne $followed($window,sort)} {Remember $window [SortedTable $window] sort $sort}
    }
    set followed($window,sort) $sort
    set followed($window,shown) $shown
    set followed($window,widths) $widths
}

proc ::znbrowser::any::LearnShown {window shown} {
    variable followed
    set before $followed($window,shown)
    if {$shown eq $before} return
    foreach table $followed($window,looked) {
        set own [OrderedColumns $window $table]
        set hidden [Remembered $window $table hidden]
        foreach column $own {
            if {$column in $before && $column ni $shown} {lappend hidden $column}
            if {$column ni $before && $column in $shown} {set hidden [lsearch -all -inline -exact -not $hidden $column]}
        }
        Remember $window $table hidden [lsort -unique $hidden]
        if {[lsort $shown] eq [lsort $before] && $table eq [lindex $followed($window,looked) 0]} {
            set order [lmap column $shown {if {$column ni $own} continue; set column}]
            Remember $window $table order $order
        }
    }
}

proc ::znbrowser::any::LearnWidths {window widths} {
    variable followed
    dict for {column width} $widths {
        if {![dict exists $followed($window,widths) $column]} continue
        if {[dict get $followed($window,widths) $column] == $width} continue
        foreach table $followed($window,looked) {
            if {$column in [OrderedColumns $window $table]} {Remember $window $table width,$column $width}
        }
    }
}

# What a window's order is remembered for: its only table, or all of the database.
proc ::znbrowser::any::SortedTable {window} {
    variable followed
    set tables [dict keys $followed($window,tables)]
    if {[llength $tables] == 1} {return [lindex $tables 0]}
}

# Sorts a window as it was when it was looked at last.
proc ::znbrowser::any::RestoreSort {window} {
    lassign [Remembered $window [SortedTable $window] sort] column order
    if {$column eq ""} return
    Do window current $window
    if {$column ne "Name"} {MakeFollowed $window $column}
    if {$column ni [ViewColumns [::znbrowser::number $window]]} return
    Do view column current $column
    Do view sort $order
}
