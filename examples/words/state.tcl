znbrowsermanager app state create bicycle morning
znbrowsermanager state names
znbrowsermanager state current morning
znbrowsermanager state save
znbrowsermanager window expandall
znbrowsermanager state restore
znbrowsermanager app draw main
znbrowsermanager state entity add part note
znbrowsermanager app state entities bicycle morning
znbrowsermanager state entity remove note
znbrowsermanager state data
