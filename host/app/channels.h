// What is heard of databases outside of all questions.
#ifndef ZN_HOST_CHANNELS_H
#define ZN_HOST_CHANNELS_H

#include <tcl.h>

#include <vector>

namespace znhost {

class Application;

/// Listens while Tcl waits for events: when others tell that a database has changed, its views are brought up
/// to date as soon as there is nothing else to do. So they are when a question found that a table has gone.
class Channels {
public:
    explicit Channels(Application& application);
    ~Channels();
    Channels(const Channels&) = delete;
    Channels& operator=(const Channels&) = delete;

private:
    static void BeforeWait(ClientData channels, int flags);
    static void Follow(ClientData channels);
    void Listen();
    bool HasNews();

    Application& application_;
    std::vector<int> heard_; ///< the files that Tcl looks at
    bool isDue_ = false;     ///< the databases are going to be looked at
};

} // namespace znhost

#endif
