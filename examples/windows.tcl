# A window on the gearbox, without a display: what a Tk tree sends when its user expands, selects, ticks and drops,
# and what the window shows before and after. Each command is printed with its answer.

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}
interp alias {} zn {} znbrowsermanager

# The Tk index of the first row with that text: what a click on the row would send.
proc row {window text} {
    foreach row [zn app rows $window] {
        if {[dict get $row text] eq $text} {return [dict get $row index]}
    }
    error "no row \"$text\" in the window $window"
}

# The texts of the selected rows.
proc selected {window} {
    return [lmap row [zn app rows $window] {
        if {![dict get $row selected]} continue
        dict get $row text
    }]
}

zn app datactrl create gearbox [file join [file dirname [info script]] models gearbox.db]
zn datactrl current gearbox

puts "--- The view: a tree of assemblies and parts, with names, masses and what is released"
zn view create gearbox
zn view datactrl connect
foreach {property type connections} {
    title string {assembly name part name}
    weight double {part mass}
    finished bool {part released}
} {
    zn view property create $property
    zn view property type $property
    zn view property type $type
    foreach {source field} $connections {zn view property connect $source $field}
}
foreach {column property} {Name title mass weight released finished} {
    if {$column ne "Name"} {zn view column create $column}
    zn view column current $column
    zn view style create ${column}_style
    zn view element create value
    zn view element connect property $property
}
show zn window map create weights
show zn window map type double string
show zn window map record create 0 light
show zn window map record create 1 heavy
show zn window map record names
zn view column current mass
zn view element create class
zn view element connect property weight
show zn view element connect map weights
zn datasource hierarchical create structure false false
zn datasource hierarchical connect parent assembly ""
zn datasource hierarchical connect child assembly assembly.parent_id
zn datasource hierarchical connect child part part.assembly_id
zn view folder current gearbox
zn view folder create Structure
zn view tree create structure

puts "\n--- A window shows the view; posting it fills its parts"
show zn window create main
show zn window frame .browser
show zn window part create tree
show zn window part create buttons
show zn window part names
proc fillPart {path argument} {puts "  $argument goes into $path"}
show zn window part createproc fillPart "a row of buttons"
show zn window post true
show zn window post
show zn app draw main

puts "\n--- The user opens one row after the other"
foreach text {Structure structure {Gearbox GX6} Housing {Rear cover} {Gearbox mount}} {
    show zn OnTkTreeRequestExpand main [row main $text]
}
show zn app draw main

puts "\n--- An index that does not exist is refused, as is a window"
show zn OnTkTreeRequestExpand main 99999
show zn OnTkTreeRequestExpand attic 1

puts "\n--- Selecting rows; a listener hears of it"
proc tellSelection {window event} {puts "  $window: $event, now [selected $window]"}
show zn window listener connect tellSelection
show zn OnTkTreeRequestSelect main [row main "Mount bracket"] [row main "Mount bush"]
show zn OnTkTreeSelectionChangeFinished main
show zn OnTkTreeRequestDeselect main [row main "Mount bush"]
show zn OnTkTreeSelectionChangeFinished main
show zn window listener disconnect tellSelection
show zn datasource simple current part
show zn view property current title
show zn view dataitem selected

puts "\n--- Ticking a box writes to the database"
set released "SELECT released FROM part WHERE name = 'Mount bush'"
puts "released: [zn app sql gearbox $released]"
show zn OnTkTreeCheckBoxClick main released value [row main "Mount bush"] off
puts "released: [zn app sql gearbox $released]"

puts "\n--- Dropping rows moves them, where a data reference allows it"
show zn OnTkTreeSetDropItem main [row main Housing] [row main "Mount bush"] [row main "Mount bracket"]
show zn OnTkTreeSetDropItem main [row main "Mount bolt M12x70"] [row main "Mount bush"]
show zn app draw main

puts "\n--- Searching finds what is not expanded, too"
show zn window find names
show zn window find property add title
show zn window find property current title
show zn window find property criterion value {Key \d}
show zn window find property criterion useregexp true
show zn window find type next
foreach search {first second} {
    show zn window find perform
    puts "selected: [selected main]"
}
show zn window find type all
show zn window find perform
puts "selected: [selected main]"
show zn window find property criterion value "no such part"
show zn window find perform

puts "\n--- A callback: what is selected here selects its children in another window"
show zn window create children
show zn window expandall
show zn window current main
show zn window part current tree
show zn window part event names
show zn window part event current SELECTION_CHANGED
show zn window part event callback create follow WINDOW_OPERATION
show zn window part event callback window children
show zn window part event callback operation TREE_AREA_SELECT_CHILDREN_ITEMS
show zn OnTkTreeRequestSelectionUpdate main [row main "Gearbox mount"]
show zn OnTkTreeSelectionChangeFinished main
puts "selected there: [selected children]"

puts "\n--- All closed again"
show zn window part current toplevel
show zn window part info
show zn window collapseall
show zn app draw main
show zn window post false
show zn window delete
show zn window names
