#include "libedit.h"

#include "base/loaded_library.h"

namespace {

LibEdit loaded;

} // namespace

bool LibEdit::Load(std::string& reason) {
    if (loaded.el_init) return true;
    znhost::LoadedLibrary library("libedit.so.2");
    LibEdit found;
#define ZN_FIND(name) library.Find(found.name, #name);
    ZN_LIBEDIT_FUNCTIONS(ZN_FIND)
#undef ZN_FIND
    if (!library.Reason().empty()) {
        reason = "the prompt needs libedit, which cannot be loaded: " + library.Reason();
        return false;
    }
    loaded = found;
    return true;
}

const LibEdit& Edit() { return loaded; }
