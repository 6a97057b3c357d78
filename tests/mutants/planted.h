// What wakes a planted fault. The copy of the tree is compiled once with many faults in it, each asleep; the
// environment variable ZN_MUTANT wakes the one of that number, and ZN_MUTANT_LOG names a file that takes the
// numbers of those that were reached. The compiler's options include this file into every source of the copy.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace zn_mutants {

/// Writes a number to the log, once a process. It allocates nothing: some tests let every allocation fail.
inline void Log(int number) {
    static const char* const log = std::getenv("ZN_MUTANT_LOG");
    static bool told[100000];
    if (!log || !*log || told[number]) return;
    told[number] = true;
    const int file = open(log, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    char line[16];
    const int length = std::snprintf(line, sizeof line, "%d\n", number);
    if (write(file, line, static_cast<std::size_t>(length)) != length) std::abort();
    close(file);
}

inline bool IsChosen(int number) {
    static const char* const text = std::getenv("ZN_MUTANT");
    static const int chosen = text ? std::atoi(text) : 0;
    Log(number);
    return number == chosen;
}

/// Whether a fault is awake. What the compiler evaluates stays as it is written, and is never reached.
constexpr bool Awake(int number) { return !__builtin_is_constant_evaluated() && IsChosen(number); }

/// A truth value that the fault negates; anything else does not compile.
constexpr bool Negate(int number, bool value) { return Awake(number) != value; }
template <class Other>
bool Negate(int number, const Other& value) = delete;

/// `!value` without its `!`, as it binds: Not{number}->*value.
struct Not {
    int number;
};
template <class Value>
constexpr bool operator->*(Not fault, const Value& value) {
    return Awake(fault.number) != !value;
}

// `a < b` is written `a < Less{number} < b`: as it binds, whatever a and b are. Where the other operator does
// not exist (no text is subtracted from another), the fault is never reached.
#define ZN_OPERATOR(NAME, ORIGINAL, OTHER)                                                                   \
    struct NAME {                                                                                            \
        int number;                                                                                          \
    };                                                                                                       \
    template <class Left>                                                                                    \
    struct NAME##Left {                                                                                      \
        const Left& left;                                                                                    \
        int number;                                                                                          \
    };                                                                                                       \
    template <class Left>                                                                                    \
    constexpr NAME##Left<Left> operator ORIGINAL(const Left& left, NAME fault) {                             \
        return {left, fault.number};                                                                         \
    }                                                                                                        \
    template <class Left, class Right>                                                                       \
    constexpr auto Choose##NAME(int, const NAME##Left<Left>& fault, const Right& right)                      \
        ->decltype(true ? fault.left OTHER right : fault.left ORIGINAL right) {                              \
        return Awake(fault.number) ? fault.left OTHER right : fault.left ORIGINAL right;                     \
    }                                                                                                        \
    template <class Left, class Right>                                                                       \
    constexpr auto Choose##NAME(long, const NAME##Left<Left>& fault, const Right& right) {                   \
        return fault.left ORIGINAL right;                                                                    \
    }                                                                                                        \
    template <class Left, class Right>                                                                       \
    constexpr auto operator ORIGINAL(const NAME##Left<Left>& fault, const Right& right) {                    \
        return Choose##NAME(0, fault, right);                                                                \
    }

ZN_OPERATOR(Less, <, <=)
ZN_OPERATOR(LessEqual, <=, <)
ZN_OPERATOR(Greater, >, >=)
ZN_OPERATOR(GreaterEqual, >=, >)
ZN_OPERATOR(Equal, ==, !=)
ZN_OPERATOR(Unequal, !=, ==)
ZN_OPERATOR(Plus, +, -)
ZN_OPERATOR(Minus, -, +)
#undef ZN_OPERATOR

} // namespace zn_mutants
