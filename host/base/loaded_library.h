// Libraries that are loaded when they are first needed.
#ifndef ZN_HOST_LOADED_LIBRARY_H
#define ZN_HOST_LOADED_LIBRARY_H

#include <dlfcn.h>
#include <string>

namespace znhost {

/// A library and its functions, found by name. It stays loaded until the program ends: what it has set up
/// once cannot be taken down.
class LoadedLibrary {
public:
    /// @param file  as the loader finds it: "libpq.so.5"
    explicit LoadedLibrary(const char* file) : library_(dlopen(file, RTLD_NOW | RTLD_LOCAL)), file_(file) {
        if (!library_) reason_ = dlerror();
    }
    /// Null when the library has no such function, or is not there.
    template <class Function>
    void Find(Function*& function, const char* name) {
        function = library_ ? reinterpret_cast<Function*>(dlsym(library_, name)) : nullptr;
        if (!function && reason_.empty()) reason_ = file_ + " has no " + name;
    }
    /// Why it, or a function of it, cannot be used; "" when all can.
    const std::string& Reason() const { return reason_; }

private:
    void* const library_;
    const std::string file_;
    std::string reason_;
};

} // namespace znhost

#endif
