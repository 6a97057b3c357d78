// The receiving side of the host's signal library.
#ifndef ZN_LISTENER_H
#define ZN_LISTENER_H

#include <unordered_set>

/// The policy of signals that are used from one thread only: nothing is locked.
struct single_threaded {};

template <class Policy>
class znListener;

/// What a listener knows of a signal, whatever the signal's arguments are.
template <class Policy>
class znSignalBase {
public:
    /// Disconnects every slot of the listener. It need not have one.
    virtual void Disconnect(znListener<Policy>& listener) = 0;
    virtual ~znSignalBase() = default;
};

/// The base of an object whose slots are connected to signals. When it dies, it is disconnected from all
/// of them. A copy starts without connections, and assignment leaves those of both sides alone.
template <class Policy>
class znListener {
public:
    /// Starts without connections.
    znListener() = default;
    /// Starts without connections, too.
    znListener(const znListener&) {}
    /// Changes nothing.
    znListener& operator=(const znListener&) { return *this; }
    /// Disconnects from all signals.
    virtual ~znListener() { DisconnectAll(); }

    /// Disconnects this listener from all its signals.
    void DisconnectAll() {
        while (!signals_.empty()) {
            znSignalBase<Policy>* const signal = *signals_.begin();
            SignalDisconnectPrivate(signal);
            signal->Disconnect(*this);
        }
    }

    /// For signals only: a signal that got a slot of this listener announces itself ...
    void SignalConnectPrivate(znSignalBase<Policy>* signal) { signals_.insert(signal); }
    /// ... and takes its leave when it has none left, or dies.
    void SignalDisconnectPrivate(znSignalBase<Policy>* signal) { signals_.erase(signal); }

private:
    std::unordered_set<znSignalBase<Policy>*> signals_;
};

#endif
