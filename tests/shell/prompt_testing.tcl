# What the tests of the prompt share: a shell at a terminal, what is typed, and what is shown.
package require tcltest 2.5
package require Expect

log_user 0
set ::timeout 20
set stty_init "columns 400"
set env(TERM) xterm
set env(LC_ALL) C.UTF-8

# Starts the shell with a history of its own and waits for the prompt.
proc startPrompt {args} {
    global env spawn_id
    set env(XDG_STATE_HOME) [file join [::tcltest::temporaryDirectory] state]
    spawn -noecho [info nameofexecutable] {*}$args
    fconfigure $spawn_id -encoding utf-8
    awaitShown "% "
}

# Waits until the terminal shows `pattern`, and gives what it showed up to its end.
proc awaitShown {pattern} {
    global spawn_id
    expect {
        -re $pattern { return $expect_out(buffer) }
        timeout { error "waited in vain for \"$pattern\"" }
        eof { error "the shell ended instead of showing \"$pattern\"" }
    }
}

# Waits for the end of the shell; gives its exit code.
proc awaitEnd {} {
    global spawn_id
    expect eof {} timeout { error "the shell does not end" }
    lindex [wait] 3
}

# Types a command and gives what is printed before the next prompt, without the echo.
proc ask {command} {
    exp_send -- "$command\r"
    set shown [string map {\r ""} [awaitShown "\n% $"]]
    string trimright [regsub {^[^\n]*\n(.*)% $} $shown {\1}] \n
}

proc stopPrompt {} {
    exp_send "\003\004"
    awaitEnd
    file delete -force [file join [::tcltest::temporaryDirectory] state]
}
