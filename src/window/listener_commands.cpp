// znbrowsermanager window listener ...
#include "frame/command_words.h"
#include "window/window_levels.h"

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Connect(Call& call) { RunWithName(call, 4, &Manager::AddWindowListener, Messages::WINDOW); }
void Disconnect(Call& call) { RunWithName(call, 4, &Manager::DeleteWindowListener, Messages::WINDOW); }
void Names(Call& call) { call.AnswerValue(&Manager::GetWindowListenerNames); }

constexpr CommandRow rows[] = {
    {Keyword::Connect, "NAME", "Adds a listener, which is told of the window's events.", Connect},
    {Keyword::Disconnect, "LISTENER", "Removes a listener of the window.", Disconnect},
    {Keyword::Names, "-> LISTENER ...", "Lists the listeners of the window.", Names},
};

} // namespace

constexpr CommandLevel windowListenerLevel(rows, Messages::WINDOW);

} // namespace znlayer
