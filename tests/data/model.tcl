# The model that the tests of the data families work on, and how they read what the command answers.
source [file join [file dirname [info script]] .. harness testing.tcl]

# Runs commands, one a line.
proc steps {script} {
    foreach line [split [string trim $script] \n] {zn {*}$line}
}

# A test for each command that begins with these words, and what it says.
proc answers {when beginning setup table} {
    foreach {words answer} $table {
        test "$beginning $words, $when" "\"$beginning $words\" $when" -setup $setup -body [
            list said {*}$beginning {*}$words] -result $answer
    }
}

# A fresh data control, made current: parts with features, and a table with a blank in its name.
proc freshControl {} {
    set name control[incr ::controls]
    newControl $name
    foreach statement {
        {CREATE TABLE part (id INTEGER PRIMARY KEY, name TEXT, mass REAL, count INTEGER, steel BOOLEAN)}
        {CREATE TABLE feature (id INTEGER PRIMARY KEY, part_id INTEGER REFERENCES part (id), kind TEXT)}
        {CREATE TABLE "odd name" (id INTEGER PRIMARY KEY, name TEXT)}
        {INSERT INTO part VALUES (1, 'shaft', 12.5, 1, true), (2, 'bush {left}', 0.25, 4, false),
            (3, NULL, 3, 2, true)}
        {INSERT INTO feature VALUES (1, 1, 'hole'), (2, 1, 'keyway'), (3, 2, 'hole')}
    } {
        zn app sql $name $statement
    }
    zn datactrl current $name
    return $name
}

# Makes no simple data source current.
proc forgetSource {} {
    zn datasource simple create passing
    zn datasource simple delete passing
}

# A view on the current data control, current, with a view property of type string.
proc freshView {} {
    set name view[incr ::views]
    zn view create $name
    zn view datactrl connect
    zn view property create shown
    zn view property type string
    return $name
}
