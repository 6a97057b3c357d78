// Data properties that scripts add to a simple data source, and the fields of its items.
#include "data/data_messages.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataSourceSimple.h"

#include <string_view>

using namespace znlayer;
using namespace data_messages;

namespace {

constexpr char noItemType[] = "Cannot get handle to current dataitemtype";
constexpr char noFields[] = "Cannot get list of fields";
// The host's numbering goes on to 13, with further array types.
constexpr int lastHostType = 13;

} // namespace

bool znBrowserManagerTcl::CreateDataPropertyScripted(const char* name, const char* script) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noDataSource);
    if (!name || !script || !current_.dataSourceSimple->CreateDataPropertyScript(name, script))
        return operation.Fail(current_.dataSourceSimple->GetError());
    return GetState();
}

bool znBrowserManagerTcl::CreateDataPropertyScripted(const char* name, ZNBROWSER_DATA_TYPE type,
                                                     unsigned int attributeId, int extra) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noDataSource);
    if (type < ZNBROWSER_DATA_BOOL || type > lastHostType)
        return operation.Fail("Incorrect data type specified");
    if (!name || !current_.dataSourceSimple->CreateDataPropertyAttribute(name, type, attributeId, extra))
        return operation.Fail(current_.dataSourceSimple->GetError());
    return GetState();
}

// The fields of the current data item type are the data properties of the current simple source.
bool znBrowserManagerTcl::GetPropertyNames(znString& out) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noItemType);
    std::vector<znIBrowserDataProperty*> fields;
    if (!current_.dataSourceSimple->GetDataProperties(fields)) return operation.Fail(noFields);
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(fields).Give(*this, out);
}

bool znBrowserManagerTcl::GetDataType(const char* fieldName, ZNBROWSER_DATA_TYPE& type) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noItemType);
    std::vector<znIBrowserDataProperty*> fields;
    if (!current_.dataSourceSimple->GetDataProperties(fields)) return operation.Fail(noFields);
    for (const znIBrowserDataProperty* const field : fields) {
        const char* const name = field && fieldName ? field->GetName() : nullptr;
        if (!name || std::string_view(name) != fieldName) continue;
        type = field->GetType();
        return GetState();
    }
    return operation.Fail({"Cannot find field name : ", fieldName});
}
