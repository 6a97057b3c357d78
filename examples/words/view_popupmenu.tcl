znbrowsermanager view popupmenu create tools
znbrowsermanager view popupmenuitem create weigh
znbrowsermanager view popupmenu names
znbrowsermanager view popupmenu current tools
proc posting {window column rows} {}
znbrowsermanager view popupmenu onpost posting
znbrowsermanager view popupmenu connect view
znbrowsermanager view folder current parts
znbrowsermanager view popupmenu connect folder
znbrowsermanager view popupmenu connect column
znbrowsermanager view popupmenu connect datasource part
znbrowsermanager view popupmenu connected
znbrowsermanager view popupmenu disconnect folder
znbrowsermanager view popupmenu disconnect column
znbrowsermanager view popupmenu disconnect datasource part
znbrowsermanager app popup main
znbrowsermanager view popupmenu disconnect view
znbrowsermanager view popupmenu delete tools
