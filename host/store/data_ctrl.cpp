#include "store/data_ctrl.h"

#include "base/services.h"
#include "model/browser.h"
#include "model/data_sources.h"

namespace znhost {

std::shared_ptr<DataCtrl> DataCtrl::Open(Browser& model, const std::string& name, const std::string& file,
                                         Database::Access access, std::string& error) {
    std::unique_ptr<Database> database = Database::Open(file, error, access);
    if (!database) return nullptr;
    const auto control = std::make_shared<DataCtrl>(model, name, std::move(database));
    std::string ignored;
    control->database_->ReadStamp(control->followed_, ignored); // what others change from here on is noticed
    return control;
}

DataCtrl::DataCtrl(Browser& model, std::string name, std::unique_ptr<Database> database)
    : HostObject(model.Log()), model_(model), name_(std::move(name)), database_(std::move(database)),
      schema_(*database_), copies_(*database_), journal_(*database_) {
    database_->SetWhyStop([this] {
        Services().NoteRead(database_->TakeRowsRead());
        return Services().WhyStop();
    });
    database_->SetWhichLook([this] { return Services().Look(); });
}

DataCtrl::~DataCtrl() = default;

HostServices& DataCtrl::Services() const { return model_.Services(); }

bool DataCtrl::RunSql(const std::string& statement, const std::vector<std::string>& values,
                      std::vector<std::vector<std::string>>& rows, std::string& error) {
    std::vector<Value> bound;
    bound.reserve(values.size());
    for (const std::string& value : values) bound.push_back(ValueOfWord(value));
    Database::Stamp before;
    Database::Stamp after;
    std::string ignored;
    const bool known = database_->ReadStamp(before, error);
    if (!known && database_->Sql().isServer && !database_->InTransaction())
        return false; // nothing was done yet
    try {
        const bool done = database_->Run(statement, bound, rows, error);
        database_->LookAgain(); // the statement may have called anything
        ForgetMissing();
        if (!known || !database_->ReadStamp(after, ignored) || !after.SameRows(before)) RowsChanged();
        return done;
    } catch (...) { // memory ran out, perhaps after the rows were changed
        NoteItemsChanged();
        throw;
    }
}

void DataCtrl::NoteItemsChanged() noexcept {
    journal_.Forget();
    indexes_.Clear();
    Model().NoteDataChange(*this, VIEW_ROWS | VIEW_CELLS);
}

void DataCtrl::ItemsChanged() {
    journal_.Forget();
    indexes_.Clear();
    Model().DataChanged(*this, VIEW_ROWS | VIEW_CELLS);
}

/// The journal knows nothing of what other connections changed, and of what was undone.
void DataCtrl::RowsChanged() {
    Database::Stamp now;
    std::string ignored;
    const bool isRead = database_->ReadStamp(now, ignored);
    const bool known = isRead && journal_.IsTold() && now.SameTables(told_) && now.foreign == told_.foreign;
    told_ = now;
    if (!known) {
        if (isRead) Follow(now);
        return ItemsChanged();
    }
    indexes_.Clear();
    Model().DataChanged(*this, VIEW_ITEMS);
}

// ---- Changes

bool DataCtrl::SetMayChange(bool may, std::string& error) {
    if (may == MayChange()) return true;
    if (!database_->Reopen(may ? Database::Access::Change : Database::Access::Read, error)) return false;
    if (!may) changes_.Clear();
    ForgetMissing();
    ItemsChanged();
    return true;
}

bool DataCtrl::UndoChange(std::string& error) {
    if (!changes_.Undo(*database_, error)) return false;
    ItemsChanged();
    return true;
}

bool DataCtrl::FollowOthers(bool& changed, std::string& error) {
    Database::Stamp now;
    if (!database_->FollowFile(error) || !database_->ReadStamp(now, error)) return false;
    changed = IsByOthers(now) || (followed_.schema >= 0 && !now.SameElsewhere(followed_));
    Follow(now);
    if (!changed) return true;
    ForgetMissing();
    ItemsChanged();
    return true;
}

// ---- What the tables give

namespace {

/// The object of that name, made when it is not there yet. None is ever null.
template <class Object, class Make>
Object& FindOrMake(std::unordered_map<std::string, std::shared_ptr<Object>>& known, const std::string& name,
                   Make make) {
    const auto found = known.find(name);
    return found != known.end() ? *found->second : *known.emplace(name, make()).first->second;
}

} // namespace

bool DataCtrl::Refresh(std::string& error) {
    Database::Stamp now;
    if (!database_->ReadStamp(now, error)) return false;
    hasNews_ = hasNews_ || IsByOthers(now);
    if (now.SameTables(stamp_)) return true;
    if (!schema_.Refresh(error)) return false;
    TakeOverTables();
    stamp_ = now;
    return true;
}

std::uint64_t DataCtrl::Version() {
    Database::Stamp now;
    std::string ignored;
    if (database_->ReadStamp(now, ignored) && now.SameRows(counted_)) return version_;
    counted_ = now;
    return ++version_;
}

/// When memory runs out it is done again, from what there was before.
void DataCtrl::TakeOverTables() {
    std::vector<BaseSource*> oldBases;
    std::vector<DataReference*> oldReferences;
    oldBases.swap(bases_);
    oldReferences.swap(references_);
    try {
        ListTables();
        NoteGone(oldBases, oldReferences);
    } catch (...) {
        bases_.swap(oldBases);
        references_.swap(oldReferences);
        stamp_ = {};
        throw;
    }
}

void DataCtrl::ListTables() {
    for (const auto& known : knownBases_) known.second->SetTable(nullptr);
    for (const auto& known : knownReferences_) known.second->SetKey(nullptr, {});
    for (const Schema::TablePtr& table : schema_.Tables()) {
        const auto make = [&] { return std::make_shared<BaseSource>(*this, table->name); };
        BaseSource& base = FindOrMake(knownBases_, table->name, make);
        base.SetTable(table);
        bases_.push_back(&base);
        TakeOverReferences(*table);
    }
}

void DataCtrl::NoteGone(const std::vector<BaseSource*>& bases,
                        const std::vector<DataReference*>& references) {
    for (BaseSource* const base : bases) {
        if (!base->Table() || !base->MissingProperties().empty()) goneBases_.push_back(base);
    }
    for (DataReference* const reference : references) {
        if (!reference->IsThere()) goneReferences_.push_back(reference);
    }
}

void DataCtrl::ForgetMissing() {
    std::string ignored;
    if (!Refresh(ignored) || database_->InTransaction()) return;
    ForgetEach(goneBases_, [this](BaseSource& base) { Forget(base); });
    ForgetEach(goneReferences_, [this](DataReference& reference) {
        if (!reference.IsThere()) Forget(reference);
    });
}

/// What could not be let go of for want of memory stays listed, to be tried again.
template <class Gone, class Forgetting>
void DataCtrl::ForgetEach(std::vector<Gone*>& gone, Forgetting forget) {
    while (!gone.empty()) {
        Gone* const one = gone.back();
        gone.pop_back(); // first: what is told of may run scripts
        try {
            forget(*one);
        } catch (...) {
            gone.push_back(one);
            throw;
        }
    }
}

/// Lets go of the table if it has gone, else of the columns that have.
void DataCtrl::Forget(BaseSource& base) {
    if (base.Table()) {
        for (DataProperty* const property : base.MissingProperties()) Model().Forget(*property);
        return;
    }
    for (const auto& custom : custom_) custom->Forget(base);
    for (const auto& hierarchical : hierarchical_) hierarchical->Forget(base);
    Model().Forget(base.Facet());
}

void DataCtrl::Forget(DataReference& reference) {
    for (const auto& hierarchical : hierarchical_) hierarchical->ForgetLooseChildren();
    Model().Forget(reference);
}

/// A reference is named by the table and the first column of its key. Keys that begin with the same column
/// are told apart by a number.
void DataCtrl::TakeOverReferences(const Table& table) {
    for (const ForeignKey& key : table.foreignKeys) {
        const std::string plain = table.name + "." + key.from.front();
        std::string name = plain;
        const auto make = [&] { return std::make_shared<DataReference>(log_, name); };
        DataReference* reference = &FindOrMake(knownReferences_, name, make);
        for (int number = 2; reference->IsThere(); ++number) {
            name = plain + "#" + std::to_string(number);
            reference = &FindOrMake(knownReferences_, name, make);
        }
        reference->SetKey(&table, key);
        references_.push_back(reference);
    }
}

/// What failed in a question whose answer has no place for it.
void DataCtrl::Report(const char* what, const std::string& error) {
    Fail(error);
    Services().ReportError(name_ + ": " + what + ": " + error);
}

bool DataCtrl::LookAgain() {
    std::string error;
    return Refresh(error) || Fail(error);
}

SimpleSource* DataCtrl::FindSimple(const std::string& name) {
    if (CustomSource* const custom = custom_.Find(name)) return custom;
    LookAgain();
    const auto found = knownBases_.find(name);
    return found != knownBases_.end() && found->second->Table() ? found->second.get() : nullptr;
}

const std::vector<DataReference*>& DataCtrl::References() {
    LookAgain();
    return references_;
}

DataReference* DataCtrl::FindReference(const std::string& name) {
    LookAgain();
    const auto found = knownReferences_.find(name);
    return found != knownReferences_.end() && found->second->IsThere() ? found->second.get() : nullptr;
}

bool DataCtrl::FailNoSource(const std::string& name) {
    return LookAgain() && Fail("The data control \"" + name_ + "\" has no data source \"" + name + "\"");
}

bool DataCtrl::FailNoReference(const std::string& name) {
    return LookAgain() && Fail("The data control \"" + name_ + "\" has no data reference \"" + name + "\"");
}

bool DataCtrl::Uses(SimpleSource& source) const {
    if (Model().Uses(source.Facet())) return true;
    for (const auto& hierarchical : hierarchical_) {
        if (hierarchical->Has(source)) return true;
    }
    for (const auto& custom : custom_) {
        for (const SimpleSource* const base : custom->Bases()) {
            if (base == &source) return true;
        }
    }
    return false;
}

// ---- Sources

const char* DataCtrl::GetName() const {
    if (Refused("znIBrowserDataCtrl::GetName")) return nullptr;
    return name_.c_str();
}

// A table whose name a custom source has already is not listed beside it.
std::vector<SimpleSource*> DataCtrl::SimpleSources() const {
    std::vector<SimpleSource*> sources;
    for (BaseSource* const base : bases_) {
        if (!custom_.Find(base->Name())) sources.push_back(base);
    }
    for (const auto& custom : custom_) sources.push_back(custom.get());
    return sources;
}

void DataCtrl::GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) {
    sources.clear();
    if (Refused("znIBrowserDataCtrl::GetDataSourcesSimple")) return;
    ForgetMissing();
    std::string error;
    if (!Refresh(error)) Report("the tables cannot be read", error);
    const std::vector<SimpleSource*> all = SimpleSources();
    sources.assign(all.begin(), all.end());
}

znIBrowserDataSourceSimple* DataCtrl::FindDataSourceSimple(const char* name) {
    if (Refused("znIBrowserDataCtrl::FindDataSourceSimple", name)) return nullptr;
    return FindSimple(TextOf(name));
}

bool DataCtrl::CheckNewSource(const std::string& name) {
    if (name.empty()) return Fail("A data source needs a name");
    if (!LookAgain()) return false; // a table of that name may be there
    if (!FindSimple(name) && !FindHierarchical(name)) return true;
    return Fail("The data control \"" + name_ + "\" already has a data source \"" + name + "\"");
}

bool DataCtrl::CreateDataSourceSimple(const char* name, const char* caption, const char* description) {
    if (Refused("znIBrowserDataCtrl::CreateDataSourceSimple", name, caption, description)) return false;
    const std::string newName = TextOf(name);
    if (!CheckNewSource(newName)) return false;
    CustomSource& source = custom_.Add(std::make_shared<CustomSource>(*this, newName));
    if (!TextOf(caption).empty()) source.SetCaption(caption);
    return true;
}

bool DataCtrl::DeleteDataSourceSimple(const char* name) {
    if (Refused("znIBrowserDataCtrl::DeleteDataSourceSimple", name)) return false;
    const std::string doomedName = TextOf(name);
    CustomSource* const doomed = custom_.Find(doomedName);
    if (!doomed) {
        if (!FindSimple(doomedName)) return FailNoSource(doomedName);
        return Fail("The data source \"" + doomedName + "\" is a base data source: it cannot be deleted");
    }
    const std::shared_ptr<CustomSource> hold = custom_.Remove(*doomed);
    for (const auto& hierarchical : hierarchical_) hierarchical->Forget(*doomed);
    Model().Forget(doomed->Facet());
    for (const auto& property : doomed->CreatedProperties()) Model().Forget(*property);
    indexes_.Clear();
    return true;
}

void DataCtrl::GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) {
    sources.clear();
    if (Refused("znIBrowserDataCtrl::GetDataSourcesHierarchical")) return;
    hierarchical_.CopyTo(sources);
}

znIBrowserDataSourceHierarchical* DataCtrl::FindDataSourceHierarchical(const char* name) {
    if (Refused("znIBrowserDataCtrl::FindDataSourceHierarchical", name)) return nullptr;
    return FindHierarchical(TextOf(name));
}

// The booleans and the texts mean nothing to this host.
bool DataCtrl::CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                            const char* text2) {
    if (Refused("znIBrowserDataCtrl::CreateDataSourceHierarchical", name, first, second, text1, text2))
        return false;
    const std::string newName = TextOf(name);
    if (!CheckNewSource(newName)) return false;
    hierarchical_.Add(std::make_shared<HierarchicalSource>(*this, newName));
    return true;
}

bool DataCtrl::SetDataSourceSimpleCaption(znIBrowserDataSourceSimple* source, const char* caption) {
    if (Refused("znIBrowserDataCtrl::SetDataSourceSimpleCaption", source, caption)) return false;
    if (!source) return Fail("No data source to set the caption of");
    SourceOf(source)->SetCaption(TextOf(caption));
    Model().DataChanged(*this, VIEW_CELLS);
    return true;
}

bool DataCtrl::SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple* source, const char* caption) {
    if (Refused("znIBrowserDataCtrl::SetDataSourceSimpleFilterCaption", source, caption)) return false;
    if (!source) return Fail("No data source to set the filter caption of");
    SourceOf(source)->SetFilterCaption(TextOf(caption));
    return true;
}

znIBrowserDataSource* DataCtrl::FindDataSource(const char* name) {
    if (Refused("znIBrowserDataCtrl::FindDataSource", name)) return nullptr;
    const std::string wanted = TextOf(name);
    if (SimpleSource* const simple = FindSimple(wanted)) return &simple->Facet();
    HierarchicalSource* const hierarchical = FindHierarchical(wanted);
    return hierarchical ? &hierarchical->Facet() : nullptr;
}

bool DataCtrl::GetDataSources(std::vector<znIBrowserDataSource*>& sources) {
    sources.clear();
    if (Refused("znIBrowserDataCtrl::GetDataSources")) return false;
    if (!LookAgain()) return false;
    for (SimpleSource* const source : SimpleSources()) sources.push_back(&source->Facet());
    for (const auto& hierarchical : hierarchical_) sources.push_back(&hierarchical->Facet());
    return true;
}

// ---- References, states

bool DataCtrl::GetDataReferences(std::vector<znIBrowserDataReference*>& references) {
    references.clear();
    if (Refused("znIBrowserDataCtrl::GetDataReferences")) return false;
    ForgetMissing();
    if (!LookAgain()) return false;
    references.assign(references_.begin(), references_.end());
    return true;
}

znIBrowserDataReference* DataCtrl::FindDataReference(const char* name) {
    if (Refused("znIBrowserDataCtrl::FindDataReference", name)) return nullptr;
    return FindReference(TextOf(name));
}

// Nothing here depends on the view that scripts work on.
void DataCtrl::SetCurrentView(znIBrowserView* view) {
    static_cast<void>(Refused("znIBrowserDataCtrl::SetCurrentView", view));
}

znIBrowserStateContainer* DataCtrl::GetStateContainer() {
    if (Refused("znIBrowserDataCtrl::GetStateContainer")) return nullptr;
    return states_.get();
}

} // namespace znhost
