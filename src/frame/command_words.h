// How commands read their words: a name, a flag, "enabled" or "disabled".
#ifndef COMMAND_WORDS_H
#define COMMAND_WORDS_H

#include "frame/call.h"

namespace znlayer {

using FlagSetter = bool (znBrowserManagerTcl::*)(bool);

/// Reads an optional boolean; without a word `flag` keeps its value.
/// @return false for a word that is no boolean: then Tcl's message and the usage text are answered
inline bool ReadFlag(Call& call, int position, bool& flag, const char* usage) {
    if (!call.Has(position) || call.BooleanOrMessage(position, flag)) return true;
    call.Answer(usage);
    return false;
}

/// As `ReadFlag`, but the usage text is answered for a missing word, too.
inline bool RequireFlag(Call& call, int position, bool& flag, const char* usage) {
    if (call.Has(position)) return ReadFlag(call, position, flag, usage);
    call.Answer(usage);
    return false;
}

/// `word BOOLEAN`: nothing, or the error.
inline void SetFlag(Call& call, int position, FlagSetter setter, const char* usage) {
    bool flag = false;
    if (RequireFlag(call, position, flag, usage)) call.AnswerOutcome((call.manager.*setter)(flag));
}

/// `word ?BOOLEAN?`, where the boolean is an option of an action and false when left out.
inline void RunWithFlag(Call& call, int position, FlagSetter action, const char* usage) {
    bool flag = false;
    if (ReadFlag(call, position, flag, usage)) call.AnswerOutcome((call.manager.*action)(flag));
}

/// `word ?BOOLEAN?`: the value that was set, or the value read.
inline void SetOrGetFlag(Call& call, int position, FlagSetter setter, Call::Getter getter,
                         const char* usage) {
    if (!call.Has(position)) return call.AnswerValue(getter);
    bool flag = false;
    if (!ReadFlag(call, position, flag, usage)) return;
    if (!(call.manager.*setter)(flag)) return call.AnswerError();
    call.Answer(flag);
}

/// `word ?enabled|disabled?`: sets when given, then reads.
inline void SetOrGetEnabled(Call& call, int position, FlagSetter setter, Call::Getter getter,
                            const char* usage) {
    const bool enabled = call.Is(position, Keyword::Enabled);
    if (call.Has(position)) {
        if (!enabled && !call.Is(position, Keyword::Disabled)) return call.Answer(usage);
        if (!(call.manager.*setter)(enabled)) return call.AnswerError();
    }
    call.AnswerValue(getter);
}

/// `word NAME`: nothing, or the error.
inline void RunWithName(Call& call, int position, Call::TextSetter action, const char* usage) {
    if (!call.Has(position)) return call.Answer(usage);
    call.AnswerOutcome((call.manager.*action)(call.Text(position)));
}

/// `create NAME`: the name, or the error.
inline void CreateWithName(Call& call, int position, Call::TextSetter action, const char* usage) {
    if (!call.Has(position)) return call.Answer(usage);
    call.AnswerOutcome((call.manager.*action)(call.Text(position)), call.Text(position));
}

/// `word ?none|NAME?`: sets a name or, with none, clears it; then reads.
inline void SetOrClearThenAnswer(Call& call, int position, Call::TextSetter setter, Call::Getter getter) {
    if (call.Has(position)) {
        const char* const name = call.Is(position, Keyword::NoneWord) ? "" : call.Text(position);
        if (!(call.manager.*setter)(name)) return call.AnswerError();
    }
    call.AnswerValue(getter);
}

} // namespace znlayer

#endif
