# Collects every bolt of one assembly of the gearbox, shows only them, hides some, and takes each step back.
# Each command of the collector is printed with its answer, and after each step what the window shows.

interp alias {} zn {} znbrowsermanager

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}
proc step {args} {
    puts ""
    show {*}$args
    puts [zn app draw parts]
}

# ---- The structure of the gearbox in a window: assemblies, and the parts of each ----

zn app datactrl create gearbox [file join [file dirname [info script]] models gearbox.db]
zn datactrl current gearbox
zn datasource hierarchical create structure false false
zn datasource hierarchical connect parent assembly assembly.parent_id
zn datasource hierarchical connect child assembly assembly.parent_id
zn datasource hierarchical connect child part part.assembly_id

zn view create parts false
zn view datactrl connect
zn view property create number
zn view property type string
zn view property connect part number
zn view folder current parts
zn view folder create Structure
zn view tree create structure
zn view list create material
zn view folder children count bynumber true
zn window create parts
zn window post
zn window expandall

# ---- The bolts of the rear cover ----

set bolts [zn app sql gearbox {
    select part.number from part join assembly on assembly.id = assembly_id
    where assembly.code = 'GB-HOU-REA' and (part.name like '%bolt%' or part.name like '%screw%') order by part.id
}]

puts "--- What can be collected, and what is"
show zn collector datasource simple names
show zn collector datasource simple current part
show zn collector selection set byprop number {*}[concat {*}$bolts]
show zn collector selection count
show zn collector selection dataitems number

puts "\n--- Only they are shown, with what lies above them"
step zn collector isolate

puts "\n--- Some of them are hidden"
show zn collector selection set byprop number [lindex $bolts 0]
step zn collector showhide hide

puts "\n--- Each step is taken back, the last one first; what was taken back can be done again"
show zn collector undo names
step zn collector undo
step zn collector undo
step zn collector undo restore
show zn collector undo count
step zn collector showhide all
