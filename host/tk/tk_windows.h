// The windows on the display: the border between the host and the Tcl scripts that draw them.
#ifndef ZN_HOST_TK_WINDOWS_H
#define ZN_HOST_TK_WINDOWS_H

#include "rows/row_changes.h"
#include "tk/tk_work.h"
#include "window/window_display.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct Tcl_Interp;
struct Tcl_Obj;

namespace znhost {

class Application;
class EmbeddedHost;
struct ManagerCommand;

/// Loads Tk: from now on each posted window of the host stands on the display. Once it answered true, calling
/// it again changes nothing. @return false, with the reason in `error`, when there is no display or Tk or its
/// tree widget is not installed; windows stay without a face then
bool ShowWindows(EmbeddedHost& host, std::string& error);

/// What changed in a window: each kind once, and the row that it is about.
using TkChanges = std::map<RowChange::Kind, std::uint32_t>;

/// Shows each posted window with Tk. The scripts know a window by a number, as no text of a user is fit for a
/// Tk path; they ask for what they draw with "::znbrowser::host", and hear of changes when Tcl is idle.
class TkWindows final : public WindowDisplay {
public:
    /// Loads Tk, the tree widget and the scripts. Null, with the reason in `error`, when that is impossible.
    /// @param command  must outlive what is returned
    static std::shared_ptr<TkWindows> Load(Application& application, const ManagerCommand& command,
                                           std::string& error);
    ~TkWindows();
    TkWindows(const TkWindows&) = delete;
    TkWindows& operator=(const TkWindows&) = delete;

    Application& App() const { return application_; }
    TkWork& Work() { return work_; }
    /// Evaluates the manager's command, whatever it is called now, and if it has been deleted.
    int EvalManagerCommand(int objc, Tcl_Obj* const objv[]);
    /// The open window of that number; null when there is none.
    std::shared_ptr<Window> Find(unsigned number) const;

    /// What changed in that window since this was asked last.
    TkChanges TakeChanges(unsigned number);

    void Open(Window& window) override;
    void MakePart(const std::string& frame) override;
    void PackPart(Window& window, const std::string& frame, const std::vector<std::string>& behind) override;
    void HidePart(const std::string& frame) override;
    void RemovePart(const std::string& frame) override;
    void Close(Window& window) override;
    void ClosePopup(Window& window) override;
    bool AskInput(Window& window, const std::string& title, InputValues& values) override;
    std::size_t OpenWindows() const override { return shown_.size(); }

private:
    class Shown;

    TkWindows(Application& application, const ManagerCommand& command);
    bool LoadScripts(std::string& error);
    unsigned NumberOf(const Window& window) const;
    std::string Run(const std::vector<std::string>& words) const;

    Application& application_;
    const ManagerCommand& command_;
    TkWork work_;
    unsigned opened_ = 0;
    std::map<unsigned, std::unique_ptr<Shown>> shown_;
};

} // namespace znhost

#endif
