#include "base/native.h"

#include "base/tcl_values.h"

#include <memory>
#include <tcl.h>

namespace znhost {

namespace {

using Conversion = char* (*)(Tcl_Encoding, const char*, int, Tcl_DString*);

std::string Convert(Conversion convert, const std::string& text) {
    Tcl_DString converted;
    convert(nullptr, text.data(), static_cast<int>(text.size()), &converted);
    std::string result(Tcl_DStringValue(&converted), static_cast<std::size_t>(Tcl_DStringLength(&converted)));
    Tcl_DStringFree(&converted);
    return result;
}

std::string SystemEncoding() { return Tcl_GetEncodingName(nullptr); }

struct Release {
    void operator()(Tcl_Obj* object) const { Tcl_DecrRefCount(object); }
};

} // namespace

std::string FromNative(const std::string& bytes) { return Convert(Tcl_ExternalToUtfDString, bytes); }

std::string ToNative(const std::string& text) { return Convert(Tcl_UtfToExternalDString, text); }

bool NativeFileName(const std::string& name, std::string& native, std::string& error) {
    const std::unique_ptr<Tcl_Obj, Release> path(NewText(name));
    Tcl_IncrRefCount(path.get());
    Tcl_Interp* const scratch = Tcl_CreateInterp(); // takes the error text
    const char* const translated = Tcl_FSGetTranslatedStringPath(scratch, path.get());
    const std::unique_ptr<const char, void (*)(const char*)> text(
        translated, [](const char* one) { ckfree(const_cast<char*>(one)); });
    if (!translated) error = Tcl_GetStringResult(scratch);
    Tcl_DeleteInterp(scratch);
    if (!translated) return false;
    native = ToNative(translated);
    if (!Tcl_FSGetNativePath(path.get()) || native.find('\0') != native.npos) {
        error = "no file of the system has such a name";
        return false;
    }
    if (FromNative(native) == translated) return true;
    error = "the system encoding, " + SystemEncoding() + ", has no such name";
    return false;
}

bool FileOfNative(const std::string& bytes, std::string& name, std::string& error) {
    name = FromNative(bytes);
    if (ToNative(name) != bytes) {
        error = "\"" + name + "\" is no text in the system encoding, " + SystemEncoding();
        return false;
    }
    if (name.substr(0, 1) == "~") name.insert(0, "./");
    return true;
}

bool IsOnServer(std::string_view name) {
    for (const std::string_view scheme : {"postgresql://", "postgres://"}) {
        if (name.substr(0, scheme.size()) == scheme) return true;
    }
    return false;
}

} // namespace znhost
