#pragma once

#include "platform/jet/database.h"

#include <span>
#include <string_view>

namespace store {

// What a house without settings starts with. Each routine empties its table first, row by row; only the record of the
// rooms stays and keeps what it holds besides their number.

/// The nine rooms of the example and the waiting row, which is the tenth.
void writeDefaultRooms(jet::Database& database);
/// The text blocks of letters and documents.
void writeDefaultTexts(jet::Database& database);
/// The types 0 to 8; "Angebot" marks offers.
void writeDefaultTypes(jet::Database& database);
/// The settings. With `keepRooms` the number of rooms stays what it was, where that was a number other than 0.
void writeDefaultParameters(jet::Database& database, bool keepRooms);

/// The headings of lists, F1 to F23 of the record "SpaltenBeschriftung".
[[nodiscard]] std::span<const std::string_view> defaultColumnCaptions();

/// All of it and no extras, in the order in which the first run writes. Nothing is undone when a step fails.
void writeDefaults(jet::Database& database, bool keepRooms);

} // namespace store
