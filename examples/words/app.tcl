znbrowsermanager app datactrl create shop
znbrowsermanager app datactrl names
znbrowsermanager app sql bicycle {SELECT name FROM part WHERE grams < ?} 500
znbrowsermanager app glance bicycle {SELECT count(*) FROM part}
znbrowsermanager app rows main
znbrowsermanager window expandall
znbrowsermanager app rows main 2 1
znbrowsermanager app draw main
znbrowsermanager app popup main
znbrowsermanager app export main selected csv
# An item, what it refers to, what refers to it, and the way to another one.
znbrowsermanager app item main 2 100
znbrowsermanager app references main 2
znbrowsermanager app referring main 2
znbrowsermanager app reveal main part 3
znbrowsermanager app flat main
# Another database file, which is only read; and one that may be changed.
znbrowsermanager app datactrl open old nosuch.db
znbrowsermanager app datactrl write bicycle
znbrowsermanager view property create spare
znbrowsermanager view property type bool
znbrowsermanager view property connect part spare
znbrowsermanager view column create spare
znbrowsermanager OnTkTreeCheckBoxClick main spare "" 3 false
znbrowsermanager app datactrl changes bicycle
znbrowsermanager app datactrl undo bicycle
znbrowsermanager app datactrl file bicycle
znbrowsermanager app tables bicycle part
znbrowsermanager app datactrl follow bicycle
znbrowsermanager app datactrl refresh bicycle
# The same row on another day, and all from one to another.
znbrowsermanager app path main 3
znbrowsermanager app row main {part wheel}
znbrowsermanager app row main {part wheel} {part rim}
znbrowsermanager app scroll main {part wheel}
znbrowsermanager app select all main
# What its user opens beside the rows, as long as the window is posted.
znbrowsermanager app details main true
znbrowsermanager app chooser main false
# Only rows with such a name; the text of a filter may stand in any column shown.
znbrowsermanager app filter column parts Name contains e
znbrowsermanager app draw main
znbrowsermanager app filter column parts Name none
znbrowsermanager app filter scope parts shown
znbrowsermanager app sort natural parts Name true
znbrowsermanager app prune main
# What is done in windows from now on.
znbrowsermanager app record on
znbrowsermanager app record
znbrowsermanager app record off
# What the host was asked, and a call that is refused.
znbrowsermanager app journal on
znbrowsermanager view names
znbrowsermanager app journal
znbrowsermanager app journal clear
znbrowsermanager app journal off
znbrowsermanager app refuse znIBrowser::CreateView "no more views"
znbrowsermanager app refuse
znbrowsermanager view create another
znbrowsermanager app inputfield create bicycle limit integer
znbrowsermanager app inputfield choices bicycle limit {300 500}
znbrowsermanager app inputfield delete bicycle limit
znbrowsermanager app state create bicycle morning
znbrowsermanager app state names bicycle
znbrowsermanager app state file bicycle
znbrowsermanager app state entities bicycle morning
znbrowsermanager app state delete bicycle morning
znbrowsermanager app help
