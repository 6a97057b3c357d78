// The word "app popup": what a right click shows.
#ifndef ZN_HOST_POPUP_APP_COMMANDS_H
#define ZN_HOST_POPUP_APP_COMMANDS_H

#include "window/popup_entries.h"

struct Tcl_Obj;

namespace znhost {

class AppCall;

/// A list with a dictionary for each entry: item, caption, kind, enabled, checked, help, value, entries,
/// icon, description.
Tcl_Obj* NewPopupEntries(const PopupEntries& entries);

/// "popup WINDOW ?COLUMN INDEX ...?": the entries of the menu that a right click there shows.
int AnswerPopup(AppCall& call);

} // namespace znhost

#endif
