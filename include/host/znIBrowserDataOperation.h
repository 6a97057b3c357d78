// A data operation: an action that a data control offers.
#ifndef ZN_I_BROWSER_DATA_OPERATION_H
#define ZN_I_BROWSER_DATA_OPERATION_H

/// A named action of a data control. It is run with `znIBrowser::PerformDataOperation`.
class znIBrowserDataOperation {
public:
    /// The name, unique in the data control; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// Sets the Tcl script that the operation runs. It is not evaluated now. The text of a refusal is not
    /// read.
    virtual bool SetScript(const char* script) = 0;

protected:
    ~znIBrowserDataOperation() = default;
};

#endif
