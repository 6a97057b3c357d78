# What a window costs with a million rows in it: znbrowsersh --tk window_speed.tcl
# Prints each value, its limit, and whether it holds; exits with 1 when one does not.

interp alias {} zn {} znbrowsermanager

set rows 1000000
set failed 0

# Nobody is there to read a dialog.
proc bgerror {message} {
    puts stderr $::errorInfo
    exit 1
}

proc report {what value unit limit} {
    set holds [expr {$value <= $limit}]
    if {!$holds} {incr ::failed}
    puts [format "%-44s %9.1f %-4s limit %7.1f  %s" $what $value $unit $limit [expr {$holds ? "holds" : "DOES NOT HOLD"}]]
}

proc milliseconds {script} {
    set start [clock microseconds]
    uplevel 1 $script
    return [expr {([clock microseconds] - $start) / 1000.0}]
}

# Each of so many steps with the screen drawn after it: the mean and the longest, in milliseconds.
proc steps {count script} {
    set times [lmap step [lrepeat $count .] {milliseconds {uplevel 1 $script; update}}]
    return [list [expr {[tcl::mathop::+ {*}$times] / $count}] [tcl::mathfunc::max {*}$times]]
}

proc memory {field} {
    set status [open /proc/self/status]
    regexp "$field:\\s+(\\d+) kB" [read $status] -> kilobytes
    close $status
    return [expr {$kilobytes / 1024.0}]
}

proc index {text} {
    foreach row [zn app rows speed 0 10] {
        if {[string match "$text*" [dict get $row text]]} {return [dict get $row index]}
    }
}

# ---- A window on a list of a million items, with three columns ----

close [file tempfile database]
zn app datactrl create speed $database
zn app sql speed {create table item (id integer primary key, name text, weight real, shown boolean)}
zn app sql speed "insert into item with recursive n(i) as (select 1 union all select i + 1 from n where i < $rows)
    select i, 'item ' || i, i * 0.5, i % 2 from n"
zn datactrl current speed
zn view create speed true
zn view datactrl connect
zn view datasource connect item
foreach {property type} {weight double shown bool} {
    zn view property create $property
    zn view property type $type
    zn view property connect item $property
    zn view column create $property
}
zn view folder current speed
zn view list create item
zn window create speed
zn window post true
update
set tree [znbrowser::tree speed]
puts "rows: $rows, window: [winfo width $tree] x [winfo height $tree]"

# ---- Expanding, scrolling, memory ----

report "expanding, until the first rows are drawn" [milliseconds {
    zn OnTkTreeRequestExpand speed [index item]
    update
    if {[znbrowser::boxOf speed [dict get [lindex [zn app rows speed 1 1] 0] index]] eq ""} {error "no row is drawn"}
}] ms 1500
foreach {what script} {
    "a page further"                  {event generate $tree <Next>}
    "a page back"                     {event generate $tree <Prior>}
    "to the end, to the top"          {event generate $tree [expr {[incr turn] % 2 ? "<End>" : "<Home>"}]}
    "a turn of the wheel"             {event generate $tree <Button-5> -x 20 -y 60}
} {
    focus -force $tree
    lassign [steps 100 $script] mean longest
    report "$what, mean of 100" $mean ms 30
    report "$what, longest of 100" $longest ms 100
}
report "memory at the end" [memory VmRSS] MiB 300
report "memory at most" [memory VmHWM] MiB 300

zn window post false
file delete $database
exit [expr {$failed > 0}]
