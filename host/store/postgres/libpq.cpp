#include "store/postgres/libpq.h"

#include "base/loaded_library.h"

namespace znhost {

namespace {

LibPq loaded;

} // namespace

bool LibPq::Load(std::string& reason) {
    if (loaded.PQclear) return true;
    LoadedLibrary library("libpq.so.5");
    LibPq found;
#define ZN_FIND(name) library.Find(found.name, #name);
    ZN_LIBPQ_FUNCTIONS(ZN_FIND)
#undef ZN_FIND
    if (!library.Reason().empty()) {
        reason = "servers need libpq, which cannot be loaded: " + library.Reason();
        return false;
    }
    loaded = found;
    return true;
}

const LibPq& Pq() { return loaded; }

} // namespace znhost
