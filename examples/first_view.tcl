# A first view: what a script needs before anything can be shown.
#
# It puts a data control on the gearbox, makes two views, goes back and forth between them, and connects and
# disconnects the data. Each command is printed with its answer.

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}

set model [file join [file dirname [info script]] models gearbox.db]

puts "--- A data control: the container of the model's data"
znbrowsermanager app datactrl create gearbox $model
show znbrowsermanager datactrl names
show znbrowsermanager datactrl current gearbox

puts "\n--- What is in it"
show znbrowsermanager datasource simple names
show znbrowsermanager app sql gearbox "SELECT count(*) FROM feature"

puts "\n--- Views: creating one makes it current"
show znbrowsermanager view create assembly
show znbrowsermanager view create purchasing true
show znbrowsermanager view names
show znbrowsermanager view current
show znbrowsermanager view current assembly

puts "\n--- A refusal is a text, not a Tcl error"
show znbrowsermanager view current shipping

puts "\n--- A view shows data once a data control is connected to it"
show znbrowsermanager view datactrl connect
show znbrowsermanager view datactrl
show znbrowsermanager view datactrl connect

puts "\n--- Disconnecting asks for a current simple data source"
show znbrowsermanager view datactrl disconnect
show znbrowsermanager datasource simple current part
show znbrowsermanager view datactrl disconnect

puts "\n--- Deleting: the first view that remains becomes current"
show znbrowsermanager view delete
show znbrowsermanager view current
show znbrowsermanager view names
