// The GUI maps of the embedded host.
#ifndef ZN_HOST_GUI_MAP_H
#define ZN_HOST_GUI_MAP_H

#include "base/host_call.h"
#include "host/znIBrowserGuiMap.h"
#include "host/znutl/znVariant.h"

#include <map>
#include <memory>
#include <string>
#include <variant>

namespace znhost {

/// What the records of a map show.
enum class GuiMapShows { Nothing, Icon, Text, Colour, Button };

/// What a map shows for one key. A disabled icon is the greyed form of the file.
struct GuiMapRecord {
    std::string value;
    bool disabled = false;
};

/// A GUI map. Its type says which kind of key it takes; a map without a type takes none.
class GuiMap final : public HostObject, public znIBrowserGuiMap, public std::enable_shared_from_this<GuiMap> {
public:
    using Key = std::variant<bool, int, unsigned int, double, std::string>;

    GuiMap(CallLog& log, std::string name) : HostObject(log), name_(std::move(name)) {}

    const std::string& Name() const { return name_; }
    ZNBROWSER_GUIMAP_TYPE Type() const { return type_; }
    GuiMapShows Shows() const;
    /// Changes the type. Records whose keys are of another kind than the new type's are dropped.
    void SetType(ZNBROWSER_GUIMAP_TYPE type);
    /// The type of that name ("INT_TO_ICON"), or undefined; and the other way round.
    static ZNBROWSER_GUIMAP_TYPE TypeOf(std::string_view name);
    static const char* TypeName(ZNBROWSER_GUIMAP_TYPE type);

    /// Adds a record, or changes the one of that key. False, with the reason, when the map takes no such key.
    bool SetRecord(const Key& key, GuiMapRecord record);
    /// False, with the reason, when there is no record of that key.
    bool DeleteRecord(const Key& key);
    const std::map<Key, GuiMapRecord>& Records() const { return records_; }
    static std::string KeyText(const Key& key);
    /// Reads a key of the kind that the map takes; false when the text is none.
    bool ReadKey(const std::string& text, Key& key) const;

    /// What is shown for a value of a data property; null when nothing is. A value is looked up as the kind
    /// of key that the map takes; with real numbers, the record of the greatest key not above the value is
    /// meant.
    const GuiMapRecord* Find(const znVariant& value) const;

    const char* GetName() const override;
    bool GetType(ZNBROWSER_GUIMAP_TYPE& type) const override;
    bool HasRecord(bool key) const override { return Has(key); }
    bool HasRecord(unsigned int key) const override { return Has(key); }
    bool HasRecord(double key) const override { return Has(key); }
    bool HasRecord(int key) const override { return Has(key); }
    bool HasRecord(const char* key) const override { return Has(std::string(key ? key : "")); }
    bool GetRecords(std::vector<std::pair<znString, znString>>& records) const override;

private:
    template <class Value>
    bool Has(const Value& key) const {
        return !Refused({"znIBrowserGuiMap::HasRecord", "HasRecord"}, key) && records_.count(Key(key));
    }
    const GuiMapRecord* Exactly(const Key& key) const;

    std::string name_;
    ZNBROWSER_GUIMAP_TYPE type_ = ZNBROWSER_GUIMAP_UNDEFINED;
    std::map<Key, GuiMapRecord> records_;
};

} // namespace znhost

#endif
