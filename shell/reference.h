// The reference of the command language.
#ifndef SHELL_REFERENCE_H
#define SHELL_REFERENCE_H

#include <string>

/// Every word of the command, the host's own included, as a page of Markdown: its arguments and what it does,
/// a section for each word that others follow.
std::string Reference();

/// The same as a manual page, znbrowsermanager(n).
std::string Manual();

#endif
