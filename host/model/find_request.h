// The find requests of a window.
#ifndef ZN_HOST_FIND_REQUEST_H
#define ZN_HOST_FIND_REQUEST_H

#include "base/host_call.h"
#include "host/znIBrowserFindRequest.h"

#include <deque>
#include <string>

namespace znhost {

/// A search. An item is found when each property of the request matches: each has one criterion, named
/// "value". A criterion of type equal-to finds the value inside a text, or compares numbers.
class FindRequest final : public znIBrowserFindRequest, public HostObject {
public:
    /// What every window's own request is called.
    static constexpr const char* defaultName = "default";

    FindRequest(CallLog& log, znIBrowserWindowAccess& window, std::string name);

    const std::string& Name() const { return name_; }
    znIBrowserWindowAccess& Owner() const { return window_; }
    ZNBROWSER_FIND_REQUEST_TYPE Type() const { return type_; }
    void SetType(ZNBROWSER_FIND_REQUEST_TYPE type) { type_ = type; }
    std::deque<znBrowserProperty>& Properties() { return properties_; }
    /// The property of that name; it is made, with its criterion, when it is not there.
    znBrowserProperty& AddProperty(const std::string& name);

    const char* GetName() const override;
    znIBrowserWindowAccess* GetWindowAccess() override;
    void GetProperties(std::vector<znBrowserProperty*>& properties) override;
    znBrowserProperty* FindProperty(const char* name) override;
    ZNBROWSER_FIND_REQUEST_TYPE GetType() const override;

private:
    znBrowserProperty* Find(std::string_view name);

    znIBrowserWindowAccess& window_;
    const std::string name_;
    ZNBROWSER_FIND_REQUEST_TYPE type_ = ZNBROWSER_FIND_REQUEST_NEXT;
    std::deque<znBrowserProperty> properties_; // deques: scripts hold pointers into them
    std::deque<znBrowserCriterion> criteria_;
};

} // namespace znhost

#endif
