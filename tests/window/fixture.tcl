# What the tests of windows share: a fresh model for each test, and short ways to ask.
source [file join [file dirname [info script]] .. harness testing.tcl]

# A model of one view, "v", with a current column, without windows and without GUI maps of scripts.
proc freshModel {} {
    foreach {family names} [list window [zn window names] view [zn view names] {window map} [zn window map names]] {
        foreach name $names {
            if {[string match default_*map $name]} continue
            zn {*}$family current $name
            zn {*}$family delete
        }
    }
    zn view create v
    zn view column current Name
}

# The same with a window, "w", on the view.
proc freshWindow {} {
    freshModel
    zn window create w
}

# Two windows, "w" and "w2", on a view each; the second is current.
proc freshTwo {} {
    freshWindow
    zn view create v2
    zn window create w2
}

# Tests from a table of answers and the lists of words that get them: a message, or "not: " and a result.
proc answers {title setup prefix table} {
    foreach {answer wordLists} $table {
        foreach words $wordLists {
            test answer-$title-$words "\"$prefix $words\" $title" -setup $setup -body "fault $prefix $words" \
                -result $answer
        }
    }
}

# One test for each list of words that answers the usage text of a level.
proc usages {setup prefix usage wordLists} {
    foreach words $wordLists {
        test usage-$prefix-$words "\"$prefix $words\" answers the usage text" -setup $setup \
            -body "firstLine $prefix $words" -result "znbrowsermanager $usage \[action\]"
    }
}

# One test for each host operation that is refused, the words that call it, and the message. What the script
# `state` gives must stay as it was.
proc refusals {setup prefix state table} {
    foreach {operation words message} $table {
        test refused-$operation-$words "a refused $operation answers \"$message\", and nothing changes" \
            -setup $setup -body "
                set before \[$state\]
                refuse znIBrowser$operation {not now}
                list \[fault $prefix $words\] \[expr {\[$state\] eq \$before}\]
            " -result [list $message 1]
    }
}

# A window with two popup menus: "m" with the items a, b and c, of which b is current, and "other" without items.
proc freshMenus {} {
    freshWindow
    foreach menu [zn view popupmenu names] {zn view popupmenu delete $menu}
    zn view popupmenu create other
    zn view popupmenu create m
    foreach item {a b c} {zn view popupmenuitem create $item}
    zn view popupmenuitem current b
}

# The same without a menu, and with one that has no items.
proc freshNoMenu {} {
    freshMenus
    foreach menu {m other} {zn view popupmenu delete $menu}
}
proc freshNoItem {} {
    freshMenus
    zn view popupmenu current other
}
