# What the tests of rows share: a model, a window on it, and short ways to ask.
source [file join [file dirname [info script]] .. harness testing.tcl]

# A gearbox in miniature: assemblies that nest, their parts, and the parts' holes, of which most have none. The foreign
# key of the holes has no index.
proc makeModel {} {
    newControl model
    foreach statement {
        {create table assembly (id integer primary key, parent_id integer references assembly, name text)}
        {create index assembly_by_parent on assembly (parent_id)}
        {create table part (id integer primary key, assembly_id integer not null references assembly, name text,
            mass real, visible boolean, colour integer)}
        {create index part_by_assembly on part (assembly_id)}
        {create table hole (id integer primary key, part_id integer references part, name text)}
        {create table stamp (id integer primary key, name text)}
        {insert into assembly values (1, null, 'box'), (2, 1, 'input'), (3, 1, 'output'), (4, null, 'spare')}
        {insert into part values (1, 2, 'gear', 1.5, true, 1), (2, 2, 'shaft', 12, false, 2),
            (3, 3, 'Gear', 4, true, null), (4, 3, 'bolt', 0.25, null, 9), (5, 1, 'lid', 2, true, 1)}
        {insert into hole values (1, 1, 'bore'), (2, 5, 'vent')}
    } {
        zn app sql model $statement
    }
    zn datactrl current model
    zn datasource hierarchical create structure false false
    zn datasource hierarchical connect parent assembly x
    zn datasource hierarchical connect child part part.assembly_id
    zn datasource hierarchical connect child hole hole.part_id
}

# The model's view "V" in a window "W": the folder "tree" with the structure, the folder "lists" with two lists.
proc start {} {
    foreach {family names} [list window [zn window names] view [zn view names]] {
        foreach name $names {
            zn $family current $name
            zn $family delete
        }
    }
    zn datactrl current model
    zn view create V false
    zn view datactrl connect
    zn view folder current V
    zn view folder create tree
    zn view tree create structure
    zn view folder current V
    zn view folder create lists
    zn view list create part
    zn view list create stamp
    zn window create W
    zn view column current Name
}

# A column with a property of the parts.
proc addColumn {name type {source part}} {
    zn view property create $name
    zn view property type $type
    zn view property connect $source $name
    zn view column create $name
}

proc row {text} {
    foreach row [zn app rows W] {
        if {[dict get $row text] eq $text} {return $row}
    }
    error "no row $text"
}
proc index {text} {dict get [row $text] index}
proc indices {args} {lmap text $args {index $text}}
proc expand {args} {foreach text $args {zn OnTkTreeRequestExpand W [index $text]}}
# The texts of all rows, or of those for which `key` is true.
proc texts {{key index}} {lmap row [zn app rows W] {if {![dict get $row $key]} continue; dict get $row text}}
# Each row as depth and text.
proc outline {} {join [lmap row [zn app rows W] {return -level 0 "[dict get $row depth]:[dict get $row text]"}]}
proc cell {text column} {dict get [row $text] cells $column}
