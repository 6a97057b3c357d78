# The popup menu of the default browser: rows with the same value, rows that refer to a row, a row by itself. Each opens
# a window of its own, on custom data sources that hold these rows only. It bears the name of the data control, as the
# view and the window do.

namespace eval ::znbrowser::any {
    variable clicked ;# by window: the table, the condition for the row, the column and its text
    variable opened 0 ;# how many windows have been opened
}

proc ::znbrowser::any::MakeMenu {control} {
    if {$control in [Do view popupmenu names]} return ;# a script has one of that name
    Do view popupmenu create $control
    Do view popupmenu onpost ::znbrowser::any::Posting
    foreach {item caption procedure help} {
        same "Filter by this value" ShowSame "The rows of this table with the same value in this column"
        refers "Show what refers to this row" ShowReferring "The rows of other tables that name this one"
        own "Open in a window of its own" ShowRow "This row, with all its columns"
        grid "Open the table by itself" ShowGrid "All rows of this table, with all its columns (Ctrl-Return)"
    } {
        Do view popupmenuitem create $item
        Do view popupmenuitem caption $caption
        Do view popupmenuitem help $help
        Do view popupmenuitem onsingleitem true
        Do view popupmenuitem script ::znbrowser::any::$procedure
    }
    Do view popupmenu connect view
}

# Before the menu is shown: what was clicked, and what there is to show of it.
proc ::znbrowser::any::Posting {window column rows} {
    variable clicked
    set clicked($window) {}
    set enabled {same 0 refers 0 own 0 grid 0}
    if {[TableOfCurrent [::znbrowser::number $window]] ne ""} {dict set enabled grid 1}
    if {[llength $rows] == 1 && ![catch {ReadClicked $window $column [lindex $rows 0]} found]} {
        set clicked($window) $found
        lassign $found table condition field text
        set enabled [list same [expr {$field ne ""}] refers [expr {[Referring [ControlOf $window] $table $condition] ne ""}] own 1 grid 1]
    }
    Do view popupmenu current $window
    foreach {item on} $enabled {
        Do view popupmenuitem current $item
        Do view popupmenuitem enable $on
    }
}

# The table of a row, a condition that only this row meets, the table's column that is shown in a column, and the value
# there, as SQL writes it. An error where nothing but its place tells a row, as in views.
proc ::znbrowser::any::ReadClicked {window column index} {
    set control [ControlOf $window]
    set item [Do app item $window $index 0]
    set table [dict get $item table]
    set condition [dict get $item where]
    if {$condition eq ""} {error "no such row"}
    set known [Described $control $table]
    set field $column
    if {$field ni [lmap one [dict get $known columns] {dict get $one column}]} {set field ""}
    if {$column eq "Name" && $field eq ""} {set field [dict get $known display]}
    set value [expr {$field eq "" ? "NULL" : [SqlLiteralOf $control [Quoted $field]]}]
    set rows [Sql $control "SELECT $value FROM [dict get $known sql] WHERE $condition"]
    if {[llength $rows] != 1} {error "no such row"}
    return [list $table $condition $field [lindex $rows 0 0]]
}

# An expression for a value as SQL writes it.
proc ::znbrowser::any::SqlLiteralOf {control expression} {
    return [expr {[IsOnServer $control] ? "quote_nullable($expression\::text)" : "quote($expression)"}]
}

# The tables with rows that refer to that one, each with the condition for them.
proc ::znbrowser::any::Referring {control table condition} {
    set conditions {}
    set own [SqlName $control $table]
    foreach child [Do app tables $control] {
        foreach reference [dict get $child references] {
            if {[dict get $reference table] ne $table} continue
            foreach from [dict get $reference columns] to [dict get $reference to] {
                set value [Sql $control "SELECT [SqlLiteralOf $control [Quoted $to]] FROM $own WHERE $condition"]
                dict lappend conditions [list [dict get $child table] [dict get $reference reference]] \
                    "[Quoted $from] = [lindex $value 0 0]"
            }
        }
    }
    set referring {}
    dict for {key parts} $conditions {dict lappend referring [lindex $key 0] ([join $parts { AND }])}
    set found {}
    dict for {child parts} $referring {
        set where [join $parts " OR "]
        if {[CountRows $control $child "WHERE $where" 1]} {lappend found $child $where}
    }
    return $found
}

# ---- What the items do

proc ::znbrowser::any::ShowSame {window args} {
    lassign [set ::znbrowser::any::clicked($window)] table condition field value
    ShowRows $window "$table: $field" [list $table "[Quoted $field] IS NOT DISTINCT FROM $value"]
}

proc ::znbrowser::any::ShowReferring {window args} {
    lassign [set ::znbrowser::any::clicked($window)] table condition
    ShowRows $window "refers to $table" [Referring [ControlOf $window] $table $condition]
}

proc ::znbrowser::any::ShowRow {window args} {
    lassign [set ::znbrowser::any::clicked($window)] table condition
    ShowRows $window $table [list $table $condition]
}

proc ::znbrowser::any::ShowGrid {window args} {GridOfCurrent [::znbrowser::number $window]}

# Opens a window on rows of tables: each table with a condition. What is current stays so.
proc ::znbrowser::any::ShowRows {window title conditions} {
    variable opened
    set control [ControlOf $window]
    set name "$control: $title ([incr opened])"
    Do datactrl current $control
    Do view create $name true
    Do view datactrl connect
    Do view column current Name
    Do view column width 240
    set sources {}
    foreach {table condition} $conditions {
        set source "$name: $table"
        MakeSource $control $source $table $condition $table
        Do view folder current $name
        Do view list create $source
        dict set tables $table [ReadColumns $control $table]
        dict set sources $source $table
    }
    Do window create $name
    Do window stripe true
    Do window expandall
    MakeMenu $name
    Do window post true
    FollowTables $name $control $tables $sources
    AddDatabaseMenu $name
    Do window current $window
}
