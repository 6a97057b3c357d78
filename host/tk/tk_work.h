// What is seen of work that takes long.
#ifndef ZN_HOST_TK_WORK_H
#define ZN_HOST_TK_WORK_H

#include "base/long_work.h"

#include <chrono>

struct Tcl_AsyncHandler_;
struct Tcl_Command_;
struct Tcl_Interp;
struct Tcl_Obj;

namespace znhost {

/// What commands of the manager answer while the display is served: an error.
int AnswerBusy(void* data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);

/// Shows that the host works, how far it is, and a way to cancel, in the window for which it does. The
/// display is served meanwhile, but the manager's command answers nothing but an error: the work must find
/// what it works on. For the same reason `exit` waits, for the moment that the work takes to stop.
class TkWork final : public LongWork {
public:
    /// @param command  where the manager's command is kept; null in it when a script has deleted it
    TkWork(Tcl_Interp* interp, Tcl_Command_* const* command);
    ~TkWork();
    TkWork(const TkWork&) = delete;
    TkWork& operator=(const TkWork&) = delete;

    /// Whether a panel takes the keyboard while work takes long; without one somebody goes on typing, and
    /// what is typed may cancel the work. What nobody waits for yields: whatever happens cancels it, and is
    /// attended to as soon as it has stopped.
    enum class Panel { Shown, None, Yields };
    /// What happens from now on is waited for by the user of that window. There must be an `End`. Work in the
    /// middle of other work has the panel of that.
    void Begin(int window, Panel panel);
    /// So much time, from now on, for what need not be done to the end.
    void SetTime(int milliseconds) { until_ = Clock::now() + std::chrono::milliseconds(milliseconds); }
    /// @return whether it was cancelled
    bool End();
    void Cancel() { cancelled_ = true; }
    /// While one lives nobody waits for the work that has begun: in its middle the user is asked something.
    class Rest {
    public:
        explicit Rest(TkWork& work);
        ~Rest();
        Rest(const Rest&) = delete;
        Rest& operator=(const Rest&) = delete;

    private:
        TkWork& work_;
        const int depth_;
        const int window_;
        const Panel panel_;
    };
    /// Whether the display is served at this moment, while the work waits.
    bool IsServing() const { return serving_; }
    /// Notes an `exit` that came while the display was served: in the middle of a statement the program must
    /// not end. The work is cancelled, and the words are evaluated as soon as it has let go.
    void PutOff(int objc, Tcl_Obj* const objv[]);

    bool GoesOn() override;
    bool HasTime() override;
    void Did(std::uint64_t rows) override { rows_ += rows; }

private:
    using Clock = std::chrono::steady_clock;

    bool IsDisturbed();
    void Serve();
    void Call(const char* procedure) const;
    static int Leave(void* work, Tcl_Interp* interp, int code);

    Tcl_Interp* const interp_;
    Tcl_Command_* const* const command_;
    Tcl_AsyncHandler_* const leaving_;
    Tcl_Obj* exit_ = nullptr; ///< the words of an `exit` that is waiting
    int depth_ = 0;
    int window_ = 0;
    Panel panel_ = Panel::Shown;
    Clock::time_point begun_;
    Clock::time_point served_;
    Clock::time_point until_ = Clock::time_point::max();
    std::uint64_t rows_ = 0; ///< read since it began
    bool cancelled_ = false;
    bool shown_ = false;
    bool serving_ = false;
};

} // namespace znhost

#endif
