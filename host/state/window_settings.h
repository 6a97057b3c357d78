// What a window is configured like, taken down as settings, and brought back.
#ifndef ZN_HOST_WINDOW_SETTINGS_H
#define ZN_HOST_WINDOW_SETTINGS_H

#include "state/setting.h"

#include <string>

namespace znhost {

class Window;

/// Takes down the window, the view that it shows, and the GUI maps. False, with the reason, when it shows
/// none.
bool KeepSettings(Window& window, Settings& settings, std::string& error);

/// Makes the window, its view and the GUI maps what they were. What does not exist any more is skipped, and
/// named in `skipped` ("": nothing was); what has come since stays, behind what was there before. Doing it
/// twice is doing it once.
///
/// @return false, with the reason in `skipped`, when the window shows no view, or was closed by a script that
///         ran meanwhile.
bool RestoreSettings(Window& window, Settings settings, std::string& skipped);

} // namespace znhost

#endif
