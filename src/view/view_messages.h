// What the operations of the view family say when something is missing. The texts differ in wording from one
// operation to the next; scripts match on them, so each operation keeps its own.
#ifndef VIEW_MESSAGES_H
#define VIEW_MESSAGES_H

namespace znlayer {

namespace view_messages {

inline constexpr char nullName[] = "NULL pointer found where name is expected";

inline constexpr char noView[] = "Cannot get the current view";
inline constexpr char noViewName[] = "Cannot get name of the current view";
inline constexpr char noViewHandle[] = "Cannot get handle to the current view";
inline constexpr char noColumnName[] = "Cannot get name of the current column";
inline constexpr char noColumnHandle[] = "Cannot get handle to the current column";
inline constexpr char noStyleName[] = "Cannot get name of the current style";
inline constexpr char noStyleHandle[] = "Cannot get handle to the current style";
inline constexpr char noPropertyName[] = "Cannot get name of the current view property";
inline constexpr char noFolderName[] = "Cannot get name of the current free folder";
inline constexpr char noFolderHandle[] = "Cannot get handle to the current folder";
inline constexpr char noListHandle[] = "Cannot get handle to the current list";
inline constexpr char noDataSourceName[] = "Cannot get name of the current datasource";
inline constexpr char noDataItemType[] = "Cannot get handle to current dataitemtype";

} // namespace view_messages

} // namespace znlayer

#endif
