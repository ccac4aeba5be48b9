#pragma once

#include "platform/jet/database.h"

#include <string>
#include <string_view>
#include <vector>

namespace store {

/// A row of tbPLZ.
struct PostalCode {
    std::string PLZ; ///< digits, for places abroad letters too; at most 20 characters
    std::string Ort; ///< at most 80 characters

    bool operator==(const PostalCode&) const = default;
};

struct PostalCodeList {
    std::vector<PostalCode> rows;
    std::vector<int> badLines; ///< numbers, from 1, of the lines that are no row
};

/// Reads lines "PLZ;Ort" in UTF-8 or, where they are not valid UTF-8, Windows-1252. A field may stand in double quotes,
/// further fields are passed over, empty lines too, and a first line that has no code is the heading.
[[nodiscard]] PostalCodeList readPostalCodes(std::string_view bytes);

/// The lines for a new house: the main codes of some nine hundred German towns.
[[nodiscard]] std::string_view builtInPostalCodes();

enum class ExistingCodes { Keep, Replace };

/// Writes rows to tbPLZ, each once, in one transaction: all or none. Gives the number of rows that were not there
/// before (with Replace: all that were written).
int storePostalCodes(jet::Database& holidayFile, const std::vector<PostalCode>& rows, ExistingCodes existing);

} // namespace store
