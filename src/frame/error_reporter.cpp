#include "znBrowserErrorReporter.h"

#include <utility>

znBrowserErrorReporter::~znBrowserErrorReporter() = default;

void znBrowserErrorReporter::SetOk() {
    ok_ = true;
    errorText_.clear();
}

void znBrowserErrorReporter::SetError(const znString& message) {
    if (&message != &errorText_) errorText_.assign(message.View());
    ok_ = false;
}

void znBrowserErrorReporter::SetError(const char* message) {
    errorText_.assign(message ? std::string_view(message) : std::string_view());
    ok_ = false;
}

const char* znBrowserErrorReporter::GetError() {
    spare_.assign("[Command] ");
    spare_ += commandText_.c_str(); // up to its first NUL
    spare_ += "\n\t[Error] ";
    if (errorText_.empty()) {
        spare_ += "Unknown error";
    } else {
        spare_ += errorText_;
    }
    std::swap(errorText_, spare_);
    spare_.clear();
    return errorText_.empty() ? "Couldn't establish the error" : errorText_.c_str();
}

void znBrowserErrorReporter::SetErrCommand(const znString& command) {
    if (&command != &commandText_) commandText_.assign(command.View());
}
