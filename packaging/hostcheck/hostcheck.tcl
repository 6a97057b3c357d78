# Checks a host through the words of znbrowsermanager: which promise of the interfaces does it break?
#     package require znbrowser::hostcheck
#     puts [znbrowser::hostcheck::report ?-datactrl NAME? ?-lasting BOOL?]
# It works in two views and a window of its own, and removes what it has made.
#   -datactrl  the data control whose data sources are tried; the first one when it is not given
#   -lasting   whether to make also what no word deletes: data operations and hierarchical data sources
namespace eval ::znbrowser::hostcheck {
    # What was found: broken|unsupported, an operation, and a sentence.
    variable findings {}
}
source -encoding utf-8 [file join [file dirname [info script]] promises.tcl]

# What the check found, as text: broken promises first.
proc ::znbrowser::hostcheck::report {args} {
    set found [run {*}$args]
    set lines {}
    foreach {verdict title} {broken "Broken promises" unsupported "Not supported, and so not checked"} {
        set those [lsearch -all -inline -exact -index 0 $found $verdict]
        lappend lines "$title: [llength $those]"
        foreach finding $those {lappend lines "    [lindex $finding 1]: [lindex $finding 2]"}
    }
    return [join $lines \n]
}

# What the check found: a list of {broken|unsupported OPERATION SENTENCE}, in the order in which it was found.
# Afterwards the window, view and data control that were current, as the words tell, are so again; what was current in
# them need not be.
proc ::znbrowser::hostcheck::run {args} {
    variable findings {}
    variable made {}
    variable dataCtrl
    set options [optionsOf $args]
    set currents [lmap words {{window current} {view current} {datactrl current}} {list $words [ask $words]}]
    set dataCtrl [dict get $options -datactrl]
    if {$dataCtrl eq ""} {set dataCtrl [lindex [wordsOf [textOf [ask {datactrl names}]]] 0]}
    try {
        checkKinds [dict get $options -lasting]
        checkSettings
        checkRefusals
    } finally {
        foreach undo [lreverse $made] {remove {*}$undo}
        foreach current $currents {
            lassign $current words answer
            if {[isAnswered $answer] && [textOf $answer] ne ""} {ask [list {*}$words [textOf $answer]]}
        }
    }
    return $findings
}

namespace eval ::znbrowser::hostcheck {
    proc optionsOf {given} {
        set options {-datactrl {} -lasting 0}
        foreach {option value} $given {
            if {![dict exists $options $option]} {error "unknown option \"$option\": it must be -datactrl or -lasting"}
            dict set options $option $value
        }
        if {[llength $given] % 2} {error "no value for \"[lindex $given end]\""}
        if {![string is boolean -strict [dict get $options -lasting]]} {
            error "-lasting: expected boolean value but got \"[dict get $options -lasting]\""
        }
        return $options
    }

    proc note {verdict operation sentence} {
        variable findings
        set finding [list $verdict $operation $sentence]
        if {$finding ni $findings} {lappend findings $finding}
    }

    # ---- Asking ----

    # What a command answers: whether it was carried out, and its answer or the message of its refusal.
    proc ask {words} {
        set raised [catch {uplevel #0 [list znbrowsermanager {*}$words]} answer]
        if {[regexp {^\[Command\] [^\n]*\n\t\[Error\] (.*)$} $answer - message]} {return [list 0 $message]}
        if {[string match "    znbrowsermanager *" $answer]} {return [list 0 "the usage text"]}
        return [list [expr {!$raised}] $answer]
    }
    proc isAnswered {answer} {lindex $answer 0}
    proc textOf {answer} {lindex $answer 1}
    # The names of a list, none of which has a blank in it. Not every list quotes such as have.
    proc wordsOf {text} {regexp -all -inline {\S+} $text}
    proc quoted {names} {return \"[join $names "\" \""]\"}

    # Makes the surroundings of a place current. @return the first answer that is not as it must be, or nothing
    proc enter {place} {
        variable places
        variable dataCtrl
        if {$dataCtrl ne ""} {ask [list datactrl current $dataCtrl]}
        foreach words [dict get $places $place] {
            set words [string map [list @dataCtrl [list $dataCtrl]] $words]
            set answer [ask $words]
            if {[isAnswered $answer] && [textOf $answer] in [list [lindex $words end] {}]} continue
            return "\"$words\" answers \"[textOf $answer]\""
        }
    }
    # The same before an operation is tried. @return whether it can be
    proc canTry {operation place} {
        set why [enter $place]
        if {$why ne ""} {note unsupported $operation "it is not tried, as $why"}
        return [expr {$why eq ""}]
    }
    proc askIn {place words} {
        enter $place
        return [ask $words]
    }

    # A refusal wants a reason, whether the operation is there or not.
    proc lacksReason {operation answer} {
        variable silent
        expr {![isAnswered $answer] && [textOf $answer] in {{} {Unknown error}} && $operation ni $silent}
    }
    proc refused {operation what answer {verdict unsupported}} {
        if {[lacksReason $operation $answer]} {
            note broken $operation "$what is refused without a reason"
        } else {
            note $verdict $operation "$what is refused: [textOf $answer]"
        }
    }

    # ---- What has names ----

    proc checkKinds {lasting} {
        variable kinds
        variable kind
        foreach {title place words operations options} $kinds {
            set kind [dict merge {-of {} -created 0 -again 0 -stays 0 -unheard 0 -lasting 0} $options]
            foreach step {create list find delete} word $words operation $operations {
                dict set kind $step $word
                dict set kind $step-operation $operation
            }
            dict set kind place $place
            dict set kind title $title
            if {([dict get $kind -lasting] && !$lasting) || ![canTry [dict get $kind create-operation] $place]} continue
            checkKind
            if {[dict get $kind -stays]} makeScaffold
        }
    }

    # What kinds below lie in.
    proc makeScaffold {} {
        variable kind
        variable dataCtrl
        make hostcheck
        if {[dict get $kind title] ne "view"} return
        make hostcheck2
        enter view
        if {$dataCtrl ne ""} {ask {view datactrl connect}}
    }
    proc make {name} {
        variable kind
        variable made
        if {![isAnswered [do create $name]]} return
        lappend made [list $kind $name]
    }
    proc remove {itsKind name} {
        variable kind $itsKind
        set answer [do delete $name]
        if {![isAnswered $answer]} {note unsupported [of delete] "\"$name\" stays behind: [textOf $answer]"}
    }

    proc of {step} {
        variable kind
        return [dict get $kind $step-operation]
    }
    proc has {step} {
        variable kind
        return [expr {[dict get $kind $step] ne "-"}]
    }
    # Carries a step out for a name. What is deleted without its name is made current before.
    proc do {step name} {
        variable kind
        enter [dict get $kind place]
        set words [dict get $kind $step]
        if {$step eq "delete" && "%" ni $words} {
            set answer [ask [string map [list % [list $name]] [dict get $kind find]]]
            if {$answer ne [list 1 $name]} {return [list 0 "it is not found"]}
        }
        return [ask [string map [list % [list $name]] $words]]
    }

    # What sentences call a step.
    proc saying {step name} {
        variable kind
        set words [dict get $kind $step]
        return "\"[string map [list % [list $name]] $words]\"[expr {"%" in $words ? "" : " of \"$name\""}]"
    }

    # What is listed, as text. Two questions without a change between them have one answer.
    proc listed {} {
        variable kind
        set texts [lmap time {1 2} {textOf [askIn [dict get $kind place] [dict get $kind list]]}]
        if {[lindex $texts 0] ne [lindex $texts 1]} {
            note broken [of list] "the answer changes from one question to the next: [quoted $texts]"
        }
        return [lindex $texts 1]
    }
    # Those of the names that are listed, in the order listed.
    proc listedOf {names} {
        if {![has list]} {return $names}
        return [lmap name [wordsOf [listed]] {expr {$name in $names ? $name : [continue]}}]
    }
    proc isFound {name} {
        if {![has find]} {return [expr {$name in [listedOf [list $name]]}]}
        set answer [do find $name]
        if {[isAnswered $answer] && [textOf $answer] ne $name} {
            note broken [of find] "asked for \"$name\", it finds \"[textOf $answer]\""
        }
        return [expr {$answer eq [list 1 $name]}]
    }

    # Names to try: two of them differ in letter case only, and they do not stand in the order of the alphabet.
    proc namesToTry {} {
        variable kind
        set existing [dict get $kind -of]
        if {$existing ne ""} {return [lrange [wordsOf [textOf [askIn [dict get $kind place] $existing]]] 0 3]}
        # Hierarchical sources that stay must not take the names of simple ones.
        set prefix [expr {[dict get $kind -lasting] ? "hostchecklasting" : "hostcheck"}]
        for {set number 1} 1 {incr number} {
            set names [lmap letter {C c Ä A} {string cat $prefix $number $letter}]
            if {1 ni [lmap name $names {isThere $name}]} {return $names}
        }
    }
    proc isThere {name} {expr {([has list] && $name in [listedOf [list $name]]) || ([has find] && [isFound $name])}}

    proc checkKind {} {
        variable kind
        set candidates [namesToTry]
        if {$candidates eq ""} {
            note unsupported [of create] "it is not tried, as there is nothing to make a [dict get $kind title] of"
        }
        set names {}
        foreach name $candidates {
            if {![checkCreation $name $names]} break
            lappend names $name
        }
        if {[has find] && [isAnswered [do find "hostcheck none"]]} {
            note broken [of find] "it finds the name \"hostcheck none\", which does not exist"
        }
        if {$names eq ""} return
        if {[dict get $kind -created]} {checkOrderOfCreation $names}
        checkSecondCreation [lindex $names 0]
        if {![has delete]} return
        foreach name [list {*}[lrange $names 1 1] {*}[lreplace $names 1 1]] { ;# the first one from between others
            set names [lsearch -all -inline -exact -not $names $name]
            checkDeletion $name $names
        }
    }

    # @return whether it was created
    proc checkCreation {name before} {
        variable kind
        set order [listedOf $before]
        set answer [do create $name]
        if {![isAnswered $answer]} {
            set verdict [expr {$before ne "" && [dict get $kind -of] eq "" ? "broken" : "unsupported"}]
            set beside [expr {$before eq "" ? "" : " beside [quoted $before]"}]
            refused [of create] [saying create $name]$beside $answer $verdict
            return 0
        }
        if {[dict get $kind -unheard] && ![isThere $name]} {
            note unsupported [of create] "\"$name\" is not created"
            return 0
        }
        checkPresence $name
        checkRest create [saying create $name] $order $before
        return 1
    }

    proc checkPresence {name} {
        set isListed [expr {$name in [listedOf [list $name]]}]
        set isFound [isFound $name]
        if {!$isListed && !$isFound} {
            note broken [of create] "[saying create $name] succeeds, but it is neither listed nor found"
        } elseif {!$isListed} {
            note broken [of list] "\"$name\" is found, but not listed"
        } elseif {!$isFound} {
            note broken [of find] "\"$name\" is listed, but not found"
        }
    }

    # What is there beside a change stays, and stays in its order.
    proc checkRest {step what order names} {
        set after [listedOf $names]
        set lost [lsearch -all -inline -exact -not [lmap name $order {expr {$name in $after ? "" : $name}}] ""]
        if {$lost ne ""} {
            note broken [of $step] "$what takes [quoted $lost] along"
        } elseif {$after ne $order} {
            note broken [of list] "$what changes the order of others: [quoted $order] become [quoted $after]"
        }
    }

    proc checkOrderOfCreation {names} {
        set order [listedOf $names]
        if {[lsort $order] eq [lsort $names] && $order ne $names} {
            note broken [of list] "[quoted $order] is not the order of creation: [quoted $names]"
        }
    }

    proc checkSecondCreation {name} {
        variable kind
        set before [expr {[has list] ? [listed] : ""}]
        set answer [do create $name]
        if {[lacksReason [of create] $answer]} {
            refused [of create] "[saying create $name], said again," $answer
        } elseif {[isAnswered $answer] && ![dict get $kind -again]} {
            note broken [of create] "a second \"$name\" is accepted"
        }
        if {[has list] && [listed] ne $before} {
            note broken [of create] "[saying create $name], said again, changes what is listed"
        }
    }

    proc checkDeletion {name rest} {
        set order [listedOf $rest]
        set answer [do delete $name]
        set isListed [expr {[has list] && $name in [listedOf [list $name]]}]
        set isFound [expr {[has find] && [isAnswered [do find $name]]}]
        if {![isAnswered $answer]} {
            refused [of delete] [saying delete $name] $answer
            if {[has list] && !$isListed} {note broken [of delete] "[saying delete $name] is refused, but done"}
        } elseif {$isListed || $isFound} {
            note broken [of delete] "\"$name\" is still [expr {$isListed ? "listed" : "found"}] after its deletion"
        }
        checkRest delete [saying delete $name] $order $rest
    }

    # ---- Settings and refusals ----

    proc checkSettings {} {
        variable settings
        variable flags
        foreach {place words values setter getter} $settings {
            if {![canTry $setter $place]} continue
            foreach {given read} [expr {$values eq "@flags" ? $flags : $values}] {
                if {![checkSetting $place $words $given $read $setter $getter]} break
            }
        }
    }

    # What a setting reads, asked twice.
    proc reading {place words getter} {
        set answers [lmap time {1 2} {askIn $place $words}]
        if {[lindex $answers 0] ne [lindex $answers 1]} {
            set texts [quoted [lmap answer $answers {textOf $answer}]]
            note broken $getter "\"$words\" changes from one question to the next: $texts"
        }
        return [lindex $answers 1]
    }

    # @return whether the setting is there
    proc checkSetting {place words given read setter getter} {
        set before [reading $place $words $getter]
        if {![isAnswered $before]} {
            refused $getter "\"$words\"" $before
            return 0
        }
        set set [askIn $place [list {*}$words $given]]
        set after [reading $place $words $getter]
        if {![isAnswered $set]} {
            refused $setter "\"$words [list $given]\"" $set
            if {$after ne $before} {note broken $setter "\"$words [list $given]\" is refused, but changes what is read"}
        } elseif {$after ne [list 1 $read]} {
            note broken $getter "after \"$words [list $given]\" it reads \"[textOf $after]\""
        }
        return [isAnswered $set]
    }

    proc checkRefusals {} {
        variable refusals
        foreach {place words operation why} $refusals {
            if {![canTry $operation $place]} continue
            set answer [ask $words]
            if {[isAnswered $answer]} {
                note broken $operation "\"$words\" is accepted, although $why"
            } elseif {[lacksReason $operation $answer]} {
                refused $operation "\"$words\"" $answer
            }
        }
    }
}
