// A simple data source of the embedded host.
#ifndef ZN_HOST_SIMPLE_SOURCE_H
#define ZN_HOST_SIMPLE_SOURCE_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/popup_place.h"
#include "model/row_source.h"
#include "store/data_property.h"
#include "store/data_source.h"
#include "store/row_part.h"

#include <functional>
#include <memory>
#include <optional>

namespace znhost {

class BaseSource;
class CellTexts;
class DataCtrl;

/// What base and custom sources have in common: a name, captions, properties, and rows that come from one or
/// more tables. A source belongs to its data control; a base source lives as long as that.
class SimpleSource : public znIBrowserDataSourceSimple,
                     public RowSource,
                     public HostObject,
                     public std::enable_shared_from_this<SimpleSource> {
public:
    const std::string& Name() const { return name_; }
    DataCtrl& Control() const { return control_; }
    DataSource& Facet() { return facet_; }

    void SetCaption(std::string caption) { caption_ = std::move(caption); }
    void SetFilterCaption(std::string caption) { filterCaption_ = std::move(caption); }
    /// Notes why something of this source was refused: here and in the browser object. @return false
    bool FailWith(std::string text) const;
    /// Notes that rows could not be read, as well among the application's troubles. @return false
    bool FailToRead(const std::string& reason) const;

    // Rows. Row numbers are those of the data items; a place tells the table and the row number there.
    /// The tables of the source as they are now, without those that cannot be read at present; the reason
    /// for that is noted.
    virtual std::vector<RowPart> Parts() = 0;
    /// The base source of that slot; null when there is none any more.
    virtual BaseSource* BaseAt(std::size_t slot) = 0;
    /// The bases that the source has now.
    virtual std::vector<BaseSource*> Bases() = 0;
    virtual std::int64_t RowOf(RowPlace place) = 0;
    /// A place that nothing stands at when there is no such row number.
    virtual RowPlace PlaceOf(std::int64_t row) = 0;
    /// Calls `take` with a statement that stands on the row and whose first column is the value.
    /// @return false when there is no such row
    bool ReadColumn(RowPlace place, std::size_t column, const std::function<void(Statement&)>& take);

    /// The property of that name; null when there is none.
    DataProperty* FindProperty(std::string_view name);
    /// The properties that scripts made.
    const NamedList<DataProperty>& CreatedProperties() const { return created_; }

    // znIBrowserDataSourceSimple
    const char* GetName() const override;
    const char* GetCaption() const override;
    const char* GetFilterCaption() const override;
    const char* GetError() const override;
    bool IsConnected() const override;
    bool IsBase() const override;
    bool IsCustom() const override;
    bool ConnectBase(znIBrowserDataSourceSimple* base) override;
    bool DisconnectBase(znIBrowserDataSourceSimple* base) override;
    bool GetBaseDataSources(std::vector<znIBrowserDataSourceSimple*>& bases) override;
    void Update() override;
    bool SetCurrentBase(znIBrowserDataSourceSimple* base) override;
    znIBrowserCriteriaContainer* GetCriteriaList() override;
    bool CreateCriteria(const char* name) override;
    bool DeleteCriteria(znIBrowserCriteria* criteria) override;
    bool GetDataProperties(std::vector<znIBrowserDataProperty*>& properties) override;
    bool CreateDataPropertyAttribute(const char* name, ZNBROWSER_DATA_TYPE type, unsigned int attributeId,
                                     int extra) override;
    bool CreateDataPropertyScript(const char* name, const char* script) override;
    bool DeleteDataProperty(const char* name) override;
    void GetDataItems(znBrowserDataItems& items) override;
    znIBrowserDataSource* GetDataSource() override;
    znIBrowserDataCtrl* GetDataCtrl() override;
    znIBrowserPopupMenu* GetPopupMenu() override;
    bool SetPopupMenu(const char* name) override;

    // RowSource
    znIBrowserDataSourceSimple* GetSource() override { return this; }
    void List(const RowQuery& query, std::vector<std::int64_t>& rows) override;
    SharedRows ListAll() override;
    void AskAlong(const std::function<void()>& ask) override;
    void Scan(RowScan& scan, std::chrono::steady_clock::time_point until, std::vector<std::int64_t>& rows,
              std::vector<std::int64_t>* others) override;
    std::uint64_t Version() override;
    bool ListBelow(const RowLink& link, const std::vector<std::int64_t>& parents, const RowOrder& order,
                   RowGroups& groups) override;
    std::int64_t Count(const RowQuery& query) override;
    bool HasChildren(const RowLink& link, std::int64_t parent) override;
    void HaveChildren(const RowLink& link, const std::vector<std::int64_t>& parents,
                      std::vector<bool>& have) override;
    void Parents(const RowLink& link, const std::vector<std::int64_t>& children,
                 std::vector<std::int64_t>& parents) override;
    void Children(const RowLink& link, const std::vector<std::int64_t>& parents,
                  std::vector<std::int64_t>& children) override;
    bool HasMoreThan(std::size_t count) override;
    bool ChangedRows(std::uint64_t since, std::vector<std::int64_t>& rows) override;
    bool SortRows(const RowOrder& order, std::vector<std::int64_t>& rows) override;
    RowMark Mark() override;
    void NewRows(const RowMark& since, std::vector<std::int64_t>& rows) override;
    RowCondition OneOf(znIBrowserDataProperty& property, const std::vector<znString>& values) override;
    bool HasRow(std::int64_t row) override;
    std::vector<std::int64_t> Missing(const std::vector<std::int64_t>& rows) override;
    bool GetText(std::int64_t row, std::string& text) override;
    bool IsStored(znIBrowserDataProperty* property) override;
    void ReadTexts(const std::vector<std::int64_t>& rows,
                   const std::vector<znIBrowserDataProperty*>& properties,
                   std::vector<std::optional<std::string>>& texts) override;
    bool WriteBoolean(znIBrowserDataProperty& property, std::int64_t row, bool value,
                      std::string& error) override;
    bool MoveBelow(const RowLink& link, const std::vector<std::int64_t>& rows, std::int64_t parent,
                   std::string& error) override;

protected:
    SimpleSource(DataCtrl& control, std::string name);
    /// Brings the tables up to date. @return false, with the reason noted, when they cannot be read: what was
    /// there last is known
    bool LookAgain() const;
    void OnRefused(const std::string& text) const override { error_ = text; }

    virtual bool IsCustomSource() const = 0;
    // What only a custom source can do; a base source refuses.
    virtual bool AddBase(BaseSource& base);
    virtual bool RemoveBase(BaseSource& base);
    virtual bool ChooseBase(BaseSource& base);
    virtual znIBrowserCriteriaContainer* CriteriaList() { return nullptr; }
    virtual bool AddCriteria(const std::string& name);
    virtual bool RemoveCriteria(znIBrowserCriteria& criteria);
    /// The table, as last looked at, by which the numbers of attributes are checked; null for none.
    virtual Schema::TablePtr TableOfAttributes() = 0;
    /// The properties that the source has by itself, in order, as the table was when last looked at.
    virtual std::vector<DataProperty*> ColumnProperties() { return {}; }
    virtual DataProperty* FindColumnProperty(std::string_view) { return nullptr; }

private:
    bool ReadTextsTogether(const RowPart& part, const std::vector<std::int64_t>& rows, CellTexts& cells,
                           std::size_t count, std::vector<std::optional<std::string>>& texts);
    class PartScan;
    struct Found {
        std::vector<std::int64_t>& rows;
        std::vector<std::int64_t>* others;
    };

    bool FailNotCustom() const;
    bool CheckNewProperty(const std::string& name) const;
    bool AddProperty(std::shared_ptr<DataProperty> property);

    DataCtrl& control_;
    const std::string name_;
    std::string caption_;
    std::optional<std::string> filterCaption_; ///< Without one of its own: the caption.
    NamedList<DataProperty> created_;
    DataSource facet_;
    PopupPlace popupMenu_;
    mutable std::string error_;
};

/// The source behind an interface: every simple source of this host is one of these. Null for null.
inline SimpleSource* SourceOf(znIBrowserDataSourceSimple* source) {
    return static_cast<SimpleSource*>(source);
}
inline SimpleSource& SourceOf(RowSource& source) { return static_cast<SimpleSource&>(source); }

} // namespace znhost

#endif
