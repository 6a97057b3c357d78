#include "store/custom_source.h"

#include "model/data_sources.h"
#include "store/data_ctrl.h"

namespace znhost {

std::vector<BaseSource*> CustomSource::BasesOfSettings() const {
    return chosen_ ? std::vector<BaseSource*>{chosen_} : bases_;
}

bool CustomSource::NarrowPart(const BaseSource& base, RowPart& part) {
    std::string error;
    for (const auto& criteria : criteria_.All()) {
        if (!criteria->Narrow(base, part, error)) return FailWith(error);
    }
    return true;
}

std::vector<RowPart> CustomSource::Parts() {
    std::vector<RowPart> parts;
    for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
        BaseSource* const base = slots_[slot];
        if (!Contains(bases_, base)) continue;
        for (RowPart& part : base->Parts()) {
            part.slot = slot;
            if (NarrowPart(*base, part)) parts.push_back(std::move(part));
        }
    }
    return parts;
}

BaseSource* CustomSource::BaseAt(std::size_t slot) {
    if (slot >= slots_.size() || !Contains(bases_, slots_[slot])) return nullptr;
    return slots_[slot];
}

bool CustomSource::AddBase(BaseSource& base) {
    if (Contains(bases_, &base)) {
        return FailWith("The data source \"" + Name() + "\" is already connected to \"" + base.Name() + "\"");
    }
    AddNew(slots_, &base); // first: without a slot a base would show nothing
    bases_.push_back(&base);
    Control().ItemsChanged();
    return true;
}

bool CustomSource::RemoveBase(BaseSource& base) {
    if (!Contains(bases_, &base)) {
        return FailWith("The data source \"" + Name() + "\" is not connected to \"" + base.Name() + "\"");
    }
    Forget(base);
    Control().ItemsChanged();
    return true;
}

void CustomSource::Forget(const BaseSource& base) {
    RemoveAll(bases_, const_cast<BaseSource*>(&base));
    if (chosen_ == &base) chosen_ = nullptr;
}

bool CustomSource::ChooseBase(BaseSource& base) {
    if (!Contains(bases_, &base)) {
        return FailWith("The data source \"" + Name() + "\" is not connected to \"" + base.Name() + "\"");
    }
    chosen_ = &base;
    return true;
}

bool CustomSource::AddCriteria(const std::string& name) {
    if (name.empty()) return FailWith("A criteria needs a name");
    if (criteria_.All().Find(name)) {
        return FailWith("The data source \"" + Name() + "\" already has a criteria \"" + name + "\"");
    }
    criteria_.All().Add(std::make_shared<Criteria>(*this, name));
    return true;
}

bool CustomSource::RemoveCriteria(znIBrowserCriteria& criteria) {
    if (!criteria_.All().Remove(static_cast<Criteria&>(criteria))) {
        return FailWith("The data source \"" + Name() + "\" does not have that criteria");
    }
    Control().ItemsChanged();
    return true;
}

Schema::TablePtr CustomSource::TableOfAttributes() {
    const std::vector<BaseSource*> bases = BasesOfSettings();
    return bases.empty() ? nullptr : bases.front()->Table();
}

} // namespace znhost
