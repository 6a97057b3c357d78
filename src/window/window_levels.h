// The levels below "znbrowsermanager window". Each is defined in the file of its name.
#ifndef WINDOW_LEVELS_H
#define WINDOW_LEVELS_H

#include "frame/command_table.h"

namespace znlayer {

extern const CommandLevel windowPartLevel;
extern const CommandLevel windowPartEventLevel;
extern const CommandLevel windowListenerLevel;
extern const CommandLevel windowMapLevel;
extern const CommandLevel windowFindLevel;

} // namespace znlayer

#endif
