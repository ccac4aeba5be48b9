#pragma once

#include "platform/jet/workspace.h"

#include <string>

namespace store {

/// Brings the sample file up to date: moves its stays, posts, documents and payments by so many days that the first
/// stay arrives on the day of `today`. Seasons, holidays and the days on which rows were made stay. All or nothing;
/// does nothing where there is no stay. Raises the engine's errors.
void shiftSampleDates(const jet::Workspace& workspace, const std::string& beispiel, basic::Date today);

} // namespace store
