# What all tests of the command share: short ways to ask, to record the calls of the host, and to have them refused.
package require tcltest 2.5
namespace import ::tcltest::*

interp alias {} zn {} znbrowsermanager

set testingFile [file normalize [info script]]
testConstraint file [expr {![info exists ::env(ZN_TEST_SERVER)]}] ;# what a server answers in words of its own
if {![testConstraint file]} {
    source [file join [file dirname $testingFile] server.tcl]
    server::share
}

# The name of a new database: the file, or "" for one in memory; with ZN_TEST_SERVER, on a server of the tests' own.
proc newDatabase {{file ""}} {
    if {[testConstraint file]} {return $file}
    return [server::url [server::database]]
}

# A data control on a new database.
proc newControl {name} {zn app datactrl create $name [newDatabase]}

# What differs by the engine.
proc engine {file server} {expr {[testConstraint file] ? $file : $server}}

# A text with numbers as the database writes them: a server as short as may be.
proc written {text} {expr {[testConstraint file] ? $text : [regsub -all {(\d)\.0\M} $text {\1}]}}

# A statement in the words of the engine, where a server has others.
proc dialect {statement} {
    if {[testConstraint file]} {return $statement}
    foreach {files servers} {
        {\mcast\(x'([[:xdigit:]]*)' as text\)} {convert_from('\\x\1', 'UTF8')}
        {\mhex\(zeroblob\(([^()]+)\)\)} {repeat('00', \1)}
        {\mhex\((\w+|\?)\)}          {upper(encode(convert_to(\1::text, 'UTF8'), 'hex'))}
        {\msqlite_schema\M}           {(SELECT relname::text AS name FROM pg_class
            WHERE relnamespace = 'public'::regnamespace AND relkind IN ('r', 'v') ORDER BY oid) AS found}
        {\mx'([[:xdigit:]]*)'}         {'\\x\1'::bytea}
        {\mzeroblob\((\w+)\)}         {decode(repeat('00', \1), 'hex')}
        {\mprintf\('%\.(\d+)c', '(.)'\)} {repeat('\2', \1)}
        {\mchar\(}                    chr(
        {\mblob\M}                    bytea
        { without rowid\M}            {}
        {^drop table \w+$}            {& cascade}
        {\mznbrowser_(setting|state)\M} {znbrowser.\1}
    } {regsub -all -nocase $files $statement $servers statement}
    return $statement
}

# What an answer says: "error: MESSAGE" for a banner, "usage: WORDS" for a usage text, else the answer itself.
proc gist {answer} {
    if {[regexp {^\[Command\] [^\n]*\n\t\[Error\] (.*)$} $answer - message]} {return "error: $message"}
    if {[regexp {^    znbrowsermanager (.*?) ?\[} $answer - words]} {return "usage: $words"}
    return $answer
}

proc said {args} {gist [zn {*}$args]}

# The message of a command that fails; all that another one answers.
proc fault {args} {
    set answer [zn {*}$args]
    if {[regexp {^\[Command\] [^\n]*\n\t\[Error\] (.*)$} $answer -> message]} {return $message}
    return "not: $answer"
}

# The first line of an answer, without the indentation of usage texts.
proc firstLine {args} {string trim [lindex [split [zn {*}$args] \n] 0]}

# The next call of that operation is refused; all.tcl sees to it that it comes before the test ends.
proc refuse {operation args} {zn app refuse $operation {*}$args}

# The host calls that a script makes and whose operations match the pattern, each with its arguments.
proc journalOf {pattern script} {
    zn app journal clear
    zn app journal on
    try {uplevel 1 $script} finally {zn app journal off}
    return [lsearch -all -inline -index 0 [zn app journal] $pattern]
}

# What commands say that begin with the same words, one after the other.
proc inTurn {beginning commands} {lmap words $commands {said {*}$beginning {*}$words}}

# What a script gives in a shell of its own, where nothing has been made yet.
proc inNewShell {script} {
    exec [info nameofexecutable] << "[list source $::testingFile]\nputs \[$script\]"
}

# A test of what commands say in such a shell, one after the other, behind some that make what must be there: a table
# of the words that follow `beginning`, and the answers.
proc atFirst {title beginning table {made {}}} {
    set commands [lmap {words answer} $table {set words}]
    test "$beginning, $title" "what \"$beginning ...\" says $title" -body [
        list inNewShell "inTurn {} [list $made]; inTurn [list $beginning $commands]"
    ] -result [lmap {words answer} $table {set answer}]
}
