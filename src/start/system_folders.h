#pragma once

#include "platform/services/dialogs.h"

#include <string>

namespace start {

/// Makes the five folders of the documents in the program folder where they are missing. For each that cannot be made
/// the user is told, and the others are made all the same.
void Systemordner(const std::string& programmordner, services::Dialogs& dialogs, const std::string& titel);

} // namespace start
