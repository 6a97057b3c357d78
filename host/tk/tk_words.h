// What the Tcl scripts of the windows ask the host: "::znbrowser::host WORD NUMBER ...".
#ifndef ZN_HOST_TK_WORDS_H
#define ZN_HOST_TK_WORDS_H

struct Tcl_Interp;
struct Tcl_Obj;

namespace znhost {

/// The command procedure; `windows` is the TkWindows. The words, with the number of an open window first:
///
///   position NUMBER INDEX       the position of a row; -1 when there is none
///   find NUMBER FIRST TEXT      the position of the next row, from FIRST on, that begins with TEXT; or -1
///   indices NUMBER FIRST COUNT  the Tk indices of rows, by position
///   item NUMBER INDEX           the data source of the item that a row stands for, and its number there; or
///   "" look NUMBER                 all but the rows, as a dictionary: columns, operations, counts, settings
///   changes NUMBER              what changed since this was asked last: kinds of changes and Tk indices
///   page NUMBER FIRST COUNT     rows, each a list: index, parent, depth, kind, text, expanded, selected,
///                               whether it can be expanded, bold, italic, icon, cells, whether it is
///                               collected. A cell is a list: the number of its column, then its elements,
///                               each a list: kind, text, colour, name. Columns are counted from 0, hidden
///                               ones too.
///   popup NUMBER                what the popup menu shows that is open: a list as "app popup" answers it
///   aside NUMBER                there was a right click beside all rows: the next menu is about it
///   collector NUMBER            what the collector bar shows, see `NewCollectorBar`
///   preselect NUMBER INDEX      the row under the pointer; 0 when there is none
///   prune NUMBER                collapses whatever holds no selected row
///   refusal NUMBER TYPE TEXT    why a text is no value of a type of input fields; "" when it is one
///   selected NUMBER             the Tk indices of the selected rows that are visible
///   begin NUMBER                what happens from now on is waited for by the user of that window
///   end                         until now; whether it was cancelled
///   time MILLISECONDS           the time for what need not be done to the end
///   cancel                      the user does not wait any longer
///   busy                        whether the display is served while the host works
///   error                       why the host refused last; forgets it
int AnswerTkWord(void* windows, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);

} // namespace znhost

#endif
