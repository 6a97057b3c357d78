#include "model/gui_map.h"

#include "model/variants.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

namespace znhost {

namespace {

/// The kinds of keys, by their place in `GuiMap::Key`.
enum KeyKind : std::size_t { boolKey, intKey, unsignedKey, doubleKey, textKey, noKey };

struct TypeRow {
    const char* name;
    GuiMapShows shows;
    KeyKind key;
};

constexpr TypeRow types[] = {
    {"UNDEFINED", GuiMapShows::Nothing, noKey},         {"INT_TO_ICON", GuiMapShows::Icon, intKey},
    {"INT_TO_STRING", GuiMapShows::Text, intKey},       {"INT_TO_RGB", GuiMapShows::Colour, intKey},
    {"DOUBLE_TO_ICON", GuiMapShows::Icon, doubleKey},   {"DOUBLE_TO_STRING", GuiMapShows::Text, doubleKey},
    {"DOUBLE_TO_RGB", GuiMapShows::Colour, doubleKey},  {"UINT_TO_ICON", GuiMapShows::Icon, unsignedKey},
    {"UINT_TO_STRING", GuiMapShows::Text, unsignedKey}, {"UINT_TO_RGB", GuiMapShows::Colour, unsignedKey},
    {"BOOL_TO_ICON", GuiMapShows::Icon, boolKey},       {"BOOL_TO_STRING", GuiMapShows::Text, boolKey},
    {"BOOL_TO_RGB", GuiMapShows::Colour, boolKey},      {"STRING_TO_ICON", GuiMapShows::Icon, textKey},
    {"STRING_TO_STRING", GuiMapShows::Text, textKey},   {"STRING_TO_RGB", GuiMapShows::Colour, textKey},
    {"STRING_TO_BUTTON", GuiMapShows::Button, textKey},
};

const TypeRow& RowOf(ZNBROWSER_GUIMAP_TYPE type) {
    const auto place = static_cast<std::size_t>(type);
    return place < std::size(types) ? types[place] : types[0];
}

template <class Number>
bool ReadNumber(const std::string& text, GuiMap::Key& key) {
    Number number{};
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size()) return false;
    key = number;
    return true;
}

bool ReadBool(const std::string& text, GuiMap::Key& key) {
    if (text != "true" && text != "false") return false;
    key = text == "true";
    return true;
}

/// The value as a whole number, when it is one and lies within the range of `Number`.
template <class Number>
bool Whole(const znVariant& value, Number& number) {
    const double real = RealOf(value);
    if (!(real >= static_cast<double>(std::numeric_limits<Number>::min()) &&
          real <= static_cast<double>(std::numeric_limits<Number>::max())) ||
        real != std::floor(real)) {
        return false;
    }
    number = static_cast<Number>(real);
    return true;
}

} // namespace

GuiMapShows GuiMap::Shows() const { return RowOf(type_).shows; }

void GuiMap::SetType(ZNBROWSER_GUIMAP_TYPE type) {
    if (RowOf(type).key != RowOf(type_).key) records_.clear();
    type_ = type;
}

ZNBROWSER_GUIMAP_TYPE GuiMap::TypeOf(std::string_view name) {
    for (std::size_t i = 0; i < std::size(types); ++i) {
        if (name == types[i].name) return static_cast<ZNBROWSER_GUIMAP_TYPE>(i);
    }
    return ZNBROWSER_GUIMAP_UNDEFINED;
}

const char* GuiMap::TypeName(ZNBROWSER_GUIMAP_TYPE type) { return RowOf(type).name; }

bool GuiMap::SetRecord(const Key& key, GuiMapRecord record) {
    if (RowOf(type_).key == noKey) return Fail("GUI map \"" + name_ + "\" has no type yet");
    const double* const real = std::get_if<double>(&key);
    if (RowOf(type_).key != key.index() || (real && std::isnan(*real))) {
        return Fail("GUI map \"" + name_ + "\" of type " + TypeName(type_) + " does not take the key " +
                    KeyText(key));
    }
    records_[key] = std::move(record);
    return true;
}

bool GuiMap::DeleteRecord(const Key& key) {
    if (records_.erase(key)) return true;
    return Fail("GUI map \"" + name_ + "\" has no record " + KeyText(key));
}

std::string GuiMap::KeyText(const Key& key) {
    struct Print {
        std::string operator()(bool value) const { return value ? "true" : "false"; }
        std::string operator()(int value) const { return std::to_string(value); }
        std::string operator()(unsigned int value) const { return std::to_string(value); }
        std::string operator()(double value) const { return ValueText(value); }
        std::string operator()(const std::string& value) const { return value; }
    };
    return std::visit(Print(), key);
}

bool GuiMap::ReadKey(const std::string& text, Key& key) const {
    switch (RowOf(type_).key) {
    case boolKey: return ReadBool(text, key);
    case intKey: return ReadNumber<int>(text, key);
    case unsignedKey: return ReadNumber<unsigned int>(text, key);
    case doubleKey: return ReadNumber<double>(text, key);
    case textKey: key = text; return true;
    default: return false;
    }
}

const GuiMapRecord* GuiMap::Exactly(const Key& key) const {
    const auto found = records_.find(key);
    return found == records_.end() ? nullptr : &found->second;
}

const GuiMapRecord* GuiMap::Find(const znVariant& value) const {
    if (value.GetType() == znVariant::Undefined || records_.empty()) return nullptr;
    const std::size_t kind = RowOf(type_).key;
    if (kind == textKey) return Exactly(ValueText(value));
    if (!IsNumber(value)) return nullptr;
    if (kind == boolKey) return Exactly(RealOf(value) != 0);
    if (kind == doubleKey && std::isnan(RealOf(value))) return nullptr;
    if (kind == doubleKey) {
        const auto above = records_.upper_bound(RealOf(value));
        return above == records_.begin() ? nullptr : &std::prev(above)->second;
    }
    int whole = 0;
    unsigned int natural = 0;
    if (kind == intKey) return Whole(value, whole) ? Exactly(whole) : nullptr;
    return Whole(value, natural) ? Exactly(natural) : nullptr;
}

const char* GuiMap::GetName() const {
    if (Refused("znIBrowserGuiMap::GetName")) return nullptr;
    return name_.c_str();
}

bool GuiMap::GetType(ZNBROWSER_GUIMAP_TYPE& type) const {
    if (Refused("znIBrowserGuiMap::GetType")) return false;
    type = type_;
    return true;
}

bool GuiMap::GetRecords(std::vector<std::pair<znString, znString>>& records) const {
    records.clear();
    if (Refused("znIBrowserGuiMap::GetRecords")) return false;
    records.reserve(records_.size());
    for (const auto& [key, record] : records_) records.emplace_back(KeyText(key), record.value);
    return true;
}

} // namespace znhost
