# Words that belong to no family.
znbrowsermanager datareference names
znbrowsermanager element current text
znbrowsermanager element description "the name of a part"
znbrowsermanager element names
znbrowsermanager empty show true
znbrowsermanager frame
# What a window reports: the first row is the list, its parts follow.
znbrowsermanager OnTkTreeRequestExpand main 1
znbrowsermanager OnTkTreeRequestSelect main 2 3
znbrowsermanager OnTkTreeRequestDeselect main 3
znbrowsermanager OnTkTreeRequestSelectionUpdate main 4 5
znbrowsermanager OnTkTreeSelectionChangeFinished main
znbrowsermanager app draw main
znbrowsermanager selection clear
znbrowsermanager OnTkTreeLeftHandClick main Name text 3
znbrowsermanager OnTkTreeRequestExpandAll main
znbrowsermanager OnTkTreeRequestCollapseAll main
znbrowsermanager OnTkTreeSetStatePos main 1
# A menu.
znbrowsermanager view operation create weigh
znbrowsermanager OnTkTreeRightHandClick main Name 3
znbrowsermanager OnTkTreePopupMenu main true
znbrowsermanager OnTkTreePerformPopupOperation main weigh {}
znbrowsermanager OnTkTreePopupMenu main false
# A check box, and a button.
znbrowsermanager view property create spare
znbrowsermanager view property type bool
znbrowsermanager view property connect part spare
znbrowsermanager view column create Spare
znbrowsermanager view column current Spare
znbrowsermanager view style create ticks
znbrowsermanager view element create tick
znbrowsermanager view element connect property spare
znbrowsermanager OnTkTreeCheckBoxClick main Spare tick 2 true
znbrowsermanager app sql bicycle {SELECT name, spare FROM part WHERE id = 1}
znbrowsermanager OnTkTreeWindowButtonClick main Spare tick 2 weigh
znbrowsermanager checkbox display geom 2 main
znbrowsermanager checkbox create end spare spare
# A tree, into which parts are dropped.
znbrowsermanager datasource hierarchical create inside true true
znbrowsermanager datasource hierarchical connect parent part all
znbrowsermanager datasource hierarchical connect child part part.above
znbrowsermanager view datasource hierarchical connect inside
znbrowsermanager view folder create assembly
znbrowsermanager view folder dropitem datasource hierarchical inside
znbrowsermanager view tree create inside
znbrowsermanager window expandall
znbrowsermanager app rows main
znbrowsermanager OnTkTreeSetDropItem main 8 10
znbrowsermanager app draw main
# The bar of the collector.
znbrowsermanager collector show true
znbrowsermanager OnTkColListItemSelected main part
znbrowsermanager OnTkColOptionItemSelected main isolate
znbrowsermanager OnTkColPreselButtonClicked main on
znbrowsermanager OnTkTreeRequestCollapse main 1
znbrowsermanager element delete tick
