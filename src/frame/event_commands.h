// znbrowsermanager OnTk...: the words that the trees of a window send.
#ifndef EVENT_COMMANDS_H
#define EVENT_COMMANDS_H

namespace znlayer {

class Call;

// One answer per event: reads the arguments and calls the manager's handler. A success leaves the result
// empty.
void OnRequestCollapse(Call& call);
void OnRequestCollapseAll(Call& call);
void OnRequestDeselect(Call& call);
void OnSelectionChangeFinished(Call& call);
void OnRequestSelectionUpdate(Call& call);
void OnRequestExpand(Call& call);
void OnRequestExpandAll(Call& call);
void OnRequestSelect(Call& call);
void OnSetStatePos(Call& call);
void OnCheckBoxClick(Call& call);
void OnWindowButtonClick(Call& call);
void OnLeftHandClick(Call& call);
void OnRightHandClick(Call& call);
void OnPopupMenu(Call& call);
void OnPerformPopupOperation(Call& call);
void OnSetDropItem(Call& call);
void OnColListItemSelected(Call& call);
void OnColOptionItemSelected(Call& call);
void OnColPreselButtonClicked(Call& call);

} // namespace znlayer

#endif
