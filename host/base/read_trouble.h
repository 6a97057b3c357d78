// What could not be read.
#ifndef ZN_HOST_READ_TROUBLE_H
#define ZN_HOST_READ_TROUBLE_H

#include <cstddef>
#include <string>

namespace znhost {

/// What could not be read of late, and why. A question that fails is answered as if there were nothing; who
/// must not take that for the truth watches:
///
///     const ReadTrouble::Watch watch(application.Trouble());
///     source.List(query, rows);
///     if (watch.Seen()) return FailWith(watch.Text());
class ReadTrouble {
public:
    enum class Kind {
        Lasting,
        Passing, ///< others use the database: it may be read in a moment
        TooLong, ///< with more time it could be read
    };

    void Note(const std::string& source, const std::string& reason, Kind kind) {
        ++count_;
        text_ = source + ": " + reason + (kind == Kind::Passing ? " (retry)" : "");
        kind_ = kind;
    }

    class Watch {
    public:
        explicit Watch(const ReadTrouble& trouble) : trouble_(trouble), before_(trouble.count_) {}
        /// Whether something could not be read since the watch began.
        bool Seen() const { return trouble_.count_ != before_; }
        /// The last of it: "parts: database is locked (retry)".
        const std::string& Text() const { return trouble_.text_; }
        Kind Why() const { return trouble_.kind_; }

    private:
        const ReadTrouble& trouble_;
        const std::size_t before_;
    };

private:
    std::size_t count_ = 0;
    std::string text_;
    Kind kind_ = Kind::Lasting;
};

} // namespace znhost

#endif
