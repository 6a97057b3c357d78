// A view operation: an action that a view offers.
#ifndef ZN_I_BROWSER_VIEW_OPERATION_H
#define ZN_I_BROWSER_VIEW_OPERATION_H

class znIBrowserDataOperation;
class znIBrowserView;

/// A named action of a view, run from a popup menu, a button cell or a script.
class znIBrowserViewOperation {
public:
    virtual const char* GetName() const = 0;
    virtual bool SetEditable(bool editable) = 0;
    /// Sets the Tcl script that `Perform` runs.
    virtual bool SetScript(const char* script) = 0;
    /// Runs the operation. The script may delete the operation, its view or anything else.
    /// The result is not used.
    virtual bool Perform() = 0;
    /// `Perform` runs that data operation too.
    virtual bool ConnectDataOperation(znIBrowserDataOperation* operation) = 0;
    /// The view that owns the operation; may be null.
    virtual znIBrowserView* GetView() = 0;

protected:
    ~znIBrowserViewOperation() = default;
};

#endif
