// What a window's collector bar needs to know.
#ifndef ZN_HOST_TK_COLLECTOR_H
#define ZN_HOST_TK_COLLECTOR_H

struct Tcl_Obj;

namespace znhost {

class Window;

/// A new dictionary:
/// - `shown`: whether the window has its bar; `controls`: by the words of the collector command, each a list
///   of whether it stands in the bar, and whether it answers;
/// - `kinds`: what can be collected; `kind`: what is, "" for everything; `collected`: how many items are;
/// - `options` and `option`: the actions, and the one that is chosen; `click`: how clicks collect, by its
///   word; `autofit` and `preselector`: whether they are on;
/// - `undo` and `restore`: how many steps can be taken back, and restored; `step`: what the last one did;
/// - `named` and `current`: the named collections, and the current one;
/// - `hidden`: how many items the display state hides.
Tcl_Obj* NewCollectorBar(Window& window);

} // namespace znhost

#endif
