// The typed value of the host's utility library, as far as the scripting layer uses it.
#ifndef ZN_VARIANT_H
#define ZN_VARIANT_H

#include "znString.h"

#include <cstdint>
#include <utility>
#include <variant>

/// One value read from the host: nothing, a boolean, an integer, a 64-bit integer, a double or a text.
/// A getter that does not fit the stored type gives that type's zero (false, 0, 0.0, a null text).
class znVariant {
public:
    /// The host's numbering of value types. Codes without a name (2 and those above 7) are reserved.
    enum TypeCode { Undefined = 0, Boolean = 1, Integer = 3, Long64 = 4, Float = 5, Double = 6, String = 7 };

    /// Nothing: type `Undefined`.
    znVariant() = default;
    // A value of the type in question. A text keeps whether it has storage.
    znVariant(bool value) : code_(Boolean), value_(value) {}
    znVariant(int value) : code_(Integer), value_(std::int64_t{value}) {}
    znVariant(std::int64_t value) : code_(Long64), value_(value) {}
    znVariant(float value) : code_(Float), value_(double{value}) {}
    znVariant(double value) : code_(Double), value_(value) {}
    znVariant(znString value) : code_(String), value_(std::move(value)) {}
    znVariant(const char* value) : znVariant(znString(value)) {}

    /// The type code of the stored value, as in `TypeCode`.
    int GetType() const { return code_; }
    /// The value of a `Boolean`.
    bool GetBoolean() const { return Get<bool>(); }
    /// The value of an `Integer`, or the low 32 bits of a `Long64`.
    int GetInteger() const { return static_cast<int>(Get<std::int64_t>()); }
    /// The value of a `Long64` or an `Integer`.
    std::int64_t GetLong64() const { return Get<std::int64_t>(); }
    /// The value of a `Double` or a `Float`; integers count as 0.0.
    double GetDouble() const { return Get<double>(); }
    /// The value of a `String`.
    znString GetString() const { return Get<znString>(); }

private:
    template <class T>
    T Get() const {
        const T* const value = std::get_if<T>(&value_);
        return value ? *value : T();
    }

    int code_ = Undefined;
    std::variant<std::monostate, bool, std::int64_t, double, znString> value_;
};

#endif
