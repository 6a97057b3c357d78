# Plants small faults in a copy of the tree and tells which of them no test finds.
#   tclsh mutants.tcl ROOT COPY COUNT SEED ?FILE ...?
# COPY is a directory of its own, kept from run to run; FILE is a source or a folder, relative to ROOT (src and
# host).
#
# Compiling and linking anew for each fault would take most of the time. So the copy is compiled once with all the
# faults in it, one a line, each behind a switch that the environment variable ZN_MUTANT turns on in a running
# program (planted.h; places.tcl finds where a fault can be). All tests then run once with the faults asleep, each
# test writing down which of them it reaches. A fault that no test reaches does not count; for each other one, in
# the order of the seed, the tests that reach it run with it awake, the quick and special ones first, until one
# fails or takes far too long. A fault in what the compiler evaluates itself (tables, usage texts, constants) cannot
# be switched, and is not among those counted. One that does not compile is taken out, and so is a test that fails
# without a fault, because it reads the sources.
#
# Two tests never share a directory: as many faults as there are cores (ZN_JOBS) are tried at once.

source [file join [file dirname [file normalize [info script]]] places.tcl]

proc readFile {path} {
    set channel [open $path]
    fconfigure $channel -encoding utf-8
    try { read $channel } finally { close $channel }
}

# Writes a file, unless it holds that text already: what has not changed is not compiled again.
proc writeFile {path text} {
    if {[file exists $path] && [readFile $path] eq $text} return
    file mkdir [file dirname $path]
    set channel [open $path w]
    fconfigure $channel -encoding utf-8
    puts -nonewline $channel $text
    close $channel
}

proc say {text} { puts $text; flush stdout }

# The files below a folder, relative to the root. Builds, hidden files, benchmarks, pictures and the tests of this
# tool are left out.
proc filesBelow {root folder} {
    set found {}
    foreach entry [lsort [glob -nocomplain -directory [file join $root $folder] -tails *]] {
        set path [expr {$folder eq "" ? $entry : "$folder/$entry"}]
        if {![file isdirectory [file join $root $path]]} {
            lappend found $path
        } elseif {$path ni {bench doc tests/mutants} && ![string match build* $path]
                && ![file exists [file join $root $path CMakeCache.txt]]} {
            lappend found {*}[filesBelow $root $path]
        }
    }
    return $found
}

# Makes the copy the same as the tree, but for the sources, which `plantAll` writes.
proc copyTree {root tree sources} {
    set files [filesBelow $root ""]
    if {[file isdirectory $tree]} {
        foreach path [filesBelow $tree ""] {
            if {$path ni $files} { file delete [file join $tree $path] }
        }
    }
    foreach path $files {
        set from [file join $root $path]
        set to [file join $tree $path]
        if {$path in $sources || ([file exists $to] && [file mtime $to] == [file mtime $from]
            && [file size $to] == [file size $from])} continue
        file mkdir [file dirname $to]
        file copy -force $from $to
    }
}

# The sources that may be given faults.
proc sourcesOf {root names} {
    set found {}
    foreach name $names {
        set path [file join $root $name]
        if {[file isfile $path]} {
            lappend found $name
        } elseif {[file isdirectory $path]} {
            foreach file [filesBelow $root [string trimright $name /]] {
                if {[file extension $file] in {.cpp .h}} { lappend found $file }
            }
        } else {
            error "no such file or folder: $name"
        }
    }
    lsort -unique $found
}

# A list in random order.
proc shuffle {list} {
    for {set n [llength $list]} {$n > 1} {incr n -1} {
        set other [expr {int(rand() * $n)}]
        set last [lindex $list $n-1]
        lset list $n-1 [lindex $list $other]
        lset list $other $last
    }
    return $list
}

# Chooses places at random, at most one a line: a list of {file place}.
proc choose {root sources count} {
    set lines {}
    foreach path $sources {
        set byLine {}
        foreach place [places::find [readFile [file join $root $path]]] {
            dict lappend byLine [dict get $place line] $place
        }
        dict for {line places} $byLine { lappend lines [list $path $places] }
    }
    set chosen {}
    foreach entry [shuffle $lines] {
        if {[llength $chosen] >= $count} break
        lassign $entry path places
        set place [lindex $places [expr {int(rand() * [llength $places])}]]
        set span {}
        for {set n [dict get $place line]} {$n <= [dict get $place lastLine]} {incr n} { lappend span $path:$n }
        if {[lsearch -exact [lmap line $span {info exists taken($line)}] 1] >= 0} continue
        foreach line $span { set taken($line) 1 }
        lappend chosen [list $path $place]
    }
    return $chosen
}

# Writes the sources of the copy with the faults in them; `faults` is a dict of number to {file place}.
proc plantAll {root tree sources faults} {
    set perFile {}
    dict for {number fault} $faults { dict lappend perFile [lindex $fault 0] $number [lindex $fault 1] }
    foreach path $sources {
        set text [readFile [file join $root $path]]
        if {[dict exists $perFile $path]} { set text [places::plant $text [dict get $perFile $path]] }
        writeFile [file join $tree $path] $text
    }
}

# Configures and builds the copy; takes the faults out that do not compile. Returns the rest.
proc build {root copy sources faults} {
    set tree [file join $copy tree]
    set ::env(CCACHE_BASEDIR) "" ;# the compiler's messages are to name files in full
    set header [file join $copy planted.h]
    writeFile $header [readFile [file join [file dirname [file normalize [info script]]] planted.h]]
    plantAll $root $tree $sources $faults
    exec -ignorestderr cmake -S $tree -B $copy/build -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 \
        "-DCMAKE_CXX_FLAGS=-w -Wno-narrowing -include $header" >@ stderr
    while {[catch {exec ninja -C $copy/build -k 0 -j [jobs] 2>@1} output]} {
        set guilty [faultsAt $tree $output $faults]
        if {![llength $guilty]} {
            puts stderr $output
            error "the copy does not build: $copy"
        }
        say "[llength $guilty] faults do not compile"
        set faults [dict remove $faults {*}$guilty]
        plantAll $root $tree $sources $faults
    }
    return $faults
}

# The faults on the lines that a compiler complains of; when there are none, those of the files that it names.
proc faultsAt {tree output faults} {
    set onLine {}
    set inFile {}
    set pattern "[regsub -all {\W} $tree {\\&}]/(\[^:\\s]+):(\\d+):\\d+: (?:fatal )?(?:error|note)"
    foreach {- path line} [regexp -all -inline $pattern $output] {
        dict for {number fault} $faults {
            lassign $fault file place
            if {$file ne $path} continue
            dict set inFile $number ""
            if {$line >= [dict get $place line] && $line <= [dict get $place lastLine]} { dict set onLine $number "" }
        }
    }
    dict keys [expr {[dict size $onLine] ? $onLine : $inFile}]
}

# The tests that ctest knows: a dict of name to command.
proc listTests {build} {
    set tests {}
    foreach line [split [exec ctest --test-dir $build -N -V 2>@1] \n] {
        if {[regexp {^\d+: Test command: (\S+)(?: "(.*)")?$} $line - program arguments]} {
            set command [list $program {*}[split [string map [list "\" \"" \0] $arguments] \0]]
        } elseif {[regexp {^ +Test +#\d+: (.+)$} $line - name]} {
            dict set tests $name $command
        }
    }
    return $tests
}

# How much is done at once.
proc jobs {} { expr {[info exists ::env(ZN_JOBS)] ? $::env(ZN_JOBS) : [exec nproc]} }

# The directories in which tests run, one a worker: each looks like the build directory, and takes what a test writes.
proc makeWorkplaces {copy jobs} {
    file delete -force $copy/work
    for {set worker 1} {$worker <= $jobs} {incr worker} {
        file mkdir $copy/work/$worker
        foreach entry [glob -directory $copy/build -tails *] {
            if {$entry ne "Testing"} { file link -symbolic $copy/work/$worker/$entry $copy/build/$entry }
        }
    }
}

# Runs a command within a coroutine, in a directory of its own and with 8 GiB, at most `limit` seconds of the
# processor, or four times as long by the clock: a busy machine is no fault. Returns whether it ended well, and the
# seconds by the clock that it took.
proc runTest {directory limit environment command} {
    set start [clock milliseconds]
    set channel [open |[list timeout -k 5 [expr {4 * $limit}] env -C $directory {*}$environment \
        sh -c {ulimit -v 8388608; ulimit -t "$0"; exec "$@"} $limit {*}$command < /dev/null 2>@1] r]
    fconfigure $channel -blocking 0 -translation binary
    fileevent $channel readable [info coroutine]
    while {![eof $channel]} {
        yield
        read $channel
    }
    fileevent $channel readable {}
    fconfigure $channel -blocking 1
    set ended [expr {![catch {close $channel}]}]
    list $ended [expr {([clock milliseconds] - $start) / 1000.0}]
}

# Runs `body` for each element of a list, as many at once as there are cores; the variable `worker` numbers them.
proc forEachAtOnce {variable list body} {
    set jobs [jobs]
    set ::waiting $list
    set ::atWork $jobs
    for {set worker 1} {$worker <= $jobs} {incr worker} {
        coroutine worker$worker apply {{variable worker body} {
            yield [after 0 [info coroutine]]
            while {[llength $::waiting]} {
                set $variable [lindex $::waiting 0]
                set ::waiting [lrange $::waiting 1 end]
                eval $body
            }
            incr ::atWork -1
        }} $variable $worker $body
    }
    while {$::atWork} { vwait ::atWork }
}

# Leaves out what would take most of the time: a test of more than ten seconds that takes a quarter of what all take.
proc leaveOutTheSlow {} {
    set all [expr [join [list 0 {*}[lmap {test took} [array get ::seconds] {set took}]] +]]
    foreach test [array names ::seconds] {
        if {$::seconds($test) < 10 || $::seconds($test) < $all / 4} continue
        say [format "left out, since it takes %.0f of %.0f s: %s" $::seconds($test) $all $test]
        foreach number [array names ::reach] {
            set ::reach($number) [lsearch -all -inline -exact -not $::reach($number) $test]
            if {![llength $::reach($number)]} { unset ::reach($number) }
        }
    }
}

# Runs every test with the faults asleep. Sets ::seconds, by test, and ::reach, the tests by fault.
proc runAsleep {copy tests} {
    array set ::seconds {}
    array set ::reach {}
    set ::copy $copy
    set ::tests $tests
    forEachAtOnce test [dict keys $tests] {
        set log [file join $::copy reached.$worker]
        file delete $log
        lassign [runTest [file join $::copy work $worker] 900 [list ZN_MUTANT=0 ZN_MUTANT_LOG=$log] \
            [dict get $::tests $test]] ended ::seconds($test)
        if {!$ended} {
            say "left out, since it fails without a fault: $test"
        } elseif {[file exists $log]} {
            set numbers [lsort -unique [split [string trim [readFile $log]] \n]]
            foreach number $numbers { lappend ::reach($number) $test }
            set ::cost($test) [expr {$::seconds($test) * [llength $numbers]}]
        }
    }
    leaveOutTheSlow
}

# Within a coroutine: the test that finds a fault, and how, or "".
proc tryOne {worker number} {
    foreach entry [lsort -real -index 1 [lmap test $::reach($number) {list $test $::cost($test)}]] {
        set test [lindex $entry 0]
        set limit [expr {int(10 + 5 * $::seconds($test))}]
        lassign [runTest [file join $::copy work $worker] $limit [list ZN_MUTANT=$number ZN_MUTANT_LOG=] \
            [dict get $::tests $test]] ended took
        if {!$ended} { return [expr {$took < $limit ? $test : "$test, stopped after $limit s"}] }
    }
    return ""
}

# Tries the faults: ::foundBy gets what found each, or "".
proc tryAll {faults numbers} {
    array set ::foundBy {}
    set ::faults $faults
    set ::total [llength $numbers]
    forEachAtOnce number $numbers {
        set start [clock milliseconds]
        set ::foundBy($number) [tryOne $worker $number]
        lassign [dict get $::faults $number] path place
        say [format {[%d/%d] %s:%d %s: %s, %.1f s} [array size ::foundBy] $::total $path [dict get $place line] \
            [dict get $place kind] [expr {$::foundBy($number) eq "" ? "SURVIVED [llength $::reach($number)] tests"
            : "found by $::foundBy($number)"}] [expr {([clock milliseconds] - $start) / 1000.0}]]
    }
}

# Prints what was found, and each fault that was not.
proc summary {root numbers start} {
    set survivors [lmap number $numbers {expr {$::foundBy($number) eq "" ? $number : [continue]}}]
    foreach number [lsort -command {apply {{a b} {
        lassign [dict get $::faults $a] aPath aPlace
        lassign [dict get $::faults $b] bPath bPlace
        set byPath [string compare $aPath $bPath]
        expr {$byPath ? $byPath : [dict get $aPlace line] - [dict get $bPlace line]}
    }}} $survivors] {
        lassign [dict get $::faults $number] path place
        lassign [places::show [readFile [file join $root $path]] $place] before after
        say "\n$path:[dict get $place line]: [dict get $place kind]\n  - $before\n  + $after"
    }
    set found [expr {[llength $numbers] - [llength $survivors]}]
    set elapsed [expr {[clock seconds] - $start}]
    say [format "\n%d faults, %d found (%.0f %%), %d survived; %d s, %.1f s a fault" [llength $numbers] $found \
        [expr {100.0 * $found / max(1, [llength $numbers])}] [llength $survivors] $elapsed \
        [expr {double($elapsed) / max(1, [llength $numbers])}]]
}

proc main {root copy count seed args} {
    set start [clock seconds]
    foreach {name value} [list COUNT $count SEED $seed] {
        if {![regexp {^[1-9][0-9]{0,4}$} $value]} { error "$name is a number from 1 to 99999, not \"$value\"" }
    }
    set root [file normalize $root]
    file mkdir $copy
    set copy [file normalize $copy]
    set folders [lmap folder {src host} { expr {[file isdirectory $root/$folder] ? $folder : [continue]} }]
    set named [sourcesOf $root [expr {[llength $args] ? $args : $folders}]]
    set sources [lsort -unique [concat [sourcesOf $root $folders] $named]] ;# those of earlier runs are restored
    copyTree $root $copy/tree $sources
    expr {srand($seed)}
    # More than are asked for: some do not compile, some are reached by no test.
    set faults {}
    foreach fault [choose $root $named [expr {$count + $count / 3 + 5}]] { dict set faults [incr number] $fault }
    if {![dict size $faults]} { error "no fault can be planted in $args" }
    say "Building a copy with [dict size $faults] faults, all asleep; seed $seed"
    set faults [build $root $copy $sources $faults]
    say "Running every test once, with the faults asleep ([expr {[clock seconds] - $start}] s so far)"
    makeWorkplaces $copy [jobs]
    runAsleep $copy [listTests $copy/build]
    set numbers [lrange [lmap number [dict keys $faults] {
        expr {[info exists ::reach($number)] ? $number : [continue]}
    }] 0 $count-1]
    say "Trying [llength $numbers] faults that tests reach ([expr {[clock seconds] - $start}] s so far)"
    tryAll $faults $numbers
    summary $root $numbers $start
}

if {[catch {main {*}$argv} message]} {
    puts stderr "mutants: $message"
    if {[info exists env(ZN_MUTANTS_TRACE)]} { puts stderr $errorInfo }
    exit 1
}
