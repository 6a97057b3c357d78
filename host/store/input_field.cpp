// User input fields, and the data control's list of them.
#include "store/input_field.h"

#include "store/data_ctrl.h"

namespace znhost {

namespace {

constexpr std::pair<const char*, ZNBROWSER_DATA_TYPE> typeWords[] = {
    {"bool", ZNBROWSER_DATA_BOOL},         {"boolean", ZNBROWSER_DATA_BOOL},
    {"unsigned", ZNBROWSER_DATA_UNSIGNED}, {"uint", ZNBROWSER_DATA_UNSIGNED},
    {"integer", ZNBROWSER_DATA_INT},       {"int", ZNBROWSER_DATA_INT},
    {"double", ZNBROWSER_DATA_DOUBLE},     {"string", ZNBROWSER_DATA_STRING},
    {"str", ZNBROWSER_DATA_STRING},
};

} // namespace

std::optional<ZNBROWSER_DATA_TYPE> InputField::TypeOfWord(const std::string& word) {
    for (const auto& [spelling, type] : typeWords) {
        if (SameName(word, spelling)) return type;
    }
    return std::nullopt;
}

InputField::InputField(CallLog& log, std::string name, ZNBROWSER_DATA_TYPE type)
    : HostObject(log), name_(std::move(name)), type_(type), value_(ZeroOf(type)) {}

InputField::Content InputField::ZeroOf(ZNBROWSER_DATA_TYPE type) {
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return false;
    case ZNBROWSER_DATA_UNSIGNED: return 0U;
    case ZNBROWSER_DATA_INT: return 0;
    case ZNBROWSER_DATA_DOUBLE: return 0.0;
    case ZNBROWSER_DATA_STRING: return std::string();
    default: return {};
    }
}

std::string InputField::Text() const {
    struct Writer {
        std::string operator()(std::monostate) const { return {}; }
        std::string operator()(bool value) const { return value ? "true" : "false"; }
        std::string operator()(double value) const { return NumberWord(value); }
        std::string operator()(const std::string& value) const { return value; }
        std::string operator()(int value) const { return std::to_string(value); }
        std::string operator()(unsigned int value) const { return std::to_string(value); }
    };
    return std::visit(Writer(), value_);
}

template <class Type>
bool InputField::Store(Type value) {
    if (!std::holds_alternative<Type>(value_)) {
        return Fail("The input field \"" + name_ + "\" does not hold values of that type");
    }
    value_ = std::move(value);
    return true;
}

template <class Type, class Out>
bool InputField::Load(Out& value) const {
    const Type* const held = std::get_if<Type>(&value_);
    if (held) value = *held;
    return held != nullptr;
}

const char* InputField::GetName() const {
    if (Refused("znIBrowserInputField::GetName")) return nullptr;
    return name_.c_str();
}

ZNBROWSER_DATA_TYPE InputField::GetDataType() const {
    if (Refused("znIBrowserInputField::GetDataType")) return ZNBROWSER_DATA_UNDEFINED;
    return type_;
}

void InputField::SetDataType(ZNBROWSER_DATA_TYPE type) {
    if (Refused("znIBrowserInputField::SetDataType", type)) return;
    if (type == type_) return;
    value_ = ZeroOf(type);
    choices_.clear();
    type_ = type;
}

bool InputField::GetStringValue(znString& value) const {
    return !Refused("znIBrowserInputField::GetStringValue") && Load<std::string>(value);
}

bool InputField::GetDoubleValue(double& value) const {
    return !Refused("znIBrowserInputField::GetDoubleValue") && Load<double>(value);
}

bool InputField::GetIntegerValue(int& value) const {
    return !Refused("znIBrowserInputField::GetIntegerValue") && Load<int>(value);
}

bool InputField::GetBoolValue(bool& value) const {
    return !Refused("znIBrowserInputField::GetBoolValue") && Load<bool>(value);
}

void InputField::ResetValue() {
    if (Refused("znIBrowserInputField::ResetValue")) return;
    value_ = ZeroOf(type_);
}

bool InputField::SetStringValue(const char* value) {
    return !Refused("znIBrowserInputField::SetStringValue", value) && Store(TextOf(value));
}

bool InputField::SetDoubleValue(double value) {
    return !Refused("znIBrowserInputField::SetDoubleValue", value) && Store(value);
}

bool InputField::SetIntegerValue(int value) {
    return !Refused("znIBrowserInputField::SetIntegerValue", value) && Store(value);
}

bool InputField::SetUnsignedValue(unsigned int value) {
    return !Refused("znIBrowserInputField::SetUnsignedValue", value) && Store(value);
}

bool InputField::SetBoolValue(bool value) {
    return !Refused("znIBrowserInputField::SetBoolValue", value) && Store(value);
}

// ---- The data control's fields

InputField* DataCtrl::AddInputField(const std::string& name, const std::string& type) {
    const std::optional<ZNBROWSER_DATA_TYPE> known = InputField::TypeOfWord(type);
    if (name.empty()) {
        Fail("An input field needs a name");
    } else if (inputFields_.Find(name)) {
        Fail("The data control \"" + name_ + "\" already has an input field \"" + name + "\"");
    } else if (!known) {
        Fail("Unknown type \"" + type + "\": it must be bool, unsigned, integer, double or string");
    } else {
        return &inputFields_.Add(std::make_shared<InputField>(log_, name, *known));
    }
    return nullptr;
}

bool DataCtrl::RemoveInputField(const std::string& name) {
    InputField* const doomed = inputFields_.Find(name);
    if (!doomed) return Fail("The data control \"" + name_ + "\" has no input field \"" + name + "\"");
    inputFields_.Remove(*doomed);
    return true;
}

znIBrowserInputField* DataCtrl::CreateInputField(const char* name, const char* type, int& status) {
    status = 1;
    if (Refused("znIBrowserDataCtrl::CreateInputField", name, type)) return nullptr;
    InputField* const field = AddInputField(TextOf(name), TextOf(type));
    status = field ? 0 : 1;
    return field;
}

bool DataCtrl::DeleteInputField(const char* name) {
    if (Refused("znIBrowserDataCtrl::DeleteInputField", name)) return false;
    return RemoveInputField(TextOf(name));
}

bool DataCtrl::GetInputFields(std::vector<znIBrowserInputField*>& fields) {
    fields.clear();
    if (Refused("znIBrowserDataCtrl::GetInputFields")) return false;
    inputFields_.CopyTo(fields);
    return true;
}

znIBrowserInputField* DataCtrl::FindInputField(const char* name) {
    if (Refused("znIBrowserDataCtrl::FindInputField", name)) return nullptr;
    return inputFields_.Find(TextOf(name));
}

} // namespace znhost
