#include "app/table_app_commands.h"

#include "app/app_commands.h"
#include "base/tcl_values.h"
#include "store/data_ctrl.h"
#include "store/data_reference.h"

#include <tcl.h>

namespace znhost {

namespace {

const char* TypeName(ZNBROWSER_DATA_TYPE type) {
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return "bool";
    case ZNBROWSER_DATA_INT: return "integer";
    case ZNBROWSER_DATA_DOUBLE: return "double";
    default: return "string";
    }
}

Tcl_Obj* NewColumns(const Table& table) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const TableColumn& column : table.columns) {
        Tcl_Obj* const entry = Tcl_NewDictObj();
        Put(entry, "column", NewText(column.name));
        Put(entry, "declared", NewText(column.declaredType));
        Put(entry, "type", NewText(TypeName(column.type)));
        Put(entry, "key", Tcl_NewBooleanObj(column.primaryKey > 0));
        Tcl_ListObjAppendElement(nullptr, list, entry);
    }
    return list;
}

Tcl_Obj* NewReferences(DataCtrl& control, const Table& table) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const DataReference* const reference : control.References()) {
        if (reference->HoldingTable() != table.name) continue;
        Tcl_Obj* const entry = Tcl_NewDictObj();
        Put(entry, "reference", NewText(reference->Name()));
        Put(entry, "columns", NewList(reference->Key().from));
        Put(entry, "table", NewText(reference->Key().table));
        Put(entry, "to", NewList(reference->Key().to));
        Tcl_ListObjAppendElement(nullptr, list, entry);
    }
    return list;
}

Tcl_Obj* NewTable(DataCtrl& control, const Table& table) {
    const auto display = table.displayColumn;
    Tcl_Obj* const entry = Tcl_NewDictObj();
    Put(entry, "table", NewText(table.name));
    Put(entry, "view", Tcl_NewBooleanObj(table.view));
    Put(entry, "problem", NewText(table.problem));
    Put(entry, "sql", NewText(table.original));
    Put(entry, "key", NewText(table.copied ? "NULL" : table.key));
    Put(entry, "display", NewText(display ? table.columns[*display].name : std::string()));
    Put(entry, "columns", NewColumns(table));
    Put(entry, "references", NewReferences(control, table));
    return entry;
}

} // namespace

int AppFile(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    return control ? call.Answer(control->Db().Place()) : TCL_ERROR;
}

int AppTables(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::string error;
    if (!control->Refresh(error))
        return call.Fail("\"" + control->Name() + "\" cannot be read: " + error, "READ", control->Name());
    const std::string wanted = call.Text(1);
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const Schema::TablePtr& table : control->Tables()) {
        if (call.Count() > 1 && table->name != wanted) continue;
        Tcl_ListObjAppendElement(nullptr, list, NewTable(*control, *table));
    }
    int found = 0;
    Tcl_ListObjLength(nullptr, list, &found);
    if (call.Count() == 1 || found > 0) return call.Answer(list);
    Tcl_DecrRefCount(list);
    return call.Fail("\"" + control->Name() + "\" has no table \"" + wanted + "\"", "TABLE", wanted);
}

} // namespace znhost
