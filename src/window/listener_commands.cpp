// znbrowsermanager window listener ...
#include "window/window_levels.h"

namespace {

using Manager = znBrowserManagerTcl;

/// Both need the name of a listener.
template <bool (Manager::*change)(const char*)>
void Change(Call& call) {
    if (!call.Has(4)) return call.Answer(znBrowserTclMessages::WINDOW);
    call.AnswerOutcome((call.manager.*change)(call.Text(4)));
}

void Names(Call& call) { call.AnswerValue(&Manager::GetWindowListenerNames); }

constexpr CommandRow rows[] = {
    {Keyword::Connect, Change<&Manager::AddWindowListener>},
    {Keyword::Disconnect, Change<&Manager::DeleteWindowListener>},
    {Keyword::Names, Names},
};

} // namespace

constexpr CommandLevel windowListenerLevel(rows, znBrowserTclMessages::WINDOW);
