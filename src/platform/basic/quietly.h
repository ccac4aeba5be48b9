#pragma once

#include "platform/basic/error.h"

#include <concepts>
#include <source_location>

namespace basic {

/// Prints number, text and place of an error to the standard error output when the environment variable HERBERGO_TRACE
/// is set; else does nothing.
void traceError(const Error& error, const std::source_location& place);

/// Runs `routine`; an Error ends it quietly and gives the default. For routines whose failure the user is not told.
template <typename Result, std::invocable Routine>
Result quietly(Result ifFailed, Routine routine, const std::source_location& place = std::source_location::current()) {
    try {
        return routine();
    } catch (const Error& error) {
        traceError(error, place);
        return ifFailed;
    }
}

/// The same for a routine without a result: True when it came to its end.
template <std::invocable Routine>
bool quietly(Routine routine, const std::source_location& place = std::source_location::current()) {
    try {
        routine();
        return true;
    } catch (const Error& error) {
        traceError(error, place);
        return false;
    }
}

} // namespace basic
