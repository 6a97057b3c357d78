// One example that is run: a host of its own, and what is known of each line.
#ifndef SHELL_EXAMPLE_HOST_H
#define SHELL_EXAMPLE_HOST_H

#include "app/embedded_host.h"

#include <tcl.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// An interpreter that has nothing but Tcl's own commands and a host without data.
class ExampleHost {
public:
    ExampleHost() : interp_(Tcl_CreateInterp()), host_(interp_.get()) {}

    /// @return the Tcl code
    int Run(const std::string& command, std::string& answer) const;

private:
    struct Deletion {
        void operator()(Tcl_Interp* interp) const { Tcl_DeleteInterp(interp); }
    };
    std::unique_ptr<Tcl_Interp, Deletion> interp_;
    znhost::EmbeddedHost host_;
};

/// A line that uses a word of the manual.
struct KnownLine {
    std::string words;                  ///< plain: "view column caption"
    std::string notation;               ///< of its arguments: "?TEXT?"
    std::vector<std::string> beginning; ///< the command and its words, as they are written
    std::vector<std::string> arguments;
};

/// Nothing for a line that uses none.
std::optional<KnownLine> Recognize(const std::string& command);

#endif
