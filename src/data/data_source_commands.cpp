// datasource ...: the data sources of the current data control.
#include "data/data_source_commands.h"

#include "frame/command_table.h"

const char* const znBrowserTclMessages::DATASOURCE =
    "    znbrowsermanager datasource [action] \n\n"
    "    \thierarchical    Datasource hierarchical options...\n"
    "    \tsimple          Datasource simple options...\n\n";

// No command prints these two: they are for the host's own help.
const char* const znBrowserTclMessages::DATAITEMTYPE =
    "    znbrowsermanager dataitemtype [action] \n\n"
    "    \tnames        show datatype name list for current datasource\n\n";

const char* const znBrowserTclMessages::DATAFIELD =
    "    znbrowsermanager datafield [action] \n\n"
    "    \tnames        show datatype name list for current dataitemtype\n\n";

namespace znlayer {

namespace {

constexpr CommandRow dataSourceRows[] = {
    {Keyword::Hierarchical, "Data sources that arrange simple ones as a tree.", &dataSourceHierarchicalLevel},
    {Keyword::Simple, "Data sources that are flat, base and custom.", &dataSourceSimpleLevel},
};

} // namespace

constexpr CommandLevel dataSourceLevel(dataSourceRows, znBrowserTclMessages::DATASOURCE);

} // namespace znlayer

int znBrowserManagerTcl::DataSourceTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::dataSourceLevel, objc, objv);
}
