znbrowsermanager view column current Name
znbrowsermanager view sort enabled
znbrowsermanager view sort descending
znbrowsermanager window expandall
znbrowsermanager app draw main
znbrowsermanager view sort ascending
znbrowsermanager view sort
znbrowsermanager view sort disabled
