#include "app/export_app_commands.h"

#include "app/app_commands.h"
#include "app/row_app_commands.h"
#include "app/row_inserts.h"
#include "base/native.h"
#include "base/text.h"
#include "window/row_export.h"
#include "window/window.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <limits>
#include <tcl.h>

namespace znhost {

namespace {

/// Of a text that is answered: Tcl ends the process above 2 GiB.
constexpr std::size_t mostBytes = std::size_t{1} << 27;

bool ReadRows(const AppCall& call, Window& window, ExportedRows& rows) {
    const std::string word = call.Text(1);
    if (word == "all" || word == "selected") {
        rows.which = word == "all" ? ExportedRows::All : ExportedRows::Selected;
        return true;
    }
    Tcl_WideInt index = 0;
    rows.which = ExportedRows::Below;
    if (Tcl_GetWideIntFromObj(nullptr, call.Word(1), &index) == TCL_OK && index > 0 &&
        index <= std::numeric_limits<std::uint32_t>::max()) {
        rows.index = static_cast<std::uint32_t>(index);
        if (window.Rows().Has(rows.index)) return true;
    }
    call.Fail("\"" + word + "\" are no rows of the window \"" + window.Name() +
                  "\": it must be all, selected or the index of one",
              "ROWS", word);
    return false;
}

bool ReadFormat(const AppCall& call, ExportFormat& format) {
    constexpr std::pair<const char*, ExportFormat> words[] = {{"csv", ExportFormat::Csv},
                                                              {"tsv", ExportFormat::Tsv},
                                                              {"cells", ExportFormat::Cells},
                                                              {"sql", ExportFormat::Lines}};
    for (const auto& [word, meaning] : words) {
        if (call.Text(2) != word) continue;
        format = meaning;
        return true;
    }
    call.Fail("unknown format \"" + call.Text(2) + "\": it must be csv, tsv, cells or sql", "FORMAT",
              call.Text(2));
    return false;
}

/// A file that takes the place of another as soon as it is complete.
class NewFile {
public:
    explicit NewFile(std::string name)
        : name_(std::move(name)), part_(name_ + ".part"), stream_(part_, std::ios::binary) {}
    ~NewFile() {
        if (!kept_) std::remove(part_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool Write(std::string_view text) { return static_cast<bool>(stream_ << FromTcl(text, storage_)); }
    bool Keep() {
        stream_.close();
        kept_ = stream_ && std::rename(part_.c_str(), name_.c_str()) == 0;
        return kept_;
    }

private:
    const std::string name_;
    const std::string part_;
    std::ofstream stream_;
    std::string storage_;
    bool kept_ = false;
};

int Fail(const AppCall& call, const std::string& reason) {
    return call.Fail("the rows cannot be exported: " + reason, "EXPORT");
}

int ExportToFile(AppCall& call, Window& window, const ExportedRows& rows, ExportFormat format) {
    if (!call.App().MayWriteFiles()) return Fail(call, "no files are written here");
    std::string native, error;
    if (!NativeFileName(call.Text(3), native, error)) return Fail(call, error);
    errno = 0;
    NewFile file(native);
    const auto write = [&file](std::string_view line) { return file.Write(line); };
    const std::optional<std::int64_t> count = ExportRows(window, rows, format, call.App(), write, error);
    if (!error.empty()) return Fail(call, error);
    if (!count || !file.Keep()) return Fail(call, call.Text(3) + ": " + std::strerror(errno));
    return call.Answer(std::to_string(*count));
}

int ExportAsText(AppCall& call, Window& window, const ExportedRows& rows, ExportFormat format) {
    std::string text, error;
    const auto write = [&text](std::string_view line) {
        text += line;
        return text.size() <= mostBytes;
    };
    if (ExportRows(window, rows, format, call.App(), write, error)) return call.Answer(text);
    return Fail(call, error.empty()
                          ? "they are more than " + std::to_string(mostBytes) + " bytes; a FILE takes them"
                          : error);
}

} // namespace

int AppExport(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    ExportedRows rows;
    ExportFormat format = ExportFormat::Csv;
    if (!window || !ReadFormat(call, format) || !ReadRows(call, *window, rows)) return TCL_ERROR;
    rows.deep = call.Count() > 4;
    if (rows.deep && call.Text(4) != "deep")
        return call.Fail("\"" + call.Text(4) + "\" tells nothing of the rows: it must be deep", "ROWS",
                         call.Text(4));
    RowInserts inserts(window->Rows());
    rows.linesOf = [&inserts](const std::vector<std::uint32_t>& indices, const RowInserts::Take& take,
                              std::string& error) { return inserts.Make(indices, take, error); };
    return call.Count() > 3 && !call.Text(3).empty() ? ExportToFile(call, *window, rows, format)
                                                     : ExportAsText(call, *window, rows, format);
}

} // namespace znhost
