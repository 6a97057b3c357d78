#include "store/postgres/libpq.h"

#include <dlfcn.h>
#include <type_traits>

namespace znhost {

namespace {

LibPq loaded;

/// It stays loaded until the program ends: what it has set up once cannot be taken down.
std::string LoadAll() {
    void* const library = dlopen("libpq.so.5", RTLD_NOW | RTLD_LOCAL);
    if (!library) return dlerror();
    LibPq found;
    const char* missing = nullptr;
    const auto find = [library, &missing](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
        if (!function) missing = name;
    };
#define ZN_FIND(name) find(found.name, #name);
    ZN_LIBPQ_FUNCTIONS(ZN_FIND)
#undef ZN_FIND
    if (missing) return std::string("libpq.so.5 has no ") + missing;
    loaded = found;
    return {};
}

} // namespace

bool LibPq::Load(std::string& reason) {
    if (loaded.PQclear) return true;
    reason = LoadAll();
    if (reason.empty()) return true;
    reason = "servers need libpq, which cannot be loaded: " + reason;
    return false;
}

const LibPq& Pq() { return loaded; }

} // namespace znhost
