#include "model/view_property.h"

#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view.h"

#include <algorithm>

namespace znhost {

namespace {

HostServices& ServicesOf(const View& view) { return view.Owner().Services(); }

/// The text a script gave, as a value of the property's type; undefined when it is none.
znVariant ValueOf(ZNBROWSER_DATA_TYPE type, const std::string& text) {
    const char* const start = text.c_str();
    char* end = nullptr;
    const auto isNumber = [&] { return end != start && *end == '\0'; };
    switch (type) {
    case ZNBROWSER_DATA_BOOL:
        if (text == "1" || text == "true" || text == "yes" || text == "on") return znVariant(true);
        if (text == "0" || text == "false" || text == "no" || text == "off") return znVariant(false);
        return {};
    case ZNBROWSER_DATA_UNSIGNED:
    case ZNBROWSER_DATA_INT: {
        const std::int64_t number = std::strtoll(start, &end, 10);
        return isNumber() ? znVariant(number) : znVariant();
    }
    case ZNBROWSER_DATA_DOUBLE: {
        const double number = std::strtod(start, &end);
        return isNumber() ? znVariant(number) : znVariant();
    }
    default: return znVariant(znString(text));
    }
}

} // namespace

ScriptedValue::ScriptedValue(const ViewProperty& property)
    : HostObject(property.Log()), property_(property) {}

// The procedure may delete the property: nothing of it is touched afterwards.
bool ScriptedValue::Compute(const znBrowserDataItem& item, std::string& value) const {
    if (property_.GetScript().empty()) return false;
    return ServicesOf(property_.Owner())
        .CallProcedure({property_.GetScript(), NameOf(log_, item.source), std::to_string(item.row)}, value);
}

const char* ScriptedValue::GetName() const {
    if (Refused("znIBrowserDataProperty::GetName")) return nullptr;
    return property_.GetScript().c_str();
}

bool ScriptedValue::GetValueString(const znBrowserDataItem& item, int index, znString& value) {
    if (Refused("znIBrowserDataProperty::GetValueString", item, index)) return false;
    std::string text;
    if (!Compute(item, text)) return false;
    value.assign(text);
    return true;
}

ZNBROWSER_DATA_TYPE ScriptedValue::GetType() const {
    if (Refused("znIBrowserDataProperty::GetType")) return ZNBROWSER_DATA_UNDEFINED;
    return property_.Type();
}

znVariant ScriptedValue::GetValue(const znBrowserDataItem& item) {
    if (Refused("znIBrowserDataProperty::GetValue", item)) return {};
    const ZNBROWSER_DATA_TYPE type = property_.Type();
    std::string text;
    return Compute(item, text) ? ValueOf(type, text) : znVariant();
}

ViewProperty::ViewProperty(View& view, std::string name)
    : HostObject(view.Log()), view_(view), name_(std::move(name)), scripted_(*this) {}

/// Filters look at values, too.
void ViewProperty::Changed() const { view_.Changed(VIEW_CELLS | (view_.IsFiltered() ? VIEW_FILTER : 0U)); }

void ViewProperty::SetType(ZNBROWSER_DATA_TYPE type) {
    type_ = type;
    Changed();
}

znIBrowserDataProperty* ViewProperty::DataProperty(const znIBrowserDataSourceSimple* source) {
    for (const znBrowserConnection& connection : connections_) {
        if (source && SimpleOf(log_, connection.dataSource) == source) return connection.dataProperty;
    }
    return getScript_.empty() ? nullptr : &scripted_;
}

bool ViewProperty::Connect(znIBrowserDataSource& source, znIBrowserDataProperty& dataProperty) {
    const bool exists = std::any_of(connections_.begin(), connections_.end(),
                                    [&](const auto& connection) { return connection.dataSource == &source; });
    if (exists) return false;
    connections_.push_back({&source, &dataProperty});
    Changed();
    return true;
}

bool ViewProperty::Disconnect(const znIBrowserDataSource& source) {
    const std::size_t before = connections_.size();
    RemoveWhere(connections_, [&](const auto& connection) { return connection.dataSource == &source; });
    if (connections_.size() == before) return false;
    Changed();
    return true;
}

void ViewProperty::Forget(const znIBrowserDataProperty& dataProperty) {
    const std::size_t before = connections_.size();
    RemoveWhere(connections_,
                [&](const auto& connection) { return connection.dataProperty == &dataProperty; });
    if (connections_.size() != before) Changed();
}

void ViewProperty::Detach() {
    connections_.clear();
    getScript_.clear();
}

void ViewProperty::SetScripts(std::string update, std::string get, std::string third) {
    updateScript_ = std::move(update);
    thirdScript_ = std::move(third);
    SetGetScript(std::move(get));
}

void ViewProperty::SetGetScript(std::string script) {
    getScript_ = std::move(script);
    Changed();
}

bool ViewProperty::Update(const znBrowserDataItem& item, const std::string& value) const {
    if (updateScript_.empty()) return Fail("The property \"" + name_ + "\" has no update script");
    CallLog& log = log_; // the procedure may delete the property
    std::string result;
    if (ServicesOf(view_).CallProcedure(
            {updateScript_, NameOf(log, item.source), std::to_string(item.row), value}, result)) {
        return true;
    }
    log.SetError(result);
    return false;
}

const char* ViewProperty::GetName() const {
    if (Refused("znIBrowserViewProperty::GetName")) return nullptr;
    return name_.c_str();
}

znIBrowserView* ViewProperty::GetView() {
    if (Refused("znIBrowserViewProperty::GetView")) return nullptr;
    return &view_;
}

ZNBROWSER_DATA_TYPE ViewProperty::GetType() const {
    if (Refused("znIBrowserViewProperty::GetType")) return ZNBROWSER_DATA_UNDEFINED;
    return type_;
}

void ViewProperty::GetConnections(std::vector<znBrowserConnection>& connections) {
    connections.clear();
    if (Refused("znIBrowserViewProperty::GetConnections")) return;
    connections = connections_;
    if (!getScript_.empty()) connections.push_back({nullptr, &scripted_});
}

znIBrowserDataProperty* ViewProperty::GetDataProperty(znIBrowserDataSourceSimple* source) {
    if (Refused("znIBrowserViewProperty::GetDataProperty", source)) return nullptr;
    return DataProperty(source);
}

} // namespace znhost
