// Lists of names and values, as the commands print them.
#ifndef NAME_LIST_H
#define NAME_LIST_H

#include "frame/text_piece.h"
#include "znBrowserManagerTcl.h"

#include <cstddef>
#include <vector>

namespace znlayer {

/// How an entry is written: as it is, in braces when it holds a blank, in double quotes, or as an element of
/// a Tcl list, whatever it holds.
enum class EntryForm { Plain, Braced, Quoted, Element };

/// Which blanks a list has besides the one that stands before each entry but the first. The command families
/// differ in this, and scripts may have come to rely on it.
enum class ExtraBlanks {
    None,    ///< "a b"
    Between, ///< "a   b"
    After    ///< "a   b  "
};

/// What becomes of a list when the host gives a null name.
enum class NullName {
    DropsList, ///< the list is given up: it is empty
    EndsList,  ///< the list ends before that name
    IsLeftOut
};

/// A list under construction. It is built apart from the manager's result buffer, because asking the host for
/// an entry may run a script, and scripts empty that buffer.
class NameList {
public:
    explicit NameList(EntryForm form = EntryForm::Plain, ExtraBlanks blanks = ExtraBlanks::None)
        : form_(form), blanks_(blanks) {}

    /// @return false, and nothing is added, for a null text
    bool Add(const char* entry) {
        if (!entry) return false;
        if (blanks_ == ExtraBlanks::Between && count_ > 0) AppendPiece(text_, " ", false, true, false);
        if (form_ == EntryForm::Element)
            AppendElement(text_, entry);
        else
            AppendPiece(text_, entry, form_ == EntryForm::Quoted, true, form_ == EntryForm::Braced);
        if (blanks_ == ExtraBlanks::After) AppendPiece(text_, " ", false, true, false);
        ++count_;
        return true;
    }
    bool Add(const znString& entry) { return Add(entry.GetText()); }

    /// Adds the names of objects that answer `GetName`, in order.
    template <class Object>
    NameList& AddNames(const std::vector<Object*>& objects, NullName rule = NullName::DropsList) {
        for (Object* const object : objects) {
            if ((object && Add(object->GetName())) || rule == NullName::IsLeftOut) continue;
            if (rule == NullName::DropsList) text_.clear();
            break;
        }
        return *this;
    }

    /// Adds texts, in order; texts without storage are left out.
    NameList& AddTexts(const std::vector<znString>& texts) {
        for (const znString& text : texts) Add(text);
        return *this;
    }

    /// Ends an operation: the list becomes `out`, and the text of the manager's result buffer.
    /// @return the manager's error state
    bool Give(const znBrowserManagerTcl& manager, znString& out) {
        manager.ResetBuff();
        manager.AppendToBuff(text_.c_str(), false, false);
        out.assign(text_.View());
        return manager.GetState();
    }

private:
    EntryForm form_;
    ExtraBlanks blanks_;
    std::size_t count_ = 0;
    znString text_;
};

} // namespace znlayer

#endif
