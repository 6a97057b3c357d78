// A user input field of the embedded host.
#ifndef ZN_HOST_INPUT_FIELD_H
#define ZN_HOST_INPUT_FIELD_H

#include "base/host_call.h"
#include "model/readable_field.h"

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace znhost {

/// A named value of one type, which is zero, false or "" until it is set. Setters and getters of any other
/// type are refused; arrays are not held. A new type puts the value back.
class InputField final : public ReadableField, public HostObject {
public:
    InputField(CallLog& log, std::string name, ZNBROWSER_DATA_TYPE type);

    const std::string& Name() const { return name_; }
    /// The type of that word: "bool", "unsigned", "integer", "double" or "string", in any case; "int",
    /// "uint" and "str" for short, "boolean" for long. None for any other word.
    static std::optional<ZNBROWSER_DATA_TYPE> TypeOfWord(const std::string& word);

    std::string Text() const override;
    const std::vector<std::string>& Choices() const override { return choices_; }
    /// They hold until the field has another type. Texts of values of its type, as `Text` writes them.
    void SetChoices(std::vector<std::string> choices) { choices_ = std::move(choices); }

    const char* GetName() const override;
    ZNBROWSER_DATA_TYPE GetDataType() const override;
    void SetDataType(ZNBROWSER_DATA_TYPE type) override;
    bool GetStringValue(znString& value) const override;
    bool GetDoubleValue(double& value) const override;
    bool GetIntegerValue(int& value) const override;
    bool GetBoolValue(bool& value) const override;
    void ResetValue() override;
    bool SetStringValue(const char* value) override;
    bool SetDoubleValue(double value) override;
    bool SetIntegerValue(int value) override;
    bool SetUnsignedValue(unsigned int value) override;
    bool SetBoolValue(bool value) override;

private:
    using Content = std::variant<std::monostate, bool, unsigned int, int, double, std::string>;

    /// The zero of a type; nothing for a type that is not held.
    static Content ZeroOf(ZNBROWSER_DATA_TYPE type);
    template <class Type>
    bool Store(Type value);
    template <class Type, class Out>
    bool Load(Out& value) const;

    const std::string name_;
    ZNBROWSER_DATA_TYPE type_;
    Content value_;
    std::vector<std::string> choices_;
};

} // namespace znhost

#endif
