#include "base/host_call.h"

#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataSourceSimple.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace znhost {

std::string NumberWord(double value) {
    char text[32];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, value);
    return std::string(text, end.ptr);
}

CallArgument Argument(CallLog& log, const znBrowserDataItem& item) {
    return {true, {NameOf(log, item.source), std::to_string(item.row)}};
}

CallArgument Argument(CallLog& log, const znBrowserDataItem* const& item) {
    return item ? Argument(log, *item) : CallArgument{false, {""}};
}

void CallLog::SetJournal(bool on) {
    recording_ = on;
    Rearm();
}

bool CallLog::Refuse(const std::string& operation, const std::string& text) {
    if (!IsOperation(operation)) return false;
    refusals_.push_back({operation, text});
    Rearm();
    return true;
}

void CallLog::FailCall(std::size_t n, Fault fault, bool andFollowing) {
    fault_ = {n != 0, n, 0, fault, andFollowing};
    Rearm();
}

void CallLog::Record(const char* operation, std::vector<CallArgument> arguments) {
    journal_.push_back({operation, std::move(arguments)});
}

bool CallLog::TakesRefusal(const char* operation) {
    const auto refusal = std::find_if(refusals_.begin(), refusals_.end(),
                                      [&](const Refusal& waiting) { return waiting.operation == operation; });
    if (refusal != refusals_.end()) {
        SetError(std::move(refusal->text));
        refusals_.erase(refusal);
        Rearm();
        return true;
    }
    return fault_.armed && SweepHits(operation);
}

bool CallLog::SweepHits(const char* operation) {
    ++fault_.seen;
    if (fault_.seen < fault_.n || (fault_.seen > fault_.n && !fault_.andFollowing)) return false;
    if (fault_.fault == Fault::Throw) throw std::runtime_error(std::string(operation) + " failed on demand");
    SetError(std::string(operation) + " was refused on demand");
    return true;
}

} // namespace znhost
