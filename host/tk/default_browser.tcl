# The default browser: a view and a window on any database, for who has no script of his own.
#
# Every table and view of the database is a list of its rows; a table that refers to itself is a folder with its
# rows nested. Below a row stand the rows that refer to it. The built-in column names a row by the table's own
# display column; the columns that most tables have, and those to tick, are shown; the rest can be switched on.
#
# The names of tables and columns are somebody else's: they go into commands as single words, and into SQL quoted.

namespace eval ::znbrowser::any {
    variable shownColumns 16   ;# what a window shows at first; a text has no scroll bar, and asks for less
    variable columnLimit 60    ;# more are not made
    variable openRows 60       ;# small tables are opened at first, up to so many rows together ...
    variable openTable 30      ;# ... when they have no more than these
    variable openTime 500      ;# milliseconds to find that out, and to look for rows that lie below themselves
    variable mostInCycle 50000 ;# so many rows of a table are shown as lying in a cycle
    variable unsought {}       ;# by data control: the tables for whose cycles there was no time yet
    variable largeFile 1e8     ;# in larger ones nothing is counted or opened at first: it takes too long
}

# Opens a browser on the data control, in a view and a window of its name.
#   columns: how many are shown at first
proc ::znbrowser::any::browse {control {columns {}}} {
    if {$columns eq ""} {set columns $::znbrowser::any::shownColumns}
    Do datactrl current $control
    Do view create $control true
    Do view datactrl connect
    set tables [ReadTables $control]
    set references [ReadReferences $control $tables]
    set nested [FindNested $control $references]
    Do view column current Name
    Do view column width 300
    if {![HasDisplay]} {MakeColumns $tables $columns}
    set cycles [MakeFolders $control $tables $references $nested]
    Do window create $control
    Do window stripe true
    ExpandSmall $control [dict keys $tables] $nested
    if {[HasDisplay]} {MakeMenu $control}
    Do window post true
    if {![HasDisplay]} return
    FollowTables $control $control $tables $cycles
    AddDatabaseMenu $control
    RestoreSort $control
    FindStates $control
    SeekCyclesSoon $control 400
    if {![IsOnServer $control]} {NoteRecent [FileOf $control]}
}

# Whether windows stand on a display: then all scripts of the window are there.
proc ::znbrowser::any::HasDisplay {} {return [llength [info procs ::znbrowser::any::FollowTables]]}

# Runs a command; an answer that is an error becomes a Tcl error.
proc ::znbrowser::any::Do {args} {
    set answer [znbrowsermanager {*}$args]
    if {[regexp {^\[Command\] .*?\n\t\[Error\] (.*)$} $answer -> message]} {
        return -code error -errorcode {ZNBROWSER ERROR} $message
    }
    return $answer
}

proc ::znbrowser::any::Sql {control statement args} {Do app sql $control $statement {*}$args}

proc ::znbrowser::any::Quoted {name} {return "\"[string map {\" \"\"} $name]\""}

# ---- What is in the database -----------------------------------------------------------------------------------

# How a table is written in SQL.
proc ::znbrowser::any::SqlName {control table} {return [dict get [Described $control $table] sql]}

proc ::znbrowser::any::Described {control table} {return [lindex [Do app tables $control $table] 0]}

proc ::znbrowser::any::IsOnServer {control} {return [string match postgres*://* [Do app datactrl file $control]]}

# The tables and views that can be read, now connected to the view: name -> {column type isKey isNamed ...}, where
# isNamed tells that the column names the rows. The others are reported; in a window their rows tell what is wrong.
proc ::znbrowser::any::ReadTables {control} {
    set tables {}
    foreach found [Do app tables $control] {
        set name [dict get $found table]
        if {[catch {
            if {[dict get $found problem] ne ""} {error [dict get $found problem]}
            # A view may compute for long.
            Sql $control "SELECT 1 FROM [dict get $found sql] LIMIT [expr {![dict get $found view]}]"
            Do view datasource connect $name
            dict set tables $name [ColumnsIn $found]
        } message]} {
            if {[HasDisplay] && ![catch {Do view datasource connect $name}]} {
                dict set tables $name {}
            } else {
                puts stderr "znbrowsersh: $control: \"$name\" cannot be shown: $message"
            }
        }
    }
    return $tables
}

proc ::znbrowser::any::ReadColumns {control table} {return [ColumnsIn [Described $control $table]]}

# The type is empty where nothing is declared, as with what a view computes.
proc ::znbrowser::any::ColumnsIn {table} {
    set keys [concat {*}[lmap reference [dict get $table references] {dict get $reference columns}]]
    set found {}
    foreach column [dict get $table columns] {
        set name [dict get $column column]
        lappend found $name [expr {[dict get $column declared] eq "" ? "" : [dict get $column type]}] \
            [expr {[dict get $column key] || $name in $keys}] [string equal $name [dict get $table display]]
    }
    return $found
}

# The references between these tables: a list of {name child parent column to}, of keys of several columns the first.
proc ::znbrowser::any::ReadReferences {control tables} {
    set references {}
    foreach table [Do app tables $control] {
        set child [dict get $table table]
        if {![dict exists $tables $child]} continue
        foreach reference [dict get $table references] {
            set parent [dict get $reference table]
            if {![dict exists $tables $parent]} continue
            lappend references [list [dict get $reference reference] $child $parent \
                [lindex [dict get $reference columns] 0] [lindex [dict get $reference to] 0]]
        }
    }
    return $references
}

# ---- Columns ---------------------------------------------------------------------------------------------------

# A column for each name that columns of the tables have: first those that most tables have, and what can be ticked.
# What is a key in most says little to a reader: it is not shown. Where tables differ in the type of a column, it
# holds texts.
proc ::znbrowser::any::MakeColumns {tables shown} {
    set types [CommonTypes $tables]
    dict for {table columns} $tables {
        foreach {column type isKey isNamed} $columns {
            if {$isNamed} continue
            dict lappend users $column $table
            dict incr ranks $column [expr {$isKey ? -1 : $type eq "bool" ? 2 : 1}]
        }
    }
    if {![info exists ranks]} return
    set ranked [lsort -stride 2 -index 1 -integer -decreasing $ranks]
    set made 0
    foreach {column rank} [lrange $ranked 0 [expr {2 * $::znbrowser::any::columnLimit - 1}]] {
        if {[catch {MakeColumn $column [dict get $types $column] [dict get $users $column]}]} continue
        if {[incr made] > $shown || $rank < 0} {Do view column show false}
    }
}

# For each name of columns the type that those of all tables have in common.
proc ::znbrowser::any::CommonTypes {tables} {
    set types {}
    dict for {table columns} $tables {
        foreach {column type isKey isNamed} $columns {
            if {![dict exists $types $column]} {dict set types $column $type}
            dict set types $column [CommonType [dict get $types $column] $type]
        }
    }
    return $types
}

proc ::znbrowser::any::CommonType {one other} {
    if {$one eq $other} {return $one}
    foreach numbers {integer double} {
        if {$one in [list {} $numbers] && $other in [list {} $numbers]} {return $numbers}
    }
    return [expr {$one in {integer double} && $other in {integer double} ? "double" : "string"}]
}

proc ::znbrowser::any::MakeColumn {name type tables} {
    Do view property create $name
    Do view property type [expr {$type eq "" ? "string" : $type}]
    foreach table $tables {catch {Do view property connect [SourceWord $table] $name}} ;# not every view shows every table
    Do view column create $name
    lassign [dict get {bool {50 center} integer {60 right} double {80 right} string {100 left} {} {80 left}} $type] \
        width justify
    Do view column justify $justify
    Do view column width [expr {max($width, 24 + 8 * min(20, [string length $name]))}]
}

# The name of a source of values: as such the word "script" stands for a Tcl script.
proc ::znbrowser::any::SourceWord {source} {
    if {$source eq "script"} {return {"script"}}
    return $source
}

# ---- Folders and lists -----------------------------------------------------------------------------------------

proc ::znbrowser::any::MakeFolders {control tables references nested} {
    Do view folder current $control
    set counts [expr {[HasDisplay] || ![IsLarge $control]}] ;# a window counts when it has nothing else to do
    Do view folder children count bynumber $counts
    Do view group children [HasKinds $references]
    set below [ByParent $references]
    set cycles {}
    set end [expr {[clock milliseconds] + $::znbrowser::any::openTime}]
    foreach table [dict keys $tables] {
        if {![dict exists $nested $table]} {
            Do view list create $table
            continue
        }
        Do view folder create $table
        Do view folder children count bynumber $counts
        Do view folder tree toplevel $table [lindex [dict get $nested $table] 0]
        foreach link [Reachable $table $below] {Tie $link}
        set key [lindex [dict get $nested $table] 2]
        if {[clock milliseconds] > $end || [catch {RowsInCycle $control $table $key glance} rows]} {
            dict set ::znbrowser::any::unsought $control $table [list $key [dict get $below $table]]
        } elseif {$rows ne ""} {
            dict set cycles [MakeCycle $control $table $rows [dict get $below $table]] $table
        }
        Do view folder current $control
    }
    foreach reference $references {Tie $reference}
    return $cycles
}

# The numbers of the rows of a table that lie below themselves, and of those below these: no row at the top leads to
# them. (A server goes through a list behind NOT IN for each row.) An error where that cannot be found out in time.
#   how: sql, or glance for no longer than a moment
proc ::znbrowser::any::RowsInCycle {control table key how} {
    variable mostInCycle
    lassign $key from to
    set number [dict get [Described $control $table] key]
    set own [SqlName $control $table]
    set rows [Do app $how $control "WITH RECURSIVE reached (k) AS (
            SELECT [Quoted $to] FROM $own AS top WHERE NOT EXISTS (SELECT 1 FROM $own AS above
                WHERE above.[Quoted $to] = top.[Quoted $from])
            UNION SELECT below.[Quoted $to] FROM $own AS below JOIN reached ON below.[Quoted $from] = reached.k)
            SELECT $number FROM $own WHERE [Quoted $to] IN (SELECT [Quoted $to] FROM $own EXCEPT SELECT k FROM reached)
            LIMIT $mostInCycle"]
    return [lmap row $rows {Literal [lindex $row 0]}]
}

# Lists the rows in the current folder, by a data source of their own, whose name is answered.
proc ::znbrowser::any::MakeCycle {control table rows below} {
    set source "$table: in a cycle"
    set number [dict get [Described $control $table] key]
    set caption [expr {[llength $rows] < $::znbrowser::any::mostInCycle ? "in a cycle" : "in a cycle, the first"}]
    MakeSource $control $source $table "$number IN ([join $rows ", "])" $caption
    Do view list create $source
    foreach link $below {Tie [lreplace $link 2 2 $source]}
    return $source
}

# A data source, connected to the view, with the rows of a table that meet a condition, and all its columns.
proc ::znbrowser::any::MakeSource {control source table condition caption} {
    Do datasource simple create $source $caption
    Do datasource simple connect $table
    Do datasource simple criteria create rows
    Do datasource simple criteria code $condition
    Do view datasource connect $source
    set place -1
    foreach {column type isKey isNamed} [ReadColumns $control $table] {
        catch {Do datasource simple property create $column 1 [expr {$type eq "" ? "string" : $type}] [incr place]}
    }
}

# A row's key as SQL writes it.
proc ::znbrowser::any::Literal {key} {
    return [expr {[string is wideinteger -strict $key] ? $key : "'[string map {' ''} $key]'"}]
}

# Lets the rows of the child stand below those that they refer to, where the host knows the reference.
proc ::znbrowser::any::Tie {reference} {
    lassign $reference name child parent
    catch {Do view folder tree parentchild $parent $child $name}
}

proc ::znbrowser::any::IsLarge {control} {
    set bytes [Sql $control [expr {[IsOnServer $control] ? "SELECT pg_database_size(current_database())"
        : "SELECT page_count * page_size FROM pragma_page_count, pragma_page_size"}]]
    return [expr {[lindex $bytes 0 0] > $::znbrowser::any::largeFile}]
}

# The tables that refer to themselves: table -> the reference and a condition for the rows at the top. Where no row
# is at the top, all would be out of sight: such a table counts for flat.
proc ::znbrowser::any::FindNested {control references} {
    set nested {}
    foreach reference $references {
        lassign $reference name child parent column to
        if {$child ne $parent || [dict exists $nested $child]} continue
        set condition "WHERE [Quoted $column] IS NULL"
        if {[CountRows $control $child $condition 1 glance]} {dict set nested $child [list $name $condition [list $column $to]]}
    }
    return $nested
}

# Whether rows may stand below a row along more than one reference.
proc ::znbrowser::any::HasKinds {references} {
    dict for {parent links} [ByParent $references] {
        if {[llength $links] > 1} {return 1}
    }
    return 0
}

proc ::znbrowser::any::ByParent {references} {
    set byParent {}
    foreach reference $references {dict lappend byParent [lindex $reference 2] $reference}
    return $byParent
}

# The references along which rows may stand below those of the table, each once.
proc ::znbrowser::any::Reachable {table below} {
    set links {}
    set seen [dict create $table 1]
    for {set open [list $table]} {[llength $open]} {} {
        set open [lassign $open parent]
        if {![dict exists $below $parent]} continue
        foreach link [dict get $below $parent] {
            lappend links $link
            set child [lindex $link 1]
            if {[dict exists $seen $child]} continue
            dict set seen $child 1
            lappend open $child
        }
    }
    return $links
}

# How many rows of the table meet the condition; one more than `most` when they are more. None, when they cannot
# be read, or with `glance` not in a moment.
proc ::znbrowser::any::CountRows {control table condition most {how sql}} {
    set statement "SELECT count(*) FROM (SELECT 1 FROM [SqlName $control $table] $condition LIMIT $most + 1) AS counted"
    if {[catch {Do app $how $control $statement} rows]} {return 0}
    return [lindex $rows 0 0]
}

# Opens the top, and small tables, so that there is something to see.
proc ::znbrowser::any::ExpandSmall {control tables nested} {
    variable openRows
    variable openTable
    Do view folder expand false
    if {[llength $tables] == 1} {return [ExpandTable $control [lindex $tables 0] $nested]}
    if {[IsLarge $control]} return
    set room $openRows
    set end [expr {[clock milliseconds] + $::znbrowser::any::openTime}]
    foreach table $tables {
        if {[clock milliseconds] > $end} break
        set condition ""
        if {[dict exists $nested $table]} {set condition [lindex [dict get $nested $table] 1]}
        # The values, too: what a view computes may take longer than to find that it has a row.
        set statement "SELECT * FROM [SqlName $control $table] $condition LIMIT $openTable + 1"
        if {[catch {Do app glance $control $statement} rows]} continue
        set count [llength $rows]
        if {$count == 0 || $count > min($openTable, $room)} continue
        incr room -$count
        ExpandTable $control $table $nested
    }
}

proc ::znbrowser::any::ExpandTable {control table nested} {
    if {[dict exists $nested $table]} {
        Do view folder current $table
        Do view folder expand false
        Do view folder current $control
    } else {
        Do view list current $table
        Do view list expand false
    }
}
