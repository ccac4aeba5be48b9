#pragma once

#include "platform/basic/error.h"

#include <concepts>

namespace basic {

/// A place in the source, by default that of the call.
struct Place {
    const char* file;
    int line;

    // The second compiler lacks std::source_location.
    [[nodiscard]] static constexpr Place here(const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
        return {file, line};
    }
};

/// Prints number, text and place of an error to the standard error output when the environment variable HERBERGO_TRACE
/// is set; else does nothing.
void traceError(const Error& error, Place place);

/// Runs `routine`; an Error ends it quietly and gives the default. For routines whose failure the user is not told.
template <typename Result, std::invocable Routine>
Result quietly(Result ifFailed, Routine routine, Place place = Place::here()) {
    try {
        return routine();
    } catch (const Error& error) {
        traceError(error, place);
        return ifFailed;
    }
}

/// The same for a routine without a result: True when it came to its end.
template <std::invocable Routine>
bool quietly(Routine routine, Place place = Place::here()) {
    try {
        routine();
        return true;
    } catch (const Error& error) {
        traceError(error, place);
        return false;
    }
}

} // namespace basic
