znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W tree]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W tree]
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W {tree structure}]
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure box}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure spare}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeRequestSelectionUpdate W {*}[znbrowsermanager app row W {tree structure spare} lists]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeRequestDeselect W [znbrowsermanager app row W lists]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W lists]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager window current W
znbrowsermanager window expandselected
znbrowsermanager window current W
znbrowsermanager view filter string current ea
znbrowsermanager window current W
znbrowsermanager window expandall
znbrowsermanager window current W
znbrowsermanager window find property add Name
znbrowsermanager window current W
znbrowsermanager window find property current Name
znbrowsermanager window find property criterion value ea
znbrowsermanager window find type next
znbrowsermanager window find perform
znbrowsermanager window current W
znbrowsermanager app prune W
znbrowsermanager window current W
znbrowsermanager view filter string current {}
znbrowsermanager window current W
znbrowsermanager app filter column V mass between 1 20
znbrowsermanager app details W true
znbrowsermanager app chooser W true
znbrowsermanager app scroll W {lists part shaft}
znbrowsermanager app chooser W false
