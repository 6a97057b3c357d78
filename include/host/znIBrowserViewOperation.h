// A view operation: an action that a view offers.
#ifndef ZN_I_BROWSER_VIEW_OPERATION_H
#define ZN_I_BROWSER_VIEW_OPERATION_H

class znIBrowserDataOperation;
class znIBrowserView;

/// A named action of a view, run from a popup menu, a button cell or a script.
class znIBrowserViewOperation {
public:
    /// The name, unique in the view.
    virtual const char* GetName() const = 0;
    /// Whether people may change the operation, where the host lets them.
    virtual bool SetEditable(bool editable) = 0;
    /// Sets the Tcl script that `Perform` runs. It is not evaluated now.
    virtual bool SetScript(const char* script) = 0;
    /// Runs the operation. The script may delete the operation, its view or anything else.
    /// The result is not used, and an error that the script leaves in the manager is cleared.
    virtual bool Perform() = 0;
    /// `Perform` runs that data operation too, in place of one connected before. The result is not used.
    virtual bool ConnectDataOperation(znIBrowserDataOperation* operation) = 0;
    /// The view that owns the operation; may be null.
    virtual znIBrowserView* GetView() = 0;

protected:
    ~znIBrowserViewOperation() = default;
};

#endif
