#include "data/item_values.h"

#include "frame/command_count.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewProperty.h"

#include <algorithm>
#include <unordered_map>

namespace znlayer {

namespace {

/// Which data sources of listed items are still alive. The host never tells when one dies; so it is noted,
/// before the first script runs, what each is called and which data control has it, and from the first
/// command that a script uses on a source counts as alive only as long as it is found there.
class LivingSources {
public:
    LivingSources(const znBrowserManagerTcl& manager, const znBrowserDataItems& items) : manager_(manager) {
        for (const znBrowserDataItems::Run& run : items.runs) {
            if (run.source && sources_.find(run.source) == sources_.end())
                sources_.insert(
                    {run.source, {run.source->GetDataCtrl(), run.source->GetName(), begun_, true}});
        }
    }

    bool Has(znIBrowserDataSourceSimple* source) {
        if (!source || commandsBegun == begun_) return source != nullptr;
        Entry& entry = sources_.at(source);
        if (entry.asked != commandsBegun) {
            entry.asked = commandsBegun;
            entry.alive = Lives(entry.control) && entry.name.GetText() &&
                          entry.control->FindDataSourceSimple(entry.name.c_str()) == source;
        }
        return entry.alive;
    }

private:
    struct Entry {
        znIBrowserDataCtrl* control;
        znString name;
        std::uint64_t asked;
        bool alive;
    };

    bool Lives(const znIBrowserDataCtrl* control) const {
        std::vector<znIBrowserDataCtrl*> controls;
        if (control) manager_.GetApplication()->GetDataCtrls(controls);
        return std::find(controls.begin(), controls.end(), control) != controls.end();
    }

    const znBrowserManagerTcl& manager_;
    const std::uint64_t begun_ = commandsBegun;
    std::unordered_map<znIBrowserDataSourceSimple*, Entry> sources_;
};

} // namespace

ItemProperty::ItemProperty(const znBrowserManagerTcl& manager)
    : manager_(manager), current_(manager.GetCurrentViewPropertyPtr()) {}

ItemProperty::ItemProperty(const znBrowserManagerTcl& manager, const char* name)
    : manager_(manager), current_(nullptr), name_(name) {}

znIBrowserDataProperty* ItemProperty::Of(znIBrowserDataSourceSimple* source) {
    if (source == source_ && asked_ == commandsBegun) return property_;
    znIBrowserViewProperty* const found = source ? Find() : nullptr;
    property_ = found ? found->GetDataProperty(source) : nullptr;
    source_ = source;
    asked_ = commandsBegun;
    return property_;
}

znIBrowserViewProperty* ItemProperty::Find() const {
    if (current_) return manager_.GetCurrentViewPropertyPtr() == current_ ? current_ : nullptr;
    znIBrowserView* const view = manager_.GetCurrentViewPtr();
    return view && name_.GetText() ? view->FindViewProperty(name_.c_str()) : nullptr;
}

bool ReadValueString(znIBrowserDataProperty& property, const znBrowserDataItem& item, znString& value) {
    return property.GetValueString(item, 0, value);
}

bool GiveItemValues(znBrowserManagerTcl& manager, const znBrowserDataItems& items,
                    std::initializer_list<ItemProperty*> properties, znString& out, ReadValue read) {
    NameList values(EntryForm::Quoted);
    LivingSources sources(manager, items);
    znString value;
    items.ForEach([&](const znBrowserDataItem& item) {
        for (ItemProperty* const shown : properties) {
            if (!sources.Has(item.source)) return;
            znIBrowserDataProperty* const property = shown->Of(item.source);
            if (!property || !read(*property, item, value)) continue;
            values.Add(value.c_str());
            return;
        }
    });
    manager.SetOk();
    return values.Give(manager, out);
}

} // namespace znlayer
