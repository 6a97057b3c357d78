# A table by itself: a window with a row of cells for each of its rows, and nothing above or below them.

# Opens the grid of a table; one that is open comes to the front.
proc ::znbrowser::any::OpenGrid {control table} {
    variable followed
    set name "$control: $table"
    if {![catch {::znbrowser::number $name} open]} {
        ::znbrowser::raiseWindow $open
        return $name
    }
    set before [Do window current]
    foreach kind {window view} { # of one that was closed
        if {![catch {Do $kind current $name}]} {Do $kind delete}
    }
    Do datactrl current $control
    MakeGrid $name $control $table
    if {$before ne ""} {catch {Do window current $before}}
    return $name
}

proc ::znbrowser::any::MakeGrid {name control table} {
    Do view create $name true
    Do view datactrl connect
    Do view datasource connect $table
    set columns [ReadColumns $control $table]
    Do view folder current $name
    Do view list create $table
    Do window create $name
    Do app flat $name true
    Do window stripe true
    MakeMenu $name
    Do window post true
    # The column with the tree has nothing to say, unless it stands for one that is called so.
    set ::znbrowser::window[::znbrowser::number $name](flat) \
        [expr {"Name" ni [lmap {column type isKey isNamed} $columns {set column}]}]
    FollowTables $name $control [dict create $table $columns] {}
    AddDatabaseMenu $name
    RestoreSort $name
}
