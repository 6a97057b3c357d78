znbrowsermanager window expandall
znbrowsermanager collector show true
znbrowsermanager collector datasource simple names
znbrowsermanager collector datasource simple current part
znbrowsermanager collector selection add byprop name hub rim
znbrowsermanager collector selection count
znbrowsermanager collector selection dataitem name
znbrowsermanager collector isolate
znbrowsermanager app draw main
znbrowsermanager collector undo names
znbrowsermanager collector undo count
znbrowsermanager collector undo
znbrowsermanager collector undo restore
znbrowsermanager collector isolateonly
znbrowsermanager collector showonly
znbrowsermanager collector showhide hide
znbrowsermanager collector showhide toggle
znbrowsermanager collector showhide show
znbrowsermanager collector showhide all
znbrowsermanager collector undo clear
# What is collected can be kept under a name.
znbrowsermanager collector pnlcolselector create small
znbrowsermanager collector pnlcolselector names
znbrowsermanager collector selection set byprop name wheel
znbrowsermanager collector addtopnlcol small
znbrowsermanager collector selection clear
znbrowsermanager collector pnlcolselector current small
znbrowsermanager collector selection dataitem name
znbrowsermanager collector pnlcolselector delete small
# Other ways to collect.
znbrowsermanager collector selection add all
znbrowsermanager collector selection remove byprop name bicycle
znbrowsermanager collector selection remove displayed
znbrowsermanager collector selection set all
znbrowsermanager collector selection toggle all
znbrowsermanager collector optionselector names
znbrowsermanager collector optionselector current toggle
znbrowsermanager collector preselector
znbrowsermanager collector preselector on
znbrowsermanager collector preselector dataitem name
znbrowsermanager collector preselector off
znbrowsermanager collector autofit true
# Actions of scripts.
proc weigh {view items} {lappend ::weighed $view}
znbrowsermanager collector option create weigh weigh
znbrowsermanager collector option names
znbrowsermanager collector option current weigh
znbrowsermanager collector option perform
znbrowsermanager collector option delete weigh
# The controls of the bar.
znbrowsermanager collector addremove show true
znbrowsermanager collector addremove enabled true
znbrowsermanager collector entityselector show true
znbrowsermanager collector entityselector enabled true
znbrowsermanager collector optionselector show true
znbrowsermanager collector optionselector enabled true
znbrowsermanager collector pnlcolselector show true
znbrowsermanager collector pnlcolselector enabled true
znbrowsermanager collector preselector show true
znbrowsermanager collector preselector enabled true
znbrowsermanager collector selection show true
znbrowsermanager collector selection enabled true
znbrowsermanager collector undo show true
znbrowsermanager collector undo enabled true
