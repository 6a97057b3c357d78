# What those share that make pictures of windows.

interp alias {} zn {} znbrowsermanager

# Nobody is there to read a dialog.
proc bgerror {message} {
    puts stderr $::errorInfo
    exit 1
}

# The Tk index of the first row with that text.
proc rowOf {window text} {
    foreach row [zn app rows $window] {
        if {[string match "$text*" [dict get $row text]]} {return [dict get $row index]}
    }
    error "no row \"$text\" in the window $window"
}

# Until what follows by itself has been drawn.
proc wait {milliseconds} {
    after $milliseconds {set waited 1}
    vwait waited
    update
}

# Takes a picture of the current window at that size, once all of it is drawn.
proc takePicture {size file} {
    set top [winfo toplevel [zn window frame]]
    wm geometry $top $size+0+0
    raise $top
    wait 500
    exec import -window [winfo id $top] -strip $file
    zn window post false
}
