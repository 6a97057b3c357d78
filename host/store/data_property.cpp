#include "store/data_property.h"

#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "store/base_source.h"
#include "store/data_ctrl.h"

#include <algorithm>

namespace znhost {

bool IsNumber(ZNBROWSER_DATA_TYPE type) {
    return type >= ZNBROWSER_DATA_BOOL && type <= ZNBROWSER_DATA_DOUBLE;
}

namespace {

znVariant VariantOf(ZNBROWSER_DATA_TYPE type, Statement& statement) {
    if (statement.IsNull(0)) return {};
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return znVariant(statement.Real(0) != 0.0);
    case ZNBROWSER_DATA_UNSIGNED:
    case ZNBROWSER_DATA_INT: return znVariant(statement.Integer(0));
    case ZNBROWSER_DATA_DOUBLE: return znVariant(statement.Real(0));
    default: return znVariant(znString(statement.Text(0)));
    }
}

/// True as long as it lives.
class Marked {
public:
    explicit Marked(bool& mark) : mark_(mark) { mark_ = true; }
    ~Marked() { mark_ = false; }
    Marked(const Marked&) = delete;
    Marked& operator=(const Marked&) = delete;

private:
    bool& mark_;
};

} // namespace

DataProperty::DataProperty(SimpleSource& owner, std::string name)
    : HostObject(owner.Log()), owner_(owner), name_(std::move(name)) {}

bool DataProperty::IsOwn(const znBrowserDataItem& item) const {
    return !item.source || item.source == &owner_;
}

const char* DataProperty::GetName() const {
    if (Refused("znIBrowserDataProperty::GetName")) return nullptr;
    return name_.c_str();
}

ZNBROWSER_DATA_TYPE DataProperty::GetType() const {
    if (Refused("znIBrowserDataProperty::GetType")) return ZNBROWSER_DATA_UNDEFINED;
    return Type();
}

bool DataProperty::GetValueString(const znBrowserDataItem& item, int index, znString& value) {
    if (Refused("znIBrowserDataProperty::GetValueString", item, index)) return false;
    std::string text;
    if (index != 0 || !IsOwn(item) || !ReadText(item.row, text)) return false;
    value.assign(text);
    return true;
}

znVariant DataProperty::GetValue(const znBrowserDataItem& item) {
    if (Refused("znIBrowserDataProperty::GetValue", item)) return {};
    return IsOwn(item) ? ReadVariant(item.row) : znVariant();
}

ZNBROWSER_DATA_TYPE ColumnProperty::Type() const {
    if (type_) return *type_;
    for (const BaseSource* const base : owner_.Bases()) {
        const auto column = base->Table() ? ColumnIn(*base->Table()) : std::nullopt;
        if (column) return base->Table()->columns[*column].type;
    }
    return ZNBROWSER_DATA_STRING;
}

std::optional<std::size_t> ColumnProperty::ColumnIn(const Table& table) const {
    if (!number_) return table.FindColumn(Name());
    return *number_ < table.columns.size() ? number_ : std::nullopt;
}

bool ColumnProperty::Read(std::int64_t row, const std::function<void(Statement&)>& take) {
    const RowPlace place = owner_.PlaceOf(row);
    const BaseSource* const base = owner_.BaseAt(place.slot);
    if (!base || !base->Table()) return false;
    const auto column = ColumnIn(*base->Table());
    return column && owner_.ReadColumn(place, *column, take);
}

bool ColumnProperty::ReadText(std::int64_t row, std::string& text) {
    bool has = false;
    Read(row, [&](Statement& statement) {
        has = !statement.IsNull(0);
        if (has) text = statement.Text(0);
    });
    return has;
}

znVariant ColumnProperty::ReadVariant(std::int64_t row) {
    znVariant value;
    const ZNBROWSER_DATA_TYPE type = Type();
    Read(row, [&](Statement& statement) { value = VariantOf(type, statement); });
    return value;
}

// The procedure may do anything, also delete the property and its source: both are held until it is done.
bool ScriptedProperty::ReadText(std::int64_t row, std::string& text) {
    const RowPlace place = owner_.PlaceOf(row);
    const BaseSource* const base = owner_.BaseAt(place.slot);
    if (!base) return false;
    if (computing_) return owner_.FailWith("The property \"" + Name() + "\" needs its own values");
    const std::shared_ptr<DataProperty> self = shared_from_this();
    const std::shared_ptr<SimpleSource> owner = owner_.shared_from_this();
    const Marked computing(computing_);
    return owner->Control().Services().ComputeValue(script_, {base->Name(), std::to_string(place.row)}, text);
}

znVariant ScriptedProperty::ReadVariant(std::int64_t row) {
    std::string text;
    return ReadText(row, text) ? znVariant(znString(text)) : znVariant();
}

} // namespace znhost
