// What every part of the host may ask of the whole: scripts, errors, and whether long work may go on.
#ifndef ZN_HOST_SERVICES_H
#define ZN_HOST_SERVICES_H

#include "base/host_call.h"
#include "base/read_trouble.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class znIBrowserManagerTcl;
struct Tcl_Interp;

namespace znhost {

class LongWork;

class HostServices : public HostObject {
public:
    Tcl_Interp* Interp() const { return interp_; }
    /// The scripting layer; null before it is there and after it has gone.
    znIBrowserManagerTcl* Manager() const { return manager_; }
    void SetManager(znIBrowserManagerTcl* manager) { manager_ = manager; }

    // What takes long. Whatever does asks again and again.
    /// Why what is under way is to be left as it is; "" as long as it may go on.
    std::string_view WhyStop() const;
    /// What `WhyStop` answers when the time for it is over: it may be tried again with more time.
    static constexpr std::string_view tooLong = "it takes too long";
    /// So many more rows have been read for what is under way.
    void NoteRead(std::uint64_t rows) const;
    /// Stops what is under way and, until `Resume`, all that follows. For signal handlers and other threads.
    void Interrupt() noexcept { interrupted_ = true; }
    void Resume() noexcept { interrupted_ = false; }
    /// Who looks after the one that waits; null: nobody does. It is not owned.
    void SetWork(LongWork* work) { work_ = work; }

    /// While one lives there is no more time than this; of several the one that ends first counts.
    class Hurry {
    public:
        Hurry(HostServices& services, std::chrono::milliseconds time);
        ~Hurry() { services_.until_ = outer_; }
        Hurry(const Hurry&) = delete;
        Hurry& operator=(const Hurry&) = delete;

    private:
        HostServices& services_;
        const std::chrono::steady_clock::time_point outer_;
    };
    /// Whether the time is limited.
    bool IsHurried() const { return until_ != forEver; }

    /// While one lives, what is asked of the data belongs together: a server need not be asked whether
    /// anything changed meanwhile. One that begins inside of another begins a new look.
    class OneLook {
    public:
        explicit OneLook(HostServices& services) : services_(services) {
            ++services_.look_;
            ++services_.looking_;
        }
        ~OneLook() { --services_.looking_; }
        OneLook(const OneLook&) = delete;
        OneLook& operator=(const OneLook&) = delete;

    private:
        HostServices& services_;
    };
    /// The number of the present look; 0: none is under way.
    std::uint64_t Look() const { return looking_ > 0 ? look_ : 0; }

    /// What could not be read of late.
    ReadTrouble& Trouble() { return trouble_; }
    /// Gives an error that no answer can tell to the interpreter's background error handler.
    void ReportError(const std::string& text);
    /// Calls a service of the manager by which scripts are notified. An error in one of their procedures goes
    /// to the background error handler; the interpreter's result is as it was.
    /// @return false, with the message as the error text, when there was one
    bool Notify(const std::function<bool(znIBrowserManagerTcl&)>& service);

    // Running Tcl. The interpreter's result and error state are put back afterwards. What runs may call
    // "znbrowsermanager" again and delete any object of the model.
    /// Runs a script by the manager. An error goes to the interpreter's background error handler.
    /// @param result  receives what the script answers; null: that is not wanted
    /// @return false, with the message as the error text, when the script failed.
    bool RunScript(const std::string& script, std::string* result = nullptr);
    /// Runs the call of a Tcl procedure in the same way: its name and arguments, each a word.
    bool RunProcedure(const std::vector<std::string>& words, std::string* result = nullptr);
    /// Calls a Tcl procedure: its name and arguments, each a word. `result` receives its result or, when the
    /// answer is false, the error message.
    bool CallProcedure(const std::vector<std::string>& words, std::string& result);
    /// Calls a Tcl procedure by the manager's script service, with one argument: `item` as a list. An error
    /// goes to the interpreter's background error handler. @return false, and `value` is as it was, when the
    /// procedure failed
    bool ComputeValue(const std::string& procedure, const std::vector<std::string>& item, std::string& value);

protected:
    /// Both outlive the services. The interpreter must have been preserved.
    HostServices(Tcl_Interp* interp, CallLog& log) : HostObject(log), interp_(interp) {}

    Tcl_Interp* const interp_;

private:
    znIBrowserManagerTcl* manager_ = nullptr;
    LongWork* work_ = nullptr;
    std::uint64_t look_ = 0;
    int looking_ = 0;
    ReadTrouble trouble_;
    std::atomic<bool> interrupted_{false};
    static constexpr auto forEver = std::chrono::steady_clock::time_point::max();
    std::chrono::steady_clock::time_point until_ = forEver;
};

} // namespace znhost

#endif
