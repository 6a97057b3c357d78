// A data reference of the embedded host: a foreign key.
#ifndef ZN_HOST_DATA_REFERENCE_H
#define ZN_HOST_DATA_REFERENCE_H

#include "base/host_call.h"
#include "host/znIBrowserDataReference.h"
#include "store/schema.h"

namespace znhost {

/// The items of one table refer to those of another. Named after the table and the first column of the key:
/// "part.assembly_id".
class DataReference final : public znIBrowserDataReference, public HostObject {
public:
    DataReference(CallLog& log, std::string name) : HostObject(log), name_(std::move(name)) {}

    const std::string& Name() const { return name_; }
    /// Whether the database has the key now.
    bool IsThere() const { return !table_.empty(); }
    /// The name of the table that holds the key; "" when it has gone.
    const std::string& HoldingTable() const { return table_; }
    const ForeignKey& Key() const { return key_; }
    /// `table` null: the key has gone.
    void SetKey(const Table* table, ForeignKey key) {
        table_ = table ? table->name : std::string();
        key_ = std::move(key);
    }

    const char* GetName() const override {
        if (Refused("znIBrowserDataReference::GetName")) return nullptr;
        return name_.c_str();
    }

private:
    const std::string name_;
    std::string table_;
    ForeignKey key_;
};

} // namespace znhost

#endif
