// libedit, taken into use when the prompt shows.
#ifndef SHELL_LIBEDIT_H
#define SHELL_LIBEDIT_H

#include <histedit.h>

#include <string>

/// The functions of libedit. Scripts do not need it: linked, it would take a tenth of the time in which the
/// program starts.
struct LibEdit {
// clang-format off
#define ZN_LIBEDIT_FUNCTIONS(use) \
    use(el_deletestr) use(el_end) use(el_get) use(el_gets) use(el_init) use(el_insertstr) use(el_line) \
    use(el_set) use(el_source) use(el_wset) use(history) use(history_end) use(history_init)
// clang-format on
#define ZN_DECLARE(name) decltype(&::name) name = nullptr;
    ZN_LIBEDIT_FUNCTIONS(ZN_DECLARE)
#undef ZN_DECLARE

    /// Loads it, unless that is done.
    /// @return false with the reason
    static bool Load(std::string& reason);
};

/// Its functions; they may be called when `Load` has succeeded.
const LibEdit& Edit();

#endif
