znbrowsermanager dataoperation create tidy
znbrowsermanager dataoperation names
znbrowsermanager dataoperation current tidy
znbrowsermanager dataoperation script x {set ::tidy yes}
znbrowsermanager dataoperation script
znbrowsermanager dataoperation perform
set tidy
