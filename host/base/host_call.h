// The record of host calls: which were made, and which are to fail.
#ifndef ZN_HOST_HOST_CALL_H
#define ZN_HOST_HOST_CALL_H

#include "base/operation_names.h"
#include "host/znutl/znString.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

struct znBrowserDataItem;

namespace znhost {

static_assert(std::is_sorted(std::begin(operationNames), std::end(operationNames)));

/// Whether `name` is an operation of the host interfaces, written "znIBrowser::DeleteView".
constexpr bool IsOperation(std::string_view name) {
    return std::binary_search(std::begin(operationNames), std::end(operationNames), name);
}

/// The name of the operation that is being called. One that the interfaces do not have does not compile, nor
/// does one that is not called like the function in which it stands, which is named where that function asks
/// through another.
class OperationName {
public:
    consteval OperationName(const char* name, const char* function = __builtin_FUNCTION()) : name_(name) {
        const std::string_view text(name);
        if (!IsOperation(text)) throw "this is no operation of the host interfaces";
        if (text.substr(text.rfind(':') + 1) != function) throw "this is another function's operation";
    }
    constexpr operator const char*() const { return name_; }

private:
    const char* name_;
};

/// One argument of a recorded call: a word, or a list of words.
struct CallArgument {
    bool isList = false;
    std::vector<std::string> words;
};

/// One recorded call. The operation's name is a literal: "znIBrowser::DeleteView".
struct HostCall {
    const char* operation;
    std::vector<CallArgument> arguments;
};

/// The next call of that operation is refused, with that error text.
struct Refusal {
    std::string operation;
    std::string text;
};

/// Watches every call that reaches a host object through its interface. It keeps the journal, the refusals
/// that wait for their call, the fault of a sweep, and the text that tells why the last call was refused.
class CallLog {
public:
    enum class Fault { Refuse, Throw };

    CallLog() = default;
    CallLog(const CallLog&) = delete;
    CallLog& operator=(const CallLog&) = delete;

    void SetJournal(bool on);
    const std::vector<HostCall>& Journal() const { return journal_; }
    void ClearJournal() { journal_.clear(); }

    /// @return false when there is no such operation.
    bool Refuse(const std::string& operation, const std::string& text);
    const std::vector<Refusal>& Refusals() const { return refusals_; }

    /// Lets the n-th call from now on fail, counting from 1, or it and all that follow: it is refused, or
    /// throws std::runtime_error. Zero ends the sweep.
    void FailCall(std::size_t n, Fault fault = Fault::Refuse, bool andFollowing = false);
    /// Whether the call that `FailCall` chose has come.
    bool HasFailed() const { return fault_.armed && fault_.seen >= fault_.n; }

    /// Why the last refused call was refused; never null.
    const std::string& Error() const { return error_; }
    void SetError(std::string text) { error_ = std::move(text); }

    /// True while calls have to be looked at.
    bool IsArmed() const { return armed_; }
    bool IsRecording() const { return armed_ && recording_; }
    void Record(const char* operation, std::vector<CallArgument> arguments);
    /// Whether this call is refused; the reason is in `Error()` then.
    bool TakesRefusal(const char* operation);

    /// While one lives the host calls its own objects unseen: nothing is recorded, refused or counted.
    class Quiet {
    public:
        explicit Quiet(CallLog& log) : log_(log) { log_.ChangeQuiet(+1); }
        ~Quiet() { log_.ChangeQuiet(-1); }
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;

    private:
        CallLog& log_;
    };

private:
    struct Sweep {
        bool armed = false;
        std::size_t n = 0;
        std::size_t seen = 0;
        Fault fault = Fault::Refuse;
        bool andFollowing = false;
    };

    void Rearm() { armed_ = quiet_ == 0 && (recording_ || fault_.armed || !refusals_.empty()); }
    void ChangeQuiet(int by) {
        quiet_ += by;
        Rearm();
    }
    bool SweepHits(const char* operation);

    bool armed_ = false;
    bool recording_ = false;
    int quiet_ = 0;
    std::vector<HostCall> journal_;
    std::vector<Refusal> refusals_;
    Sweep fault_;
    std::string error_;
};

// ---- The name of a host object, and an argument as the journal shows it ----

template <class Object, class = void>
struct ReturnsName : std::false_type {};
template <class Object>
struct ReturnsName<Object, std::void_t<decltype(std::declval<Object&>().GetName())>> : std::true_type {};
template <class Object, class = void>
struct HasNameField : std::false_type {};
template <class Object>
struct HasNameField<Object, std::void_t<decltype(std::declval<Object&>().name)>> : std::true_type {};

inline std::string TextOf(const char* text) { return text ? text : ""; }
inline std::string TextOf(const znString& text) { return text.Str(); }

/// The name of any object of the host interfaces; "" for none. The call is not recorded.
template <class Object>
std::string NameOf(CallLog& log, Object* object) {
    if (!object) return {};
    const CallLog::Quiet quiet(log);
    if constexpr (ReturnsName<Object>::value) {
        return TextOf(object->GetName());
    } else if constexpr (HasNameField<Object>::value) {
        return TextOf(object->name);
    } else {
        znString name;
        object->GetName(name);
        return name.Str();
    }
}

/// Prints a number so that it reads back as the same number.
std::string NumberWord(double value);

template <class Value>
std::string CallWord(CallLog& log, const Value& value) {
    if constexpr (std::is_same_v<Value, bool>) {
        return value ? "1" : "0";
    } else if constexpr (std::is_enum_v<Value> || std::is_integral_v<Value>) {
        return std::to_string(static_cast<long long>(value));
    } else if constexpr (std::is_floating_point_v<Value>) {
        return NumberWord(value);
    } else if constexpr (std::is_convertible_v<Value, const char*>) {
        return TextOf(static_cast<const char*>(value));
    } else if constexpr (std::is_pointer_v<Value>) {
        return NameOf(log, value);
    } else {
        return TextOf(value);
    }
}
template <class Value>
CallArgument Argument(CallLog& log, const Value& value) {
    return {false, {CallWord(log, value)}};
}
template <class Value>
CallArgument Argument(CallLog& log, const std::vector<Value>& values) {
    CallArgument list{true, {}};
    for (auto&& value : values) list.words.push_back(CallWord<Value>(log, value));
    return list;
}

/// A data item: the name of its source and its row number; an empty word for none.
CallArgument Argument(CallLog& log, const znBrowserDataItem& item);
CallArgument Argument(CallLog& log, const znBrowserDataItem* const& item);

/// What every host object is: a receiver of calls that can be seen and refused.
class HostObject {
public:
    virtual ~HostObject() = default;
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

    CallLog& Log() const { return log_; }

protected:
    explicit HostObject(CallLog& log) : log_(log) {}

    /// Every operation of an interface begins with this, giving its own name and what it was called with;
    /// where the answer is true it returns false, null or nothing. Costs one branch while nobody watches.
    template <class... Arguments>
    bool Refused(OperationName operation, const Arguments&... arguments) const {
        return __builtin_expect(log_.IsArmed(), 0) && Watched(operation, arguments...);
    }
    /// Refuses a call for a reason of the model's own. @return false
    bool Fail(std::string text) const {
        log_.SetError(std::move(text));
        return false;
    }
    /// Takes note that one of this object's operations was refused on demand.
    virtual void OnRefused(const std::string& /*text*/) const {}

    CallLog& log_;

private:
    template <class... Arguments>
    [[gnu::noinline, gnu::cold]] bool Watched(const char* operation, const Arguments&... arguments) const {
        if (log_.IsRecording()) log_.Record(operation, {Argument(log_, arguments)...});
        if (!log_.TakesRefusal(operation)) return false;
        OnRefused(log_.Error());
        return true;
    }
};

} // namespace znhost

#endif
