// A data reference: a link between data sources.
#ifndef ZN_I_BROWSER_DATA_REFERENCE_H
#define ZN_I_BROWSER_DATA_REFERENCE_H

/// A named link, kept by a data control, from the items of one data source to those of another. The host
/// makes them; the scripting layer only finds and connects them.
class znIBrowserDataReference {
public:
    /// The name, unique in the data control; null ends a script's list of names.
    virtual const char* GetName() const = 0;

protected:
    ~znIBrowserDataReference() = default;
};

#endif
