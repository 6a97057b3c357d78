// A custom data source: made by a script of base sources.
#ifndef ZN_HOST_CUSTOM_SOURCE_H
#define ZN_HOST_CUSTOM_SOURCE_H

#include "store/criteria.h"
#include "store/row_numbers.h"
#include "store/simple_source.h"

namespace znhost {

/// The union of the items of its bases, each narrowed by the criteria. It has the properties only that
/// scripts give it: an attribute reads the column of that number of the table in which the item is.
class CustomSource final : public SimpleSource {
public:
    CustomSource(DataCtrl& control, std::string name)
        : SimpleSource(control, std::move(name)), criteria_(Log()) {}

    /// The base to which settings refer; null for all.
    BaseSource* ChosenBase() const { return chosen_; }
    std::vector<BaseSource*> BasesOfSettings() const;
    /// Lets go of a base whose table has gone.
    void Forget(const BaseSource& base);

    std::vector<RowPart> Parts() override;
    BaseSource* BaseAt(std::size_t slot) override;
    std::vector<BaseSource*> Bases() override { return bases_; }
    std::int64_t RowOf(RowPlace place) override { return numbers_.RowOf(place); }
    RowPlace PlaceOf(std::int64_t row) override { return numbers_.PlaceOf(row); }

protected:
    bool IsCustomSource() const override { return true; }
    bool AddBase(BaseSource& base) override;
    bool RemoveBase(BaseSource& base) override;
    bool ChooseBase(BaseSource& base) override;
    znIBrowserCriteriaContainer* CriteriaList() override { return &criteria_; }
    bool AddCriteria(const std::string& name) override;
    bool RemoveCriteria(znIBrowserCriteria& criteria) override;
    Schema::TablePtr TableOfAttributes() override;

private:
    bool NarrowPart(const BaseSource& base, RowPart& part);

    std::vector<BaseSource*> bases_; // in the order connected
    std::vector<BaseSource*> slots_; // all that were ever connected: row numbers stay valid
    BaseSource* chosen_ = nullptr;
    RowNumbers numbers_;
    znhost::CriteriaList criteria_;
};

} // namespace znhost

#endif
