// What the operations of popup menus and of their items say alike.
#ifndef POPUP_MESSAGES_H
#define POPUP_MESSAGES_H

namespace znlayer {

namespace popup_messages {

inline constexpr char noMenu[] = "Cannot get name of the current popup menu";
inline constexpr char noItem[] = "Cannot get name of the current popup menu item";
inline constexpr char notSupported[] = "Popup menus are not supported by the host";
/// The name follows.
inline constexpr char unknownMenu[] = "Cannot find popup menu named: ";

} // namespace popup_messages

} // namespace znlayer

#endif
