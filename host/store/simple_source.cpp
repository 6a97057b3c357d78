// Simple data sources: identity, captions, properties. The rows are in source_rows.cpp.
#include "store/simple_source.h"

#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "store/base_source.h"
#include "store/data_ctrl.h"

#include <algorithm>

namespace znhost {

SimpleSource::SimpleSource(DataCtrl& control, std::string name)
    : HostObject(control.Log()), control_(control), name_(std::move(name)), caption_(name_), facet_(*this) {}

bool SimpleSource::FailWith(std::string text) const {
    error_ = text;
    return Fail(std::move(text));
}

bool SimpleSource::FailToRead(const std::string& reason) const {
    using Kind = ReadTrouble::Kind;
    const Kind kind = control_.Db().MayPass(reason)     ? Kind::Passing
                      : reason == HostServices::tooLong ? Kind::TooLong
                                                        : Kind::Lasting;
    control_.Services().Trouble().Note(name_, reason, kind);
    return FailWith(reason);
}

bool SimpleSource::FailNotCustom() const {
    return FailWith("The data source \"" + name_ + "\" is a base data source: it cannot be changed");
}

bool SimpleSource::LookAgain() const {
    std::string error;
    return control_.Refresh(error) || FailToRead(error);
}

bool SimpleSource::ReadColumn(RowPlace place, std::size_t column,
                              const std::function<void(Statement&)>& take) {
    BaseSource* const base = BaseAt(place.slot);
    return base && base->ReadValue(place.row, column, take);
}

// ---- Properties

DataProperty* SimpleSource::FindProperty(std::string_view name) {
    if (DataProperty* const created = created_.Find(name)) return created;
    return FindColumnProperty(name);
}

bool SimpleSource::CheckNewProperty(const std::string& name) const {
    if (name.empty()) return FailWith("A data property needs a name");
    if (!created_.Find(name)) return true;
    return FailWith("The data source \"" + name_ + "\" already has a property \"" + name + "\"");
}

bool SimpleSource::AddProperty(std::shared_ptr<DataProperty> property) {
    created_.Add(std::move(property));
    return true;
}

// A property that a script made takes the place of the column of that name.
bool SimpleSource::GetDataProperties(std::vector<znIBrowserDataProperty*>& properties) {
    properties.clear();
    if (Refused("znIBrowserDataSourceSimple::GetDataProperties")) return false;
    if (!IsCustomSource() && !LookAgain()) return false;
    for (DataProperty* const column : ColumnProperties()) {
        if (!created_.Find(column->Name())) properties.push_back(column);
    }
    for (const auto& created : created_) properties.push_back(created.get());
    return true;
}

bool SimpleSource::CreateDataPropertyAttribute(const char* name, ZNBROWSER_DATA_TYPE type,
                                               unsigned int attributeId, int extra) {
    if (Refused("znIBrowserDataSourceSimple::CreateDataPropertyAttribute", name, type, attributeId, extra))
        return false;
    const std::string newName = TextOf(name);
    if (!CheckNewProperty(newName)) return false;
    if (!LookAgain()) return false;
    const Schema::TablePtr table = TableOfAttributes();
    if (table && attributeId >= table->columns.size()) {
        return FailWith("The data source \"" + name_ + "\" has no attribute " + std::to_string(attributeId) +
                        ": its attributes are numbered from 0 to " +
                        std::to_string(static_cast<long long>(table->columns.size()) - 1));
    }
    return AddProperty(std::make_shared<ColumnProperty>(*this, newName, type, attributeId));
}

bool SimpleSource::CreateDataPropertyScript(const char* name, const char* script) {
    if (Refused("znIBrowserDataSourceSimple::CreateDataPropertyScript", name, script)) return false;
    const std::string newName = TextOf(name);
    if (!CheckNewProperty(newName)) return false;
    if (TextOf(script).empty()) {
        return FailWith("The property \"" + newName + "\" needs the name of a procedure");
    }
    return AddProperty(std::make_shared<ScriptedProperty>(*this, newName, TextOf(script)));
}

bool SimpleSource::DeleteDataProperty(const char* name) {
    if (Refused("znIBrowserDataSourceSimple::DeleteDataProperty", name)) return false;
    const std::string doomedName = TextOf(name);
    if (DataProperty* const doomed = created_.Find(doomedName)) {
        const std::shared_ptr<DataProperty> hold = created_.Remove(*doomed);
        control_.Model().Forget(*hold);
        return true;
    }
    if (FindColumnProperty(doomedName)) {
        return FailWith("The property \"" + doomedName + "\" is a column of \"" + name_ +
                        "\": it cannot be deleted");
    }
    return FailWith("The data source \"" + name_ + "\" has no property \"" + doomedName + "\"");
}

// ---- The interface's questions

const char* SimpleSource::GetName() const {
    if (Refused("znIBrowserDataSourceSimple::GetName")) return nullptr;
    return name_.c_str();
}

const char* SimpleSource::GetCaption() const {
    if (Refused("znIBrowserDataSourceSimple::GetCaption")) return nullptr;
    return caption_.c_str();
}

const char* SimpleSource::GetFilterCaption() const {
    if (Refused("znIBrowserDataSourceSimple::GetFilterCaption")) return nullptr;
    return (filterCaption_ ? *filterCaption_ : caption_).c_str();
}

// Asked for after a refusal, whose text must remain: a refusal of this very call gives nothing.
const char* SimpleSource::GetError() const {
    const std::string error = error_;
    if (!Refused("znIBrowserDataSourceSimple::GetError")) return error_.c_str();
    error_ = error;
    return nullptr;
}

bool SimpleSource::IsConnected() const {
    if (Refused("znIBrowserDataSourceSimple::IsConnected")) return false;
    return control_.Uses(*const_cast<SimpleSource*>(this));
}

bool SimpleSource::IsBase() const {
    if (Refused("znIBrowserDataSourceSimple::IsBase")) return false;
    return !IsCustomSource();
}

bool SimpleSource::IsCustom() const {
    if (Refused("znIBrowserDataSourceSimple::IsCustom")) return false;
    return IsCustomSource();
}

bool SimpleSource::ConnectBase(znIBrowserDataSourceSimple* base) {
    if (Refused("znIBrowserDataSourceSimple::ConnectBase", base)) return false;
    BaseSource* const source = dynamic_cast<BaseSource*>(SourceOf(base));
    return source ? AddBase(*source) : FailWith("Only a base data source can be connected");
}

bool SimpleSource::DisconnectBase(znIBrowserDataSourceSimple* base) {
    if (Refused("znIBrowserDataSourceSimple::DisconnectBase", base)) return false;
    BaseSource* const source = dynamic_cast<BaseSource*>(SourceOf(base));
    return source ? RemoveBase(*source) : FailWith("Only a base data source can be disconnected");
}

bool SimpleSource::GetBaseDataSources(std::vector<znIBrowserDataSourceSimple*>& bases) {
    bases.clear();
    if (Refused("znIBrowserDataSourceSimple::GetBaseDataSources")) return false;
    control_.ForgetMissing();
    if (!IsCustomSource()) return true;
    for (BaseSource* const base : Bases()) bases.push_back(base);
    return true;
}

void SimpleSource::Update() {
    if (Refused("znIBrowserDataSourceSimple::Update")) return;
    control_.ItemsChanged();
}

bool SimpleSource::SetCurrentBase(znIBrowserDataSourceSimple* base) {
    if (Refused("znIBrowserDataSourceSimple::SetCurrentBase", base)) return false;
    BaseSource* const source = dynamic_cast<BaseSource*>(SourceOf(base));
    return source ? ChooseBase(*source) : FailWith("Only a base data source can be chosen");
}

znIBrowserCriteriaContainer* SimpleSource::GetCriteriaList() {
    if (Refused("znIBrowserDataSourceSimple::GetCriteriaList")) return nullptr;
    return CriteriaList();
}

bool SimpleSource::CreateCriteria(const char* name) {
    if (Refused("znIBrowserDataSourceSimple::CreateCriteria", name)) return false;
    return AddCriteria(TextOf(name));
}

bool SimpleSource::DeleteCriteria(znIBrowserCriteria* criteria) {
    if (Refused("znIBrowserDataSourceSimple::DeleteCriteria", criteria)) return false;
    return criteria ? RemoveCriteria(*criteria) : FailWith("No criteria to delete");
}

znIBrowserDataSource* SimpleSource::GetDataSource() {
    if (Refused("znIBrowserDataSourceSimple::GetDataSource")) return nullptr;
    return &facet_;
}

znIBrowserDataCtrl* SimpleSource::GetDataCtrl() {
    if (Refused("znIBrowserDataSourceSimple::GetDataCtrl")) return nullptr;
    return &control_;
}

znIBrowserPopupMenu* SimpleSource::GetPopupMenu() {
    if (Refused("znIBrowserDataSourceSimple::GetPopupMenu")) return nullptr;
    return popupMenu_.Get();
}

bool SimpleSource::SetPopupMenu(const char* name) {
    if (Refused("znIBrowserDataSourceSimple::SetPopupMenu", name)) return false;
    return popupMenu_.Set(control_.Model(), name);
}

// ---- What a base source cannot do

bool SimpleSource::AddBase(BaseSource&) { return FailNotCustom(); }

bool SimpleSource::RemoveBase(BaseSource&) { return FailNotCustom(); }

bool SimpleSource::ChooseBase(BaseSource&) { return FailNotCustom(); }

bool SimpleSource::AddCriteria(const std::string&) { return FailNotCustom(); }

bool SimpleSource::RemoveCriteria(znIBrowserCriteria&) { return FailNotCustom(); }

} // namespace znhost
