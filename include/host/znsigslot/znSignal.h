// The sending side of the host's signal library.
#ifndef ZN_SIGNAL_H
#define ZN_SIGNAL_H

#include "znListener.h"

#include <functional>
#include <iterator>
#include <list>
#include <memory>
#include <utility>

/// A signal calls its slots, in the order in which they were connected, each time it is emitted.
///
/// Slots may do anything during an emission. A slot disconnected during it is not called any more, and
/// removed afterwards; one connected during it is called from the next emission on. The signal may be
/// destroyed: the emission then ends with the slot that did it. An exception from a slot ends the
/// emission, leaves the signal ready for the next one, and reaches whoever emitted.
template <class Policy, class... Args>
class znSignal : public znSignalBase<Policy> {
public:
    using Listener = znListener<Policy>;
    using Function = std::function<void(Args...)>;

    /// Starts without slots, not blocked.
    znSignal() = default;
    znSignal(const znSignal&) = delete;
    znSignal& operator=(const znSignal&) = delete;

    /// Disconnects every slot. What the slots hold goes at the end of the emission that runs, if one does.
    ~znSignal() override {
        for (Slot& slot : state_->connections) {
            if (slot.listener) std::exchange(slot.listener, nullptr)->SignalDisconnectPrivate(this);
        }
    }

    /// Connects a function on behalf of a listener, which must outlive the connection or disconnect (its
    /// destructor does). A listener may connect several slots. An empty function is not connected.
    void Connect(Listener& listener, Function function) {
        if (!function) return;
        listener.SignalConnectPrivate(this);
        try {
            state_->connections.push_back({&listener, std::move(function)});
        } catch (...) {
            if (!IsConnected(listener)) listener.SignalDisconnectPrivate(this);
            throw;
        }
    }

    /// Connects a method of the listener. `object` is both the listener and what the method is called on.
    template <class Object>
    void Connect(Object& listener, void (Object::*method)(Args...)) {
        Connect(listener, Function([&listener, method](Args... args) {
                    (listener.*method)(std::forward<Args>(args)...);
                }));
    }

    /// Disconnects every slot of the listener. It need not have one.
    void Disconnect(Listener& listener) override {
        for (Slot& slot : state_->connections) {
            if (slot.listener == &listener) slot.listener = nullptr;
        }
        listener.SignalDisconnectPrivate(this);
        if (!state_->emitting) State::RemoveDisconnected(*state_);
    }

    /// Whether the listener has a slot here.
    bool IsConnected(const Listener& listener) const {
        for (const Slot& slot : state_->connections) {
            if (slot.listener == &listener) return true;
        }
        return false;
    }

    /// Calls the slots. Does nothing when the signal is blocked or is being emitted already.
    void Emit(Args... args) {
        if (state_->blocked || state_->emitting || state_->connections.empty()) return;
        const Emission emission(state_);
        std::list<Slot>& connections = emission.state->connections;
        const auto last = std::prev(connections.end());
        for (auto slot = connections.begin();; ++slot) {
            if (slot->listener) slot->function(args...);
            if (slot == last) return;
        }
    }
    /// The same as `Emit`.
    void operator()(Args... args) { Emit(std::forward<Args>(args)...); }

    /// A blocked signal ignores emissions; they are not made up for later. An emission that runs goes on.
    void Block(bool blocked = true) { state_->blocked = blocked; }
    /// Whether emissions are ignored now.
    bool IsBlocked() const { return state_->blocked; }
    /// Whether an emission runs now; another one would do nothing.
    bool IsEmitting() const { return state_->emitting; }

private:
    struct Slot {
        Listener* listener; ///< null once the slot is disconnected
        Function function;
    };

    struct State {
        std::list<Slot> connections;
        bool blocked = false;
        bool emitting = false;

        /// The slots are taken out before they are destroyed: what they hold may disconnect others.
        static void RemoveDisconnected(State& state) {
            std::list<Slot> removed;
            for (auto slot = state.connections.begin(); slot != state.connections.end();) {
                const auto next = std::next(slot);
                if (!slot->listener) removed.splice(removed.end(), state.connections, slot);
                slot = next;
            }
        }
    };

    /// One emission: keeps the state alive should the signal be destroyed, and tidies up at the end.
    struct Emission {
        std::shared_ptr<State> state;

        explicit Emission(const std::shared_ptr<State>& signalState) : state(signalState) {
            state->emitting = true;
        }
        Emission(const Emission&) = delete;
        Emission& operator=(const Emission&) = delete;
        ~Emission() {
            state->emitting = false;
            State::RemoveDisconnected(*state);
        }
    };

    std::shared_ptr<State> state_ = std::make_shared<State>();
};

#endif
