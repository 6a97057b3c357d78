# Data sources: what a data control offers, and what scripts make of it.
#
# Base sources are there from the start. A script makes custom ones of them, narrows these by criteria, adds
# properties, ties sources into a hierarchy and runs operations. Values are read back through view properties.
# Each command is printed with its answer.

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}

set model [file join [file dirname [info script]] models gearbox.db]
znbrowsermanager app datactrl create gearbox $model
znbrowsermanager datactrl current gearbox
znbrowsermanager view create overview
znbrowsermanager view datactrl connect

puts "--- Base sources are the tables and views of the model"
show znbrowsermanager datasource simple names
show znbrowsermanager datasource simple current material

puts "\n--- Their columns are data properties; a view property reads the values"
show znbrowsermanager datasource simple property names
show znbrowsermanager view property create title
show znbrowsermanager view property type string
show znbrowsermanager view property connect material name
show znbrowsermanager datasource simple dataitem

puts "\n--- A custom source takes the items of base sources"
show znbrowsermanager datasource simple create metals "All metals"
show znbrowsermanager datasource simple connect material
show znbrowsermanager datasource simple connected
show znbrowsermanager datasource simple caption
show znbrowsermanager datasource simple filtercaption "Metals only"
show znbrowsermanager datasource simple script names

puts "\n--- Criteria narrow it: their code is a condition, and ? stands for their values"
show znbrowsermanager datasource simple criteria create dense
show znbrowsermanager datasource simple criteria type double
show znbrowsermanager datasource simple criteria code "density >= ? AND youngs_modulus > 200"
show znbrowsermanager datasource simple criteria data double 7840
show znbrowsermanager datasource simple criteria data
puts "The items read a property that the script adds: the attribute 1, their second column."
show znbrowsermanager datasource simple property create Name 1 string 1
show znbrowsermanager view property connect metals Name
show znbrowsermanager datasource simple dataitem
puts "A condition that is none is refused:"
show znbrowsermanager datasource simple criteria code "density >= ?; DROP TABLE material"

puts "\n--- A scripted property is computed by a procedure, which is given the item: its table and its row"
proc stiffness {item} {
    lassign $item table id
    znbrowsermanager app sql gearbox "SELECT round(1000 * youngs_modulus / density, 1) FROM material WHERE id = ?" $id
}
show znbrowsermanager datasource simple property create Stiffness 0 stiffness
show znbrowsermanager datasource simple property names
show znbrowsermanager view property create stiffness
show znbrowsermanager view property type string
show znbrowsermanager view property connect metals Stiffness
show znbrowsermanager datasource simple dataitem

puts "\n--- A hierarchy: assemblies hold parts, parts have features; references tie them"
show znbrowsermanager datareference names
show znbrowsermanager datasource hierarchical create structure true false
show znbrowsermanager datasource hierarchical connect parent assembly -
show znbrowsermanager datasource hierarchical connect child part part.assembly_id
show znbrowsermanager datasource hierarchical connect child feature feature.part_id
show znbrowsermanager datasource hierarchical connect parent names
show znbrowsermanager datasource hierarchical connect child names
show znbrowsermanager view datasource hierarchical connect structure
show znbrowsermanager datasource hierarchical connected
show znbrowsermanager view datareference connect part.assembly_id
show znbrowsermanager view datareference connected

puts "\n--- Its items, from the top down: the assemblies by their codes, with their parts"
znbrowsermanager view property create code
znbrowsermanager view property type string
znbrowsermanager view property connect assembly code
znbrowsermanager view property connect part number
set codes [znbrowsermanager datasource hierarchical dataitem]
puts "[llength $codes] items; the first: [lrange $codes 0 5]"

puts "\n--- A data operation runs a script"
show znbrowsermanager dataoperation create weigh
show znbrowsermanager dataoperation script - {
    puts "The gearbox weighs [znbrowsermanager app sql gearbox "SELECT round(sum(mass * quantity), 2) FROM part"] kg"
}
show znbrowsermanager dataoperation perform

puts "\n--- Input fields hold what a user typed; the application makes them. Unsigned values cannot be read back"
foreach {field type value} {
    Author string "Ada L."  Torque double 380  Speeds integer 6  Released bool true  Serial unsigned 4711
} {
    znbrowsermanager app inputfield create gearbox $field $type
    show znbrowsermanager userinput current $field
    show znbrowsermanager userinput datatype $type
    show znbrowsermanager userinput value $value
}
