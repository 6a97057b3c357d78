// The embedded host: a complete host for the scripting layer.
#ifndef ZN_HOST_EMBEDDED_HOST_H
#define ZN_HOST_EMBEDDED_HOST_H

#include <memory>
#include <string>
#include <vector>

class znBrowserManagerTcl;
struct Tcl_Interp;

namespace znhost {

class Application;
class CallLog;
class WindowDisplay;
struct ManagerCommand;

/// Who keeps the memory of the host's interpreter.
enum class InterpMemory {
    Kept,         ///< the host, so that the interpreter may be deleted before it
    LeftToOthers, ///< others: deleting the interpreter deletes the host, which must not outlive it
};

/// A host with its own model, and a manager on it: after the constructor the interpreter has the command
/// "znbrowsermanager".
class EmbeddedHost {
public:
    /// @throws std::runtime_error when the interpreter's Tcl is older than 8.6, or not 8.x
    explicit EmbeddedHost(Tcl_Interp* interp, InterpMemory memory = InterpMemory::Kept);
    /// Deletes the command, the manager and the model.
    ~EmbeddedHost();
    EmbeddedHost(const EmbeddedHost&) = delete;
    EmbeddedHost& operator=(const EmbeddedHost&) = delete;

    /// Adds a data control on the database `file`, which is made when missing; on one in memory when `file`
    /// is "". @return false, with the reason in `error`, and without a data control.
    /// @param readOnly  a file that is there is not changed, before `AllowChanges`
    bool CreateDataCtrl(const std::string& name, const std::string& file, std::string& error,
                        bool readOnly = false);
    /// @return false, with the reason in `error`, when the database cannot be opened for that
    bool AllowChanges(const std::string& name, std::string& error);
    /// The names of what scripts name most: views, windows, data controls, their data sources, and the
    /// columns, properties and folders of views; sorted, each once.
    std::vector<std::string> GetObjectNames() const;
    /// The host's own words that may follow "znbrowsermanager app WORD ...", for completion and help; empty
    /// where arguments stand, or where the words lead nowhere.
    static std::vector<std::string> GetAppWords(const std::vector<std::string>& words);
    /// One of them, with what is known of it.
    struct AppCommand {
        std::string words;     ///< behind "app": "journal on"
        std::string arguments; ///< "NAME ?FILE?"
        std::string answer;    ///< what it answers, in the same notation; empty where it answers nothing
        std::string summary;
    };
    /// The commands "app WORD ..." that begin with these words.
    static std::vector<AppCommand> GetAppCommands(const std::vector<std::string>& words);
    /// The names that an argument of that kind may be now (`znBrowserTclCommandTree::GetNames`). No call is
    /// recorded, and none of the refusals that wait is used up.
    std::vector<std::string> GetNames(const std::string& kind) const;
    /// Stops what takes long, an SQL statement above all, and whatever like that follows: it fails with
    /// "interrupted". May be called by a signal handler, and by any thread.
    void Interrupt() noexcept;
    /// What follows an `Interrupt` may take long again.
    void Resume() noexcept;

    /// From now on that shows each posted window; null: nothing does. It goes before the model.
    void SetDisplay(std::shared_ptr<WindowDisplay> display);
    bool HasDisplay() const;
    /// How many windows stand on the display. While there are any, Tcl's events must be served.
    std::size_t OpenWindows() const;
    /// The rows of each posted window as a text, for who has no display.
    std::vector<std::string> DrawWindows() const;
    /// Whether a command runs now, in whose middle the host must not be deleted.
    bool IsRunning() const;
    znBrowserManagerTcl& Manager();
    const ManagerCommand& Command() const;
    Application& App();
    /// The record of host calls: watch them, or let one fail.
    CallLog& Calls();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace znhost

#endif
