// How every operation of the manager reports success or failure.
#ifndef ZN_BROWSER_ERROR_REPORTER_H
#define ZN_BROWSER_ERROR_REPORTER_H

#include "host/znutl/znString.h"
#include "znBrowserExport.h"

/// The outcome of the last operation: a state, the message of the last error, and the text of the
/// command being executed, which heads an error shown to a script. Copies take over all three. The
/// texts keep their storage from one command to the next.
class ZN_API znBrowserErrorReporter {
public:
    /// No error is pending; both texts are empty.
    znBrowserErrorReporter() = default;
    znBrowserErrorReporter(const znBrowserErrorReporter& other) = default;
    znBrowserErrorReporter& operator=(const znBrowserErrorReporter& other) = default;
    virtual ~znBrowserErrorReporter();

    /// Success: forgets the error. The command text is kept.
    void SetOk();

    /// Failure, with the bare message; it may be this object's own error text.
    void SetError(const znString& message);
    void SetError(const char* message);

    /// True unless an error is pending.
    bool GetState() const { return ok_; }

    /// The error as a script sees it: "[Command] " and the command text, and on a second, indented line
    /// "[Error] " and the message ("Unknown error" when there is none). The banner replaces the stored
    /// error text, so a second call wraps it once more: report an error once. The text is owned by this
    /// object and valid until its error text changes.
    const char* GetError();

    /// The error text as it stands, without a banner of its own.
    const znString& GetErrorText() const { return errorText_; }

protected:
    /// Takes over the text of the command that starts, up to its first NUL.
    virtual void SetErrCommand(const znString& command);

    /// The command text itself, so that whoever makes one can build it in place and then hand it to
    /// `SetErrCommand`.
    znString& ErrCommand() { return commandText_; }

private:
    bool ok_ = true;
    znString errorText_;
    znString commandText_;
    znString spare_; ///< storage that GetError builds in, then swaps with the error text
};

#endif
