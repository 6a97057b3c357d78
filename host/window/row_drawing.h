// The rows of a window as a text.
#ifndef ZN_HOST_ROW_DRAWING_H
#define ZN_HOST_ROW_DRAWING_H

#include <string>

namespace znhost {

class Window;

/// A table with a line for each row: the tree in the first column, then the cells, each column as wide as it
/// needs. Expanded rows have a "▾" and those that can be expanded a "▸", selected ones a "*" at the margin;
/// check boxes are drawn as "[x]", icons as "<name>" and buttons as "[caption]". There is no line feed at the
/// end.
std::string DrawRows(Window& window);

} // namespace znhost

#endif
