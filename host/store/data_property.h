// The data properties of the embedded host.
#ifndef ZN_HOST_DATA_PROPERTY_H
#define ZN_HOST_DATA_PROPERTY_H

#include "base/host_call.h"
#include "host/znIBrowserDataProperty.h"
#include "store/schema.h"

#include <functional>
#include <memory>
#include <optional>

namespace znhost {

class SimpleSource;

/// Whether values of that type are ordered as numbers.
bool IsNumber(ZNBROWSER_DATA_TYPE type);

/// A property of a simple source, which owns it. Values read as the database writes them: a BOOLEAN column
/// that holds 1 gives "1", NULL is no value.
class DataProperty : public znIBrowserDataProperty,
                     public HostObject,
                     public std::enable_shared_from_this<DataProperty> {
public:
    const std::string& Name() const { return name_; }
    SimpleSource& Owner() const { return owner_; }
    virtual ZNBROWSER_DATA_TYPE Type() const = 0;
    /// The column of that table which holds the values; none: the table has no values of the property.
    virtual std::optional<std::size_t> ColumnIn(const Table& table) const = 0;
    /// Whether values have to be computed one by one, by something that may change the model.
    virtual bool IsComputed() const { return false; }
    /// The value of a row of the owner as text. @return false when it has none
    virtual bool ReadText(std::int64_t row, std::string& text) = 0;

    const char* GetName() const override;
    bool GetValueString(const znBrowserDataItem& item, int index, znString& value) override;
    ZNBROWSER_DATA_TYPE GetType() const override;
    znVariant GetValue(const znBrowserDataItem& item) override;

protected:
    DataProperty(SimpleSource& owner, std::string name);
    virtual znVariant ReadVariant(std::int64_t row) = 0;

    SimpleSource& owner_;

private:
    /// The items of a source have values of its own properties only.
    bool IsOwn(const znBrowserDataItem& item) const;

    const std::string name_;
};

/// Reads a column: the one of the property's own name, or the one of that number, counted from 0.
class ColumnProperty final : public DataProperty {
public:
    ColumnProperty(SimpleSource& owner, std::string name) : DataProperty(owner, std::move(name)) {}
    ColumnProperty(SimpleSource& owner, std::string name, ZNBROWSER_DATA_TYPE type, std::size_t number)
        : DataProperty(owner, std::move(name)), type_(type), number_(number) {}

    ZNBROWSER_DATA_TYPE Type() const override;
    std::optional<std::size_t> ColumnIn(const Table& table) const override;
    bool ReadText(std::int64_t row, std::string& text) override;

protected:
    znVariant ReadVariant(std::int64_t row) override;

private:
    bool Read(std::int64_t row, const std::function<void(Statement&)>& take);

    const std::optional<ZNBROWSER_DATA_TYPE> type_;
    const std::optional<std::size_t> number_;
};

/// Computed by a Tcl procedure. It is called with one argument, the item as a list of two elements: the name
/// of the base source, which is its table, and the row number there. An error in it gives no value and is
/// reported as a background error. While a value is computed the property has no other values.
class ScriptedProperty final : public DataProperty {
public:
    ScriptedProperty(SimpleSource& owner, std::string name, std::string script)
        : DataProperty(owner, std::move(name)), script_(std::move(script)) {}

    ZNBROWSER_DATA_TYPE Type() const override { return ZNBROWSER_DATA_STRING; }
    std::optional<std::size_t> ColumnIn(const Table&) const override { return std::nullopt; }
    bool IsComputed() const override { return true; }
    bool ReadText(std::int64_t row, std::string& text) override;

protected:
    znVariant ReadVariant(std::int64_t row) override;

private:
    const std::string script_;
    bool computing_ = false;
};

} // namespace znhost

#endif
