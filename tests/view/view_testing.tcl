# What the tests of the view family share.
source [file join [file dirname [info script]] .. harness testing.tcl]

# A table of messages, each with the commands that fail with it: one test per command.
proc testFaults {name table args} {
    foreach {message commands} $table {
        foreach words $commands {
            test "$name-[incr number]" "\"$words\" fails: $message" {*}$args \
                -body "fault $words" -result $message
        }
    }
}

# A table of usage texts, by their first lines, each with the commands that answer it.
proc testUsages {name table args} {
    foreach {line commands} $table {
        foreach words $commands {
            test "$name-[incr number]" "\"$words\" answers its usage text" {*}$args \
                -body "firstLine $words" -result $line
        }
    }
}

# Leaves no view, and so no current object of any view.
proc deleteViews {} {
    foreach name [zn view names] {
        zn view current $name
        zn view delete
    }
}

# A gearbox in miniature, made once per file: assemblies that nest, their parts, and the parts' features.
proc makeModel {} {
    newControl M
    foreach statement {
        {create table assembly (id integer primary key, parent_id integer references assembly (id), name text)}
        {create table part (id integer primary key, assembly_id integer references assembly (id), name text,
            mass real, teeth integer)}
        {create table feature (id integer primary key, part_id integer references part (id), kind text)}
        {insert into assembly values (1, null, 'gearbox'), (2, 1, 'input'), (3, 1, 'output')}
        {insert into part values (1, 2, 'gear', 1.5, 20), (2, 2, 'long shaft', 2, null),
            (3, 3, 'gear', 4, 60), (4, 3, 'bolt', 0.25, null)}
        {insert into feature values (1, 1, 'hole'), (2, 1, 'face'), (3, 4, 'thread')}
    } {
        zn app sql M $statement
    }
}

# A view on that model, in the classic connection scheme (false) or the new one (true). Its root folder, the
# source "part" and a property without a connection are current.
proc startModel {{scheme false}} {
    if {"M" ni [zn datactrl names]} makeModel
    zn datactrl current M
    zn view create V $scheme
    zn view datactrl connect
    zn view folder current V
    zn datasource simple current part
    zn view property create p
    zn view property type string
}
