// A data control of the embedded host: one database, and what scripts make on it.
#ifndef ZN_HOST_DATA_CTRL_H
#define ZN_HOST_DATA_CTRL_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserDataCtrl.h"
#include "store/base_source.h"
#include "store/change_log.h"
#include "store/custom_source.h"
#include "store/data_operation.h"
#include "store/data_reference.h"
#include "store/hierarchical_source.h"
#include "store/input_field.h"
#include "store/link_index.h"
#include "store/row_copies.h"
#include "store/row_journal.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace znhost {

class Browser;

/// Base sources and references follow the tables of the database: each question looks whether they changed.
/// What has gone is not listed any more, but its object stays, and is the one listed when it comes back.
class DataCtrl final : public znIBrowserDataCtrl, public HostObject {
public:
    /// Opens the database `file`, made when missing unless it is only to be read, one on a server when that
    /// is named, or one in memory when `file` is "". Null, with the reason in `error`, when that cannot be
    /// done.
    static std::shared_ptr<DataCtrl> Open(Browser& model, const std::string& name, const std::string& file,
                                          Database::Access access, std::string& error);
    DataCtrl(Browser& model, std::string name, std::unique_ptr<Database> database);
    ~DataCtrl() override;

    const std::string& Name() const { return name_; }
    Browser& Model() const { return model_; }
    HostServices& Services() const;
    Database& Db() { return *database_; }
    // Whether rows may be changed, and what people have changed.
    bool MayChange() const { return database_->MayChange(); }
    /// @return false, with the reason, when the database cannot be opened so. What was changed before it is
    /// only read again cannot be undone any more.
    bool SetMayChange(bool may, std::string& error);
    ChangeLog& Changes() { return changes_; }
    /// Undoes the last of the changes. @return false, with the reason, and nothing is undone
    bool UndoChange(std::string& error);
    /// Looks whether another connection has changed the database, and tells the views. @return false, with
    /// the reason, when the database cannot be read
    bool FollowOthers(bool& changed, std::string& error);
    /// Whether others were seen to have changed the database, and the views have not been told.
    bool HasNews() const { return hasNews_; }
    /// Tells the reason of a failure to who can read no answer, as a background error.
    void Report(const char* what, const std::string& error);
    RowCopies& Copies() { return copies_; }
    LinkIndexes& Indexes() { return indexes_; }
    const RowJournal& Journal() const { return journal_; }
    /// Where its states are kept; null: nowhere.
    void SetStates(std::shared_ptr<znIBrowserStateContainer> states) { states_ = std::move(states); }
    znIBrowserStateContainer* States() const { return states_.get(); }

    /// Runs one SQL statement, the values bound to its `?`. @return false with the database's reason in
    /// `error`.
    bool RunSql(const std::string& statement, const std::vector<std::string>& values,
                std::vector<std::vector<std::string>>& rows, std::string& error);
    /// Brings sources and references up to date with the tables. @return false, with the reason, when the
    /// database cannot be read at present: they stay as they were.
    bool Refresh(std::string& error);
    /// As they were when last looked at.
    const std::vector<Schema::TablePtr>& Tables() const { return schema_.Known(); }
    /// Another number as soon as rows may be others than before; always another while that cannot be known.
    std::uint64_t Version();
    /// Makes the views and the other sources let go of tables, columns and references that the database lost:
    /// not while a transaction may still bring them back, and never in the middle of a question.
    void ForgetMissing();
    /// Whether there is something that could be let go of.
    bool HasMissing() const {
        return !(goneBases_.empty() && goneReferences_.empty()) && !database_->InTransaction();
    }
    /// Tells the views that items came, went or changed: whichever.
    void ItemsChanged();
    /// Tells them that rows of the database were changed, which are looked up in the journal.
    void RowsChanged();
    /// Notes it, to be told later: before what may run out of memory when it is half done.
    void NoteItemsChanged() noexcept;
    /// Whether a view shows the source or another source is made of it.
    bool Uses(SimpleSource& source) const;

    // While the database cannot be read, what was there last is found: the reason becomes the browser
    // object's error text.
    SimpleSource* FindSimple(const std::string& name);
    HierarchicalSource* FindHierarchical(const std::string& name) { return hierarchical_.Find(name); }
    DataReference* FindReference(const std::string& name);
    /// The references of the database, in the order of the tables and their keys.
    const std::vector<DataReference*>& References();
    /// Refuses a call because nothing of that name was found: with that, or with the reason why the database
    /// cannot be read. @return false
    bool FailNoSource(const std::string& name);
    bool FailNoReference(const std::string& name);

    // Input fields. @return null, false: with the reason as the browser object's error text.
    InputField* AddInputField(const std::string& name, const std::string& type);
    bool RemoveInputField(const std::string& name);

    const char* GetName() const override;
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override;
    znIBrowserDataSourceSimple* FindDataSourceSimple(const char* name) override;
    bool CreateDataSourceSimple(const char* name, const char* caption, const char* description) override;
    bool DeleteDataSourceSimple(const char* name) override;
    void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) override;
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) override;
    bool CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                      const char* text2) override;
    bool CreateDataOperation(const char* name) override;
    void GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) override;
    znIBrowserDataOperation* FindDataOperation(const char* name) override;
    bool SetDataSourceSimpleCaption(znIBrowserDataSourceSimple* source, const char* caption) override;
    bool SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple* source, const char* caption) override;
    znIBrowserDataSource* FindDataSource(const char* name) override;
    bool GetDataReferences(std::vector<znIBrowserDataReference*>& references) override;
    znIBrowserDataReference* FindDataReference(const char* name) override;
    bool GetDataSources(std::vector<znIBrowserDataSource*>& sources) override;
    void SetCurrentView(znIBrowserView* view) override;
    znIBrowserInputField* CreateInputField(const char* name, const char* type, int& status) override;
    bool DeleteInputField(const char* name) override;
    bool GetInputFields(std::vector<znIBrowserInputField*>& fields) override;
    znIBrowserInputField* FindInputField(const char* name) override;
    znIBrowserStateContainer* GetStateContainer() override;
    bool DeleteDataOperation(znIBrowserDataOperation* operation) override;

private:
    /// As `Refresh`, with the reason as the browser object's error text.
    bool LookAgain();
    bool CheckNewSource(const std::string& name);
    /// All that are there, as the tables were when last looked at.
    std::vector<SimpleSource*> SimpleSources() const;
    void TakeOverTables();
    void Follow(const Database::Stamp& now) {
        followed_ = now;
        hasNews_ = false;
    }
    bool IsByOthers(const Database::Stamp& now) const {
        return followed_.schema >= 0 && (now.foreign != followed_.foreign || !now.SameTables(followed_));
    }
    void ListTables();
    void NoteGone(const std::vector<BaseSource*>& bases, const std::vector<DataReference*>& references);
    template <class Gone, class Forgetting>
    static void ForgetEach(std::vector<Gone*>& gone, Forgetting forget);
    void Forget(BaseSource& base);
    void Forget(DataReference& reference);
    void TakeOverReferences(const Table& table);

    Browser& model_;
    const std::string name_;
    const std::unique_ptr<Database> database_;
    Schema schema_;
    RowCopies copies_;
    RowJournal journal_;
    ChangeLog changes_;
    Database::Stamp told_;     // when rows were last said to have changed
    Database::Stamp followed_; // when it was last looked whether others changed something
    bool hasNews_ = false;     // somebody else has since
    Database::Stamp stamp_;    // of the tables when the sources were last brought up to date
    Database::Stamp counted_;  // of the rows when the version was last asked for
    std::uint64_t version_ = 0;

    // All that there ever was, and what there is now.
    std::unordered_map<std::string, std::shared_ptr<BaseSource>> knownBases_;
    std::unordered_map<std::string, std::shared_ptr<DataReference>> knownReferences_;
    std::vector<BaseSource*> bases_;
    std::vector<DataReference*> references_;
    // What has gone, or has columns that have, and is still to be let go of.
    std::vector<BaseSource*> goneBases_;
    std::vector<DataReference*> goneReferences_;

    NamedList<CustomSource> custom_;
    NamedList<HierarchicalSource> hierarchical_;
    NamedList<DataOperation> operations_;
    NamedList<InputField> inputFields_;
    LinkIndexes indexes_;
    std::shared_ptr<znIBrowserStateContainer> states_; ///< they lie in the database, which goes after them
};

} // namespace znhost

#endif
