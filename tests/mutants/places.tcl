# Finds the places of a C++ source where a small fault can be planted.
#
# A place is a dict: kind, line and lastLine (from 1), `edits`, a list of {position text} that insert or
# {position text length} that replace, and `shown`, the same for the reader, without the switch. "%N" in an edit
# stands for the number of the fault.
#
# It reads tokens, not the language, and leans on the project's format: blanks stand around an operator of two
# sides, and none stand in a list of template arguments. A place that does not compile is left out later.

namespace eval places {
    namespace export find plant show
    variable tokenPattern [join {
        {R"\((?:[^)]|\)[^"])*\)"}
        {"(?:[^"\\\n]|\\.)*"}
        {'(?:[^'\\\n]|\\.)+'}
        {//[^\n]*}
        {/\*(?:[^*]|\*+[^*/])*\*+/}
        {#(?:[^\n\\]|\\\n|\\.)*}
        {[0-9][\w.']*}
        {[A-Za-z_]\w*}
        {<<=|>>=|->|\+\+|--|<<|&&|\|\||::|[-+*/%&|^!<>=]=}
        {[^\s]}
    } |]
    variable operators {
        < {Less <=}  <= {LessEqual <}  > {Greater >=}  >= {GreaterEqual >}
        == {Equal !=}  != {Unequal ==}  + {Plus -}  - {Minus +}
    }
    # What ends an operand of && and the like, to its left and to its right, at the same depth.
    variable bounds {, ; ? : = += -= *= /= |= &= ^= return}
    variable notStatements {if for while switch case default using typedef class struct enum template namespace static
        const constexpr auto public private protected void bool int char unsigned delete throw goto extern friend
        virtual explicit inline static_assert else do try catch operator return}
}

# The tokens: for each its text, first position and line; comments and preprocessor lines are left out.
proc places::tokens {source} {
    variable tokenPattern
    set tokens {}
    set line 1
    set last 0
    foreach range [regexp -all -inline -indices $tokenPattern $source] {
        lassign $range first end
        incr line [regexp -all \n [string range $source $last $first-1]]
        set last $first
        set text [string range $source $first $end]
        if {![regexp {^(?://|/\*|#)} $text]} { lappend tokens [list $text $first $line] }
    }
    return $tokens
}

# What the tokens say together, in arrays of the caller, by index: `text`, `at`, `line`; `mate`, the other bracket;
# `open`, the bracket around a token, or -1; `code`, whether it stands in a function's body.
proc places::read {source} {
    foreach name {text at line mate open code} { upvar 1 $name $name }
    set stack -1
    set isCode(-1) 0
    set n 0
    foreach token [tokens $source] {
        lassign $token text($n) at($n) line($n)
        if {$text($n) in {) ] \}}} {
            set mate($n) [lindex $stack end]
            set mate($mate($n)) $n
            set stack [lrange $stack 0 end-1]
        }
        set open($n) [lindex $stack end]
        set code($n) $isCode($open($n))
        if {$text($n) in {( [ \{}} {
            set before [expr {$n ? $text([expr {$n - 1}]) : ""}]
            set isCode($n) [expr {$code($n)
                || ($text($n) eq "\{" && $before in {) const noexcept override else do try ] mutable})}]
            lappend stack $n
        }
        incr n
    }
    return $n
}

# The position behind a token.
proc places::behind {index} {
    upvar 1 text text at at
    expr {$at($index) + [string length $text($index)]}
}

# The first and the last token of the operands around token n, which lie between `stops`.
proc places::operands {n count stops} {
    upvar 1 text text mate mate
    set first $n
    while {$first > 0} {
        set token $text([expr {$first - 1}])
        if {$token in {( [ \{} || $token in $stops} break
        set first [expr {$token in {) ] \}} ? $mate([expr {$first - 1}]) : $first - 1}]
    }
    set last $n
    while {$last + 1 < $count} {
        set token $text([expr {$last + 1}])
        if {$token in {) ] \}} || $token in $stops} break
        set last [expr {$token in {( [ \{} ? $mate([expr {$last + 1}]) : $last + 1}]
    }
    list $first $last
}

# Every place of a source, in its order.
proc places::find {source} {
    variable operators
    variable bounds
    set count [read $source]
    set lines [split $source \n]
    set found {}
    set isTruth 0
    set seen 0
    for {set n 0} {$n < $count} {incr n} {
        set words [lindex $lines $line($n)-1]
        if {$line($n) != $seen} { # a new line: the head of a function?
            set seen $line($n)
            set pattern {^\s*((?:[\w:<>,]+[ *&]+)+)([\w:]+)\(}
            if {[regexp $pattern $words - type] && ![regexp {^(?:return|throw|new|else|case|delete)\M} $type]} {
                set isTruth [regexp {(?:^|\s)bool $} $type]
                if {[regexp {\) ?(?:const |override |noexcept )*\{$} $words] && ![regexp {&|\mauto\M} $type]} {
                    lappend found {*}[earlyReturn $source $at($n) $line($n) $type]
                }
            }
        }
        if {[regexp {\m(?:constexpr|static|static_assert|virtual)\M} $words]} continue
        set next [expr {$n + 1 < $count ? $text([expr {$n + 1}]) : ""}]
        set before [expr {$n ? $text([expr {$n - 1}]) : ""}]
        set isMember [expr {$before eq "=" && $next eq ";" && ![string match *)* $words]}]
        if {!$code($n) && !$isMember} continue
        lappend found {*}[literal $n $before $next]
        if {!$code($n)} continue
        lappend found {*}[statement $n $count $before $source]
        if {$text($n) in {if while} && $next eq "("} {
            lappend found {*}[condition [expr {$n + 2}] [expr {$mate([expr {$n + 1}]) - 1}]]
        } elseif {$text($n) eq "return" && $isTruth && $next ni {; true false \{ [}} {
            lassign [operands [expr {$n + 1}] $count {;}] - last
            lappend found [place negated [expr {$n + 1}] $last "zn_mutants::Negate(%N, " ) !( )]
        } elseif {$text($n) eq "?"} {
            lassign [operands $n $count $bounds] first
            lappend found {*}[condition $first [expr {$n - 1}]]
        } elseif {$text($n) eq "!" && $before ne "operator"} {
            lappend found [dict create kind not line $line($n) lastLine $line($n) \
                edits [list [list $at($n) "zn_mutants::Not{%N}->* " 1]] shown [list [list $at($n) "" 1]]]
        } elseif {[isSpaced $source $n]} {
            lappend found {*}[operator $n $count]
        }
    }
    return $found
}

# Whether blanks stand around a token.
proc places::isSpaced {source n} {
    upvar 1 text text at at
    expr {[string is space [string index $source $at($n)-1]]
        && [string is space -strict [string index $source [behind $n]]]}
}

# A place around the tokens first to last: what is put before and behind them, and the same as it is shown.
proc places::place {kind first last before behind shownBefore shownBehind} {
    upvar 1 text text at at line line
    set end [behind $last]
    dict create kind $kind line $line($first) lastLine $line($last) \
        edits [list [list $at($first) $before] [list $end $behind]] \
        shown [list [list $at($first) $shownBefore] [list $end $shownBehind]]
}

# The first line of a function returns.
proc places::earlyReturn {source position line type} {
    set end [string first \n $source $position]
    set statement [expr {[regexp {(?:^|\s)void $} $type] ? "return;" : "return {};"}]
    list [dict create kind return line $line lastLine $line \
        edits [list [list $end " if (zn_mutants::Awake(%N)) $statement"]] shown [list [list $end " $statement"]]]
}

# A condition negated; one that declares a variable is left as it is.
proc places::condition {first last} {
    foreach name {text at line open} { upvar 1 $name $name }
    set around $open($first)
    for {set n $first} {$n <= $last} {incr n} {
        if {$open($n) == $around && $text($n) in {; =}} { return {} }
    }
    list [place negated $first $last "zn_mutants::Awake(%N) != static_cast<bool>(" ")" !( )]
}

# A literal changed: a number one more (a one becomes a zero), a truth value swapped, a letter of a text. The names of
# the host's operations, CLASS::NAME, stay: a test looks for them in the sources themselves.
proc places::literal {n before next} {
    foreach name {text at line} { upvar 1 $name $name }
    set token $text($n)
    if {$before eq "=" && $next eq ";" && [isFilledIn [expr {$n - 2}]]} { return {} }
    if {$token in {true false}} {
        set other [expr {$token ? "false" : "true"}]
    } elseif {$before ne "case" && [regexp {^[0-9]+[uUlL]*$} $token]} {
        regexp {^([0-9]+)(.*)$} $token - digits suffix
        set other [expr {$digits eq "1" ? 0 : [scan $digits %lld] + 1}]$suffix
    } elseif {[string index $token 0] eq "\"" && ![string match *::* $token]
            && [string index $before end] ne "\"" && [string index $next 0] ne "\""
            && [regexp -indices {(?:^|[^\\])([A-Za-z])[^A-Za-z]*$} $token - letter]} {
        set letter [lindex $letter 0]
        set old [string index $token $letter]
        set other [string replace $token $letter $letter \
            [expr {[string is upper $old] ? [string tolower $old] : [string toupper $old]}]]
    } else {
        return {}
    }
    list [dict create kind literal line $line($n) lastLine $line($n) \
        edits [list [list $at($n) "(zn_mutants::Awake(%N) ? $other : "] [list [behind $n] )]] \
        shown [list [list $at($n) $other [string length $token]]]]
}

# Whether a variable is given as an argument before it is used otherwise: its first value is nobody's.
proc places::isFilledIn {n} {
    upvar 1 text text
    set name $text($n)
    for {set use [expr {$n + 3}]} {[info exists text($use)]} {incr use} {
        if {$text($use) ne $name} continue
        return [expr {$text([expr {$use - 1}]) in {( ,} && $text([expr {$use + 1}]) in {) ,}}]
    }
    return 0
}

# A statement left out: an expression, or `break` and the like. A declaration is none.
proc places::statement {n count before source} {
    variable notStatements
    foreach name {text at line mate open code} { upvar 1 $name $name }
    set opener [expr {$open($n) >= 0 ? $text($open($n)) : ""}]
    if {$opener ne "\{"} { return {} }
    if {$before eq ")"} {
        set head $mate([expr {$n - 1}])
        if {$head == 0 || $text([expr {$head - 1}]) ni {if for while}} { return {} }
    } elseif {$before ni {; \{ \} else}} {
        return {}
    }
    set next [expr {$n + 1 < $count ? $text([expr {$n + 1}]) : ""}]
    if {$text($n) in $notStatements && !($text($n) eq "return" && $next eq ";")} { return {} }
    lassign [operands $n $count {;}] - last
    if {$last + 1 >= $count || $text([expr {$last + 1}]) ne ";"} { return {} }
    set words [string range $source $at($n) [behind $last]-1]
    if {![regexp {^(?:break|continue|return)$|^[*(+-]*[\w:]+\)?(?:\(|\.|->|\[|\+\+|--| [-+|&*/]?= | << |$)} $words]
            || $words eq "default"} { return {} }
    list [dict create kind "left out" line $line($n) lastLine $line([expr {$last + 1}]) \
        edits [list [list $at($n) "if (zn_mutants::Awake(%N)) { } else "]] \
        shown [list [list $at($n) "" [string length $words]]]]
}

# An operator of two sides exchanged.
proc places::operator {n count} {
    variable operators
    variable bounds
    foreach name {text at line mate} { upvar 1 $name $name }
    set token $text($n)
    if {[dict exists $operators $token]} {
        lassign [dict get $operators $token] name other
        return [list [dict create kind operator line $line($n) lastLine $line($n) \
            edits [list [list [behind $n] " zn_mutants::$name{%N} $token"]] \
            shown [list [list $at($n) $other [string length $token]]]]]
    }
    if {$token ni {&& ||}} { return {} }
    # a || b is !(!a && !b), and the other way round: which of them the switch decides, both stop at the same point.
    set leftStops [expr {$token eq "&&" ? [list || {*}$bounds] : $bounds}]
    lassign [operands $n $count $leftStops] first
    lassign [operands $n $count [list $token {*}$leftStops]] - last
    set awake "zn_mutants::Awake(%N) != "
    set asTruth "static_cast<bool>("
    list [dict create kind operator line $line($first) lastLine $line($last) edits [list \
        [list $at($first) "($awake (($awake$asTruth"] [list [behind [expr {$n - 1}]] "))"] \
        [list [behind $n] " ($awake$asTruth"] [list [behind $last] "))))"]] \
        shown [list [list $at($n) [expr {$token eq "&&" ? "||" : "&&"}] 2]]]
}

# A source with edits made, which change no place twice.
proc places::edit {source edits} {
    foreach change [lsort -integer -decreasing -index 0 $edits] {
        lassign $change position text length
        set rest [expr {$position + ($length eq "" ? 0 : $length)}]
        set source [string range $source 0 $position-1]$text[string range $source $rest end]
    }
    return $source
}

# A source with faults planted, given as numbers and places.
proc places::plant {source faults} {
    set edits {}
    foreach {number place} $faults {
        foreach change [dict get $place edits] { lappend edits [string map [list %N $number] $change] }
    }
    edit $source $edits
}

# The lines of a place as they stand and with its fault, for the reader.
proc places::show {source place} {
    set before [split $source \n]
    set after [split [edit $source [dict get $place shown]] \n]
    set first [expr {[dict get $place line] - 1}]
    set fromEnd [expr {[llength $before] - [dict get $place lastLine]}]
    lmap lines [list $before $after] {
        join [lmap text [lrange $lines $first end-$fromEnd] {string trim $text}] " "
    }
}
