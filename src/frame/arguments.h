// What may stand behind a command word, and what it answers: a notation, read when the library is compiled.
#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string_view>

namespace znlayer {

/// What a word in the place of an argument means. Each kind has a word in capitals, by which the notation and
/// the help name it.
enum class ArgumentKind : unsigned char {
    Literal, ///< the word itself, as it is written in the notation
    // Texts and numbers.
    Any,
    Boolean,
    Color,
    Count,
    File,
    Frame,
    Index,
    Integer,
    Name,
    Pattern,
    Procedure,
    Script,
    Text,
    Type,
    Value,
    // Names of what is there: the host knows them.
    Callback,
    Collection,
    CollectorKind,
    CollectorOption,
    Column,
    Criteria,
    Criterion,
    DataControl,
    DataOperation,
    DataProperty,
    DataSource,
    Element,
    Event,
    Field,
    FindProperty,
    FindRequest,
    Folder,
    Hierarchical,
    List,
    Listener,
    Map,
    Part,
    PopupMenu,
    PopupMenuItem,
    Property,
    Reference,
    State,
    Style,
    Tree,
    View,
    ViewOperation,
    Window,
};

struct ArgumentKindRow {
    std::string_view word;
    ArgumentKind kind;
    const char* meaning;
};

inline constexpr ArgumentKindRow argumentKinds[] = {
    {"ANY", ArgumentKind::Any, "a word that is not looked at"},
    {"BOOL", ArgumentKind::Boolean, "true or false, as Tcl reads them"},
    {"COLOR", ArgumentKind::Color, "a colour, as Tk names them"},
    {"COUNT", ArgumentKind::Count, "how many values follow"},
    {"FILE", ArgumentKind::File, "the name of a file"},
    {"FRAME", ArgumentKind::Frame, "the path of a Tk frame"},
    {"INDEX", ArgumentKind::Index, "the number of a row, as the window counts them"},
    {"INT", ArgumentKind::Integer, "a whole number"},
    {"NAME", ArgumentKind::Name, "a name of your choice"},
    {"PATTERN", ArgumentKind::Pattern, "what texts must hold"},
    {"PROC", ArgumentKind::Procedure, "the name of a Tcl procedure"},
    {"SCRIPT", ArgumentKind::Script, "a Tcl script"},
    {"TEXT", ArgumentKind::Text, "any text"},
    {"TYPE", ArgumentKind::Type, "the word of a data type"},
    {"VALUE", ArgumentKind::Value, "a value"},
    {"CALLBACK", ArgumentKind::Callback, "a callback of the current event"},
    {"COLLECTION", ArgumentKind::Collection, "a named collection of the current view"},
    {"COLUMN", ArgumentKind::Column, "a column of the current view"},
    {"CRITERIA", ArgumentKind::Criteria, "criteria of the current simple data source"},
    {"CRITERION", ArgumentKind::Criterion, "a criterion of the current find request's property"},
    {"DATACTRL", ArgumentKind::DataControl, "a data control"},
    {"DATAOPERATION", ArgumentKind::DataOperation, "a data operation of the current data control"},
    {"DATAPROPERTY", ArgumentKind::DataProperty, "a data property of the current simple data source"},
    {"DATASOURCE", ArgumentKind::DataSource, "a simple data source of the current data control"},
    {"ELEMENT", ArgumentKind::Element, "an element of the current style"},
    {"EVENT", ArgumentKind::Event, "an event of the current window part"},
    {"FIELD", ArgumentKind::Field, "an input field of the current data control"},
    {"FINDPROPERTY", ArgumentKind::FindProperty, "a property of the current find request"},
    {"FINDREQUEST", ArgumentKind::FindRequest, "a find request of the current window"},
    {"FOLDER", ArgumentKind::Folder, "a folder in the current folder"},
    {"HIERARCHICAL", ArgumentKind::Hierarchical, "a hierarchical data source of the current data control"},
    {"KIND", ArgumentKind::CollectorKind, "a data source whose items the collector can collect"},
    {"LIST", ArgumentKind::List, "a list of the current folder"},
    {"LISTENER", ArgumentKind::Listener, "a listener of the current window"},
    {"MAP", ArgumentKind::Map, "a GUI map"},
    {"OPTION", ArgumentKind::CollectorOption, "an action of the collector"},
    {"PART", ArgumentKind::Part, "a part of the current window"},
    {"POPUPMENU", ArgumentKind::PopupMenu, "a popup menu"},
    {"POPUPMENUITEM", ArgumentKind::PopupMenuItem, "an item of the current popup menu"},
    {"PROPERTY", ArgumentKind::Property, "a property of the current view"},
    {"REFERENCE", ArgumentKind::Reference, "a data reference of the current data control"},
    {"STATE", ArgumentKind::State, "a saved state of the current data control"},
    {"STYLE", ArgumentKind::Style, "a style of the current column"},
    {"TREE", ArgumentKind::Tree, "a tree of the current folder"},
    {"VIEW", ArgumentKind::View, "a view"},
    {"VIEWOPERATION", ArgumentKind::ViewOperation, "an operation of the current view"},
    {"WINDOW", ArgumentKind::Window, "a window"},
};

/// One argument of the notation.
struct Argument {
    std::string_view alternatives; ///< kinds and words, with "|" between them
    bool optional = false;
    bool repeated = false; ///< the last argument may stand any number of times
};

/// The arguments of a command, in the notation of its help: "NAME ?TEXT?". A word in capitals is a kind, any
/// other stands for itself, "a|b" is one or the other, "?...?" may be left out, and " ..." behind the last
/// says that it may be repeated. What the command answers stands behind "->", in the same notation: "->
/// NAME",
/// "-> NAME ..." for a list, "-> ?NAME?" where it may be empty; nothing stands there where it always is. A
/// notation that breaks these rules does not compile.
class Arguments {
public:
    static constexpr std::size_t any = std::numeric_limits<int>::max() / 2;

    /// Who looks whether the words that are needed are there.
    enum class Check {
        ByTable,  ///< the table: with too few of them, or an unreadable one, it answers the usage text
        ByHandler ///< the command's own function, which has something else to look at first, or to answer
    };

    template <std::size_t size>
    constexpr Arguments(const char (&notation)[size], Check check = Check::ByTable)
        : text_(notation, size - 1), check_(check) {
        SplitAnswer();
        std::string_view rest = text_;
        while (!rest.empty()) {
            const Argument next = Take(rest);
            if (most_ == any) throw std::logic_error("nothing may follow a repeated argument");
            if (!next.optional && most_ > fewest_)
                throw std::logic_error("a needed argument behind an optional");
            if (!next.optional) ++fewest_;
            most_ = next.repeated ? any : most_ + 1;
        }
    }

    std::string_view Text() const { return text_; }
    std::string_view Answer() const { return answer_; }
    /// How many words must follow, and how many are looked at.
    constexpr std::size_t Fewest() const { return fewest_; }
    constexpr std::size_t Most() const { return most_; }
    constexpr bool AreCheckedByTable() const { return check_ == Check::ByTable; }

    /// The argument at that place, counted from 0; without alternatives where there is none.
    Argument At(std::size_t place) const {
        std::string_view rest = text_;
        while (!rest.empty()) {
            const Argument argument = Take(rest);
            if (place == 0 || argument.repeated) return argument;
            --place;
        }
        return {};
    }

    /// The kind that an alternative names; a literal for any other word.
    static constexpr ArgumentKind KindOf(std::string_view alternative) {
        for (const ArgumentKindRow& row : argumentKinds) {
            if (row.word == alternative) return row.kind;
        }
        return ArgumentKind::Literal;
    }
    /// Takes the first alternative off.
    static constexpr std::string_view TakeAlternative(std::string_view& alternatives) {
        return TakeUntil(alternatives, '|');
    }

private:
    constexpr void SplitAnswer() {
        constexpr std::string_view arrow = "-> ";
        const std::size_t at = text_.find(arrow);
        if (at == text_.npos) return;
        answer_ = text_.substr(at + arrow.size());
        text_ = text_.substr(0, at == 0 ? 0 : at - 1);
        for (std::string_view rest = answer_; !rest.empty();) Take(rest);
    }

    static constexpr std::string_view TakeUntil(std::string_view& rest, char border) {
        const std::size_t end = rest.find(border);
        const std::string_view taken = rest.substr(0, end);
        rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
        return taken;
    }

    static constexpr Argument Take(std::string_view& rest) {
        Argument argument;
        argument.alternatives = TakeUntil(rest, ' ');
        if (argument.alternatives.front() == '?') {
            argument.optional = true;
            if (argument.alternatives.size() < 3 || argument.alternatives.back() != '?')
                throw std::logic_error("an optional argument stands between question marks");
            argument.alternatives = argument.alternatives.substr(1, argument.alternatives.size() - 2);
        }
        if (rest.substr(0, 3) == "...") {
            argument.repeated = true;
            TakeUntil(rest, ' ');
        }
        for (std::string_view left = argument.alternatives; !left.empty();) CheckWord(TakeAlternative(left));
        return argument;
    }

    static constexpr void CheckWord(std::string_view word) {
        if (word.empty()) throw std::logic_error("an alternative is empty");
        if (word[0] >= 'A' && word[0] <= 'Z' && KindOf(word) == ArgumentKind::Literal)
            throw std::logic_error("a word in capitals is none of the kinds");
    }

    std::string_view text_;
    std::string_view answer_;
    std::size_t fewest_ = 0;
    std::size_t most_ = 0;
    Check check_;
};

/// Arguments of a command that looks itself whether they are there.
template <std::size_t size>
constexpr Arguments HandlerChecks(const char (&notation)[size]) {
    return Arguments(notation, Arguments::Check::ByHandler);
}

} // namespace znlayer

#endif
