// What is browsed: folders of the file system. Nothing here knows of browsers.
#ifndef FOLDERS_H
#define FOLDERS_H

#include <tcl.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

struct File {
    std::string name; ///< as Tcl has its texts, like that of the folder
    std::uintmax_t size = 0;
};

struct Folder {
    std::string name;
    std::vector<File> files; ///< by the alphabet
};

/// A name of the file system, as Tcl has its texts.
inline std::string ToTcl(const std::filesystem::path& name) {
    Tcl_DString text;
    Tcl_ExternalToUtfDString(nullptr, name.c_str(), -1, &text);
    std::string result = Tcl_DStringValue(&text);
    Tcl_DStringFree(&text);
    return result;
}

/// Throws `std::filesystem::filesystem_error` when there is no such folder.
inline Folder ReadFolder(const char* path) {
    const std::filesystem::path place = std::filesystem::canonical(path);
    Folder folder{ToTcl(place.filename()), {}};
    for (const auto& entry : std::filesystem::directory_iterator(place))
        if (entry.is_regular_file())
            folder.files.push_back({ToTcl(entry.path().filename()), entry.file_size()});
    std::sort(folder.files.begin(), folder.files.end(),
              [](const File& a, const File& b) { return a.name < b.name; });
    return folder;
}

#endif
