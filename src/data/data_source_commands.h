// The levels of "datasource ..." that stand in files of their own.
#ifndef DATA_SOURCE_COMMANDS_H
#define DATA_SOURCE_COMMANDS_H

namespace znlayer {

struct CommandLevel;

extern const CommandLevel dataSourceSimpleLevel;
extern const CommandLevel dataSourceHierarchicalLevel;
extern const CommandLevel criteriaLevel;
extern const CommandLevel dataPropertyLevel;

} // namespace znlayer

#endif
