#pragma once

#include "platform/basic/error.h"
#include "platform/services/dialogs.h"

#include <concepts>
#include <string>

namespace reservations {

/// Runs what the user has asked for: an Error is told in its own words, and the answer is false.
template <std::predicate Routine>
bool toldIfFailed(services::Dialogs& dialogs, const std::string& strTitel, Routine routine) {
    try {
        return routine();
    } catch (const basic::Error& error) {
        dialogs.MsgBox(error.text(), {.icon = services::MsgIcon::Exclamation}, strTitel);
        return false;
    }
}

} // namespace reservations
