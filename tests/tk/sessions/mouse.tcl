znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W tree]
znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W {tree structure}]
znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W {tree structure box}]
znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W {tree structure box input}]
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure box input gear}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeLeftHandClick W Name {} [znbrowsermanager app row W {tree structure box input gear}]
znbrowsermanager OnTkTreeRequestSelect W [znbrowsermanager app row W {tree structure box input shaft}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeLeftHandClick W Name {} [znbrowsermanager app row W {tree structure box input shaft}]
znbrowsermanager OnTkTreeLeftHandClick W visible {} [znbrowsermanager app row W {tree structure box input gear}]
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure box input gear}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager window current W
znbrowsermanager view column current mass
znbrowsermanager view sort enabled
znbrowsermanager window current W
znbrowsermanager view column current mass
znbrowsermanager view sort ascending
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure box input shaft}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeLeftHandClick W Name {} [znbrowsermanager app row W {tree structure box input shaft}]
znbrowsermanager OnTkTreeSetDropItem W [znbrowsermanager app row W {tree structure box output}] [znbrowsermanager app row W {tree structure box input shaft}]
znbrowsermanager OnTkTreeRequestExpand W [znbrowsermanager app row W {tree structure box output}]
znbrowsermanager OnTkTreeRequestSelectionUpdate W [znbrowsermanager app row W {tree structure box output bolt}]
znbrowsermanager OnTkTreeSelectionChangeFinished W
znbrowsermanager OnTkTreeLeftHandClick W Name {} [znbrowsermanager app row W {tree structure box output bolt}]
