// The vocabulary of operations: how one begins, asks the host, fails and ends.
#ifndef OPERATION_H
#define OPERATION_H

#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "znBrowserManagerTcl.h"

#include <initializer_list>

namespace znlayer {

/// The host's browser object; may be null.
inline znIBrowser* BrowserOf(const znBrowserManagerTcl& manager) {
    return manager.GetApplication()->GetBrowser();
}

/// A view or a window of the host; null for an unknown and a null name.
znIBrowserView* FindView(const znBrowserManagerTcl& manager, const char* name);
znIBrowserWindowAccess* FindWindowAccess(const znBrowserManagerTcl& manager, const char* name);

/// One operation of the manager. Making it begins the operation; only through it can an operation fail. A
/// script that runs inside a host call may begin others, which leave their own error state and buffer.
class Operation {
public:
    /// Says that an operation lets the error state and the result buffer be, until it fails.
    enum class State { Kept };

    /// Begins: clears the error state and empties the result buffer.
    explicit Operation(znBrowserManagerTcl& manager) : manager_(manager) {
        manager.SetOk();
        manager.ResetBuff();
    }
    Operation(znBrowserManagerTcl& manager, State) : manager_(manager) {}

    // ---- Failing ----
    /// Sets the error text; a null one is empty. @return false
    bool Fail(const char* message) const {
        manager_.SetError(message);
        return false;
    }
    /// The pieces, joined by blanks and null ones left out, become the result buffer's text and the error's.
    /// @return false
    bool Fail(std::initializer_list<const char*> pieces) const {
        manager_.ResetBuff();
        return FailBehindBuffer(pieces);
    }
    /// As `Fail`, but what the result buffer holds stands in front.
    bool FailBehindBuffer(std::initializer_list<const char*> pieces) const {
        for (const char* const piece : pieces) manager_.AppendToBuff(piece, true, false);
        manager_.SetError(manager_.GetBuff());
        return false;
    }
    /// Takes over the browser object's error text. @return false
    bool FailWithHostError() const {
        znIBrowser* const browser = BrowserOf(manager_);
        return Fail(browser ? browser->GetError() : nullptr);
    }

    // ---- The host ----
    /// The answer of a host object: true, or `FailWithHostError`.
    bool HostAnswer(bool accepted) const { return accepted || FailWithHostError(); }
    /// Asks the browser object for a change, as `HostAnswer`. Without a browser object the answer is false,
    /// and no text is set.
    template <class... Parameters, class... Arguments>
    bool Ask(bool (znIBrowser::*request)(Parameters...), Arguments... arguments) const {
        znIBrowser* const browser = BrowserOf(manager_);
        if (!browser) return false;
        return (browser->*request)(arguments...) || Fail(browser->GetError());
    }

    // ---- Ending ----
    /// The error state: what most operations return.
    bool End() const { return manager_.GetState(); }
    /// Gives a list, as `NameList::Give`.
    bool Give(NameList& list, znString& out) const { return list.Give(manager_, out); }
    bool Give(NameList&& list, znString& out) const { return list.Give(manager_, out); }
    /// Gives the result buffer's text. @return the error state
    bool GiveBuffer(znString& out) const {
        out.assign(manager_.GetBuff());
        return End();
    }
    /// Gives "true" or "false". @return true
    static bool GiveBool(bool value, znString& out) {
        out = value ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE;
        return true;
    }

private:
    znBrowserManagerTcl& manager_;
};

/// The object of that name in another; null for a null name, and where there is nothing to look in.
template <class Owner, class Found, class Interface>
Found* FindNamed(Owner* owner, Found* (Interface::*find)(const char*), const char* name) {
    return owner && name ? (owner->*find)(name) : nullptr;
}

} // namespace znlayer

#endif
