# A complete view of the gearbox: columns, typed properties, styles, folders with a tree and lists, a selection,
# sorting, filters, operations, and a second view that connects its data sources itself.
# Each command is printed with its answer.

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}
interp alias {} zn {} znbrowsermanager

zn app datactrl create gearbox [file join [file dirname [info script]] models gearbox.db]
zn datactrl current gearbox

puts "--- A view on the gearbox"
show zn view create model
show zn view datactrl connect

puts "\n--- Columns: one is built in, the others are of a kind each"
show zn view column create mass
show zn view column create released button
show zn view column create kind icon feature.png
show zn view column names
show zn view column justify center
show zn view column width 40
show zn view column move 1
show zn view column current mass
show zn view column caption "Mass (kg)"
show zn view column justify right
show zn view column justify middle
show zn view column names

puts "\n--- Properties have a type, and a connection for each data source"
foreach {property type connections} {
    title string {assembly name part name feature name}
    weight double {part mass}
    pieces integer {part quantity}
    done bool {part released}
} {
    zn view property create $property
    zn view property type $type
    foreach {source field} $connections {show zn view property connect $source $field}
}
show zn view property names
show zn view property current title
show zn view property connected

puts "\n--- The type of what is connected must agree"
show zn view property current weight
show zn view property connect feature kind

puts "\n--- Styles: their elements show a property, or translate it by a GUI map"
foreach {column style property} {Name titled title mass weighed weight released state done} {
    zn view column current $column
    show zn view style create $style
    show zn view element create text "the value as text"
    zn view element connect property $property
}
show zn window map create states
show zn window map type bool string
show zn window map record create true released
show zn window map record create false blocked
show zn view element create state "the value in words"
show zn view element connect map states
show zn view element names
show zn element description

puts "\n--- Folders, three levels deep"
show zn view folder current model
show zn view folder create Structure
show zn view folder current model
show zn view folder create Lists
show zn view folder style true
show zn view group children true
show zn view folder create Purchasing
show zn view folder create Heavy
puts "A new folder is grouped and styled as its parent: [zn view group children], [zn view folder style]"
show zn view folder current model
show zn view folder current Lists
show zn view folder current Purchasing
show zn view folder children
show zn view folder current model
show zn view folder children
show zn view folder delete Lists

puts "\n--- A tree: assemblies in assemblies, their parts, and the parts' features"
show zn datasource hierarchical create structure false false
show zn datasource hierarchical connect parent assembly ""
show zn datasource hierarchical connect child part part.assembly_id
show zn datasource hierarchical connect child feature feature.part_id
show zn view folder current Structure
show zn view tree create structure
show zn view tree create structure
show zn view tree hide feature
show zn view tree show

puts "\n--- Lists"
show zn view folder current model
show zn view folder current Lists
show zn view list create part
show zn view list create supplier
show zn view list current part
show zn view list caption "All parts"
show zn view column current Name
show zn view list style true
show zn view folder current Purchasing
show zn view list create material
show zn view folder current Heavy
show zn view list create heavy_part
show zn view folder current model
show zn view list names true

puts "\n--- A selection by value, read back"
show zn datasource simple current part
show zn view property current pieces
show zn view dataitem simple select bypropval 4
show zn view property current title
show zn view dataitem selected
show zn view dataitem simple deselect
show zn view dataitem simple select bypropvals 2 {Input shaft body} {Selector shaft}
show zn view dataitem selected
show zn view datasource simple selected
show zn view selection clear
show zn view dataitem selected

puts "\n--- Sorting and filters"
show zn view column current mass
show zn view sort enabled
show zn view sort descending
show zn view sort
show zn view filter dataitemtype update
show zn view filter dataitemtype current assembly part
show zn view filter string current *shaft*
show zn view filter option matchcase false
show zn view filter option matchword

puts "\n--- An operation of the view runs a script, and then the data operation connected to it"
show zn dataoperation create weigh
show zn dataoperation script weigh {puts "  weighed: [zn app sql gearbox {SELECT round(sum(mass * quantity), 1) FROM part}]"}
show zn view operation create report
show zn view operation script {puts "  reported: [zn view current]"}
show zn view operation connect
show zn view operation perform

puts "\n--- The new scheme: the view itself connects data sources, and types are not compared"
show zn view create suppliers true
show zn view datactrl connect
show zn view datasource connect supplier
show zn view datasource connect part
show zn view datasource names
show zn view datasource current supplier
show zn view property create place
show zn view property type string
show zn view property connect city
show zn view property connect part mass
show zn view property connected
show zn view folder current suppliers
show zn view list create supplier
show zn view dataitem select bypropval Sheffield
show zn view property create firm
show zn view property type string
show zn view property connect name
show zn view dataitem selected

puts "\n--- Both views"
show zn view names
