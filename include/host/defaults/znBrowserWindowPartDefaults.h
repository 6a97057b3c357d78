// The default answers of `znIBrowserWindowPart`.
#ifndef ZN_BROWSER_WINDOW_PART_DEFAULTS_H
#define ZN_BROWSER_WINDOW_PART_DEFAULTS_H

#include "../znIBrowserWindowPart.h"

#include <vector>

/// `znIBrowserWindowPart` for hosts that have a part of it: override what there is.
class znBrowserWindowPartDefaults : public znIBrowserWindowPart {
public:
    znIBrowserWindowAccess* GetWindowAccess() override { return nullptr; }
    const char* GetName() const override { return nullptr; }
    znIBrowserWindowPart* GetParent() override { return nullptr; }
    const char* GetFramePath() const override { return nullptr; }
    void SetCreateProc(const char*, const char*) override {}
    void SetPackProc(const char*, const char*) override {}
    void GetChildParts(std::vector<znIBrowserWindowPart*>& parts, bool) override { parts.clear(); }
    int GetPosition() const override { return 0; }

protected:
    ~znBrowserWindowPartDefaults() = default;
};

#endif
