# Saved states: the configuration of a window, kept in the data control's database, from one run to the next.
#
# It saves a window's configuration, changes everything, restores it, and prints what the state holds. Started
# a second time on the same file, it finds the state and brings a new window to it.

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}
interp alias {} zn {} znbrowsermanager

# The example works on a database of its own, so that the model stays as it is.
set here [file dirname [info script]]
set file [file join $here states.db]
if {![file exists $file]} {file copy [file join $here models gearbox.db] $file}
zn app datactrl create gearbox $file
zn datactrl current gearbox

# What the window looks like, but for its data: a view with a tree and two lists, in three parts.
proc row {text} {
    foreach row [zn app rows model] {
        if {[dict get $row text] eq $text} {return [dict get $row index]}
    }
}
foreach words {
    {datasource hierarchical create structure false false}
    {datasource hierarchical connect parent assembly -}
    {datasource hierarchical connect child part part.assembly_id}
    {view create gearbox}
    {view datactrl connect}
    {view column create mass}
    {view column create number}
    {view property create weight}
    {view property type double}
    {view property connect part mass}
    {view property connect heavy_part mass}
    {view column current mass}
    {view style create weighed}
    {view element create weight "the mass of one piece"}
    {view element connect property weight}
    {view folder current gearbox}
    {view folder create Structure}
    {view tree create structure}
    {view folder current gearbox}
    {view folder create Purchasing}
    {view list create heavy_part}
    {view list create material}
    {window create model}
    {window part create tree}
    {window part create details}
    {window part create toolbar}
    {window map create released}
    {window map type bool string}
    {window map record create true yes}
    {window map record create false no}
} {zn {*}$words}

if {"shop" in [zn state names]} {
    puts "--- The state of the last run is there"
    show zn state names
    show zn state current shop
    show zn app state entities gearbox shop
    puts "\n--- A new window is brought to it"
    show zn app draw model
    show zn state restore
    show zn app draw model
    exit
}

puts "--- A window, configured"
foreach words {
    {view column current mass}
    {view column width 60}
    {view sort descending}
    {view column current number}
    {view column show false}
    {window part current details}
    {window part show false}
    {window stripe true}
} {show zn {*}$words}
foreach text {Purchasing heavy_part} {zn onre model [row $text]}
show zn app draw model

puts "\n--- Saved in a state, together with the names of two items"
show zn app state create gearbox shop
show zn state current shop
show zn state save
show zn state entities add "Input shaft" "Output shaft"
show zn app state entities gearbox shop
show zn state names

puts "\n--- Everything is changed"
zn onrc model [row heavy_part]
foreach words {
    {view column show true}
    {view column move 1}
    {view column current mass}
    {view column width 200}
    {view sort ascending}
    {view folder current gearbox}
    {view folder current Structure}
    {view tree delete structure}
    {view folder current gearbox}
    {view folder current Purchasing}
    {view list delete heavy_part}
    {view property current weight}
    {view property disconnect heavy_part}
    {window part current details}
    {window part show true}
    {window part move 2}
    {window stripe false}
    {window map current released}
    {window map record delete true}
} {show zn {*}$words}
show zn app draw model

puts "\n--- Restored"
show zn state restore
show zn app draw model
show zn window part current toplevel
show zn window part names
show zn view column names

puts "\n--- What the state holds"
show zn state data
