# The dialog that asks for the values of input fields.
#
# What is known of dialog 2 stands in the array ::znbrowser::input2: value,N, type,N and choices,N of each field, counted
# from 0, the window's number, and `done`: what became of it. Names of fields are somebody else's: they are labels only.

namespace eval ::znbrowser {
    variable inputs 0 ;# how many dialogs there have been
}

# Asks the user of a window; `args` are a name, a type, a value and the choices for each field. Answers "ok" and the values; or
# nothing, when the user does not want it or the window went.
proc ::znbrowser::askInput {n title args} {
    variable inputs
    set d [incr inputs]
    upvar #0 ::znbrowser::window$n w ::znbrowser::input$d input
    if {![isOpen $n]} return
    unpostMenu $n
    array set input [list window $n count 0 done ""]
    set dialog [makeDialog $n $d $title]
    foreach {name type value choices} $args {addField $d $dialog $name $type $value $choices}
    takeFieldKeys $dialog.fields
    styleBelow $dialog
    showDialog $n $d $dialog
    vwait ::znbrowser::input${d}(done)
    set answer $input(done)
    unset input
    destroy $dialog
    if {[isOpen $n] && [winfo ismapped $w(tree)]} {focus $w(tree)}
    return $answer
}

# The dialog that is open in a window, for scripts and tests; empty when there is none.
proc ::znbrowser::inputDialog {name} {
    return [lindex [lsearch -all -inline [winfo children [set ::znbrowser::window[number $name](path)]] *.input*] 0]
}

proc ::znbrowser::makeDialog {n d title} {
    upvar #0 ::znbrowser::window$n w
    set dialog [toplevel $w(path).input$d -background [colour surface]]
    wm withdraw $dialog
    wm title $dialog [oneLine $title]
    wm resizable $dialog 1 0
    wm transient $dialog [winfo toplevel $w(path)]
    wm protocol $dialog WM_DELETE_WINDOW [list ::znbrowser::cancelInput $d]
    ttk::frame $dialog.fields -style Browser.TFrame -padding {14 12 14 4}
    ttk::frame $dialog.buttons -style Browser.TFrame -padding {14 8 14 12}
    ttk::button $dialog.buttons.ok -text OK -style Tool.TButton -width 9 -command [list ::znbrowser::takeInput $d]
    ttk::button $dialog.buttons.cancel -text Cancel -style Tool.TButton -width 9 \
        -command [list ::znbrowser::cancelInput $d]
    pack $dialog.buttons.cancel $dialog.buttons.ok -side right -padx {6 0}
    pack $dialog.fields -side top -fill both -expand 1
    pack $dialog.buttons -side bottom -fill x
    grid columnconfigure $dialog.fields 1 -weight 1 -minsize 180
    bind $dialog <Return> [list ::znbrowser::takeInput $d]
    bind $dialog <Escape> [list ::znbrowser::cancelInput $d]
    bind $dialog.fields <Destroy> [list ::znbrowser::cancelInput $d]
    return $dialog
}

# A field: its name, what takes its value, and below that why the value is refused.
proc ::znbrowser::addField {d dialog name type value choices} {
    upvar #0 ::znbrowser::input$d input
    set place $input(count)
    incr input(count)
    set input(type,$place) $type
    set input(value,$place) $value
    set input(choices,$place) $choices
    set variable ::znbrowser::input${d}(value,$place)
    set fields $dialog.fields
    ttk::label $fields.name$place -text [oneLine $name]
    switch [kindOf $d $place] {
        list {
            if {$value ni $choices} {set input(value,$place) [lindex $choices 0]}
            ttk::combobox $fields.value$place -style Browser.TCombobox -textvariable $variable -values $choices -state readonly
        }
        bool {
            set input(value,$place) [string is true -strict $value]
            ttk::checkbutton $fields.value$place -variable $variable -onvalue 1 -offvalue 0
        }
        number {
            ttk::spinbox $fields.value$place -textvariable $variable -justify right
            foreach {event step} {<<Increment>> 1 <<Decrement>> -1} {
                bind $fields.value$place $event "[list ::znbrowser::spin $d $place $step]; break"
            }
        }
        default {ttk::entry $fields.value$place -textvariable $variable -width 36}
    }
    ttk::label $fields.why$place -style Message.TLabel
    # Rows are counted here: what is not shown has none in a grid that counts by itself.
    grid $fields.name$place -row [expr {2 * $place}] -column 0 -sticky w -pady {6 0} -padx {0 12}
    grid $fields.value$place -row [expr {2 * $place}] -column 1 -sticky ew -pady {6 0}
    grid $fields.why$place -row [expr {2 * $place + 1}] -column 1 -sticky w
    grid remove $fields.why$place
}

# How a value is asked for; types have the numbers of ZNBROWSER_DATA_TYPE.
proc ::znbrowser::kindOf {d place} {
    upvar #0 ::znbrowser::input$d input
    if {$input(choices,$place) ne ""} {return list}
    switch $input(type,$place) {
        1 {return bool}
        2 - 3 - 4 {return number}
    }
    return text
}

# One more or less, where that is a number of the field.
proc ::znbrowser::spin {d place step} {
    upvar #0 ::znbrowser::input$d input
    set text $input(value,$place)
    if {$text eq ""} {set text 0}
    if {[catch {expr {$text + $step}} next]} return
    if {[host refusal $input(window) $input(type,$place) $next] eq ""} {set input(value,$place) $next}
}

proc ::znbrowser::showDialog {n d dialog} {
    placeDialog $n $dialog
    catch {grab $dialog} ;# where that is impossible the other windows can be used meanwhile
    set first $dialog.fields.value0
    if {[winfo exists $first]} {
        focus $first
        catch {$first selection range 0 end}
    }
}

# Shows it in the middle of the window.
proc ::znbrowser::placeDialog {n dialog} {
    upvar #0 ::znbrowser::window$n w
    update idletasks
    set x [expr {[winfo rootx $w(path)] + max(0, ([winfo width $w(path)] - [winfo reqwidth $dialog]) / 2)}]
    set y [expr {[winfo rooty $w(path)] + max(0, ([winfo height $w(path)] - [winfo reqheight $dialog]) / 3)}]
    wm geometry $dialog +$x+$y
    wm deiconify $dialog
    raise $dialog
}

# OK: every value must be one of its field. The first that is not gets the focus.
proc ::znbrowser::takeInput {d} {
    upvar #0 ::znbrowser::input$d input
    if {![info exists input(done)]} return
    set values {}
    set refused {}
    for {set place 0} {$place < $input(count)} {incr place} {
        set value $input(value,$place)
        if {[kindOf $d $place] eq "bool"} {set value [lindex {false true} $value]}
        lappend values $value
        if {![showRefusal $d $place $value]} {lappend refused $place}
    }
    if {$refused eq ""} {
        set input(done) [list ok {*}$values]
    } else {
        focus [inputFields $d].value[lindex $refused 0]
    }
}

# Says at a field why its value is refused. Answers whether it is not.
proc ::znbrowser::showRefusal {d place value} {
    upvar #0 ::znbrowser::input$d input
    set label [inputFields $d].why$place
    set why [host refusal $input(window) $input(type,$place) $value]
    $label configure -text [string toupper $why 0 0]
    if {$why eq ""} {grid remove $label} else {grid $label}
    return [expr {$why eq ""}]
}

proc ::znbrowser::inputFields {d} {
    upvar #0 ::znbrowser::input$d input
    return [set ::znbrowser::window$input(window)(path)].input$d.fields
}

proc ::znbrowser::cancelInput {d} {
    upvar #0 ::znbrowser::input$d input
    if {[info exists input(done)]} {set input(done) ""}
}
