#pragma once

#include "platform/basic/date.h"
#include "platform/jet/database.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace reservations {

/// The pattern of the visible reservation number, record BeNummer.
struct Nummernmuster {
    std::string Vor = {};          ///< F1, in front of the counter
    std::string Datumsformat = {}; ///< F2, behind it; may be empty
    std::string Start = {};        ///< F3, as shown in the dialog
    std::string Fehlende = {};     ///< F4, "Alle" or "Freilassen": what happens to missing numbers

    bool operator==(const Nummernmuster&) const = default;
};

/// Has another row than `id` this counter (this text)?
[[nodiscard]] bool BelegnummerVergeben(jet::Database& db, std::int64_t nummer, int id);
[[nodiscard]] bool BelegnummerTextVergeben(jet::Database& db, std::string_view text, int id);
/// The counter of a new number: one more than the highest, whatever the pattern says about missing ones.
/// Raises 6, with a text for the user, when there is no higher one.
[[nodiscard]] std::int64_t NächsteBelegnummer(jet::Database& db, const Nummernmuster& muster);
/// "R 0012 26"; the blanks stay where a part is empty.
[[nodiscard]] std::string BelegnummerText(const Nummernmuster& muster, std::int64_t nummer, basic::Date tag);

/// The pattern among the settings of the house.
[[nodiscard]] Nummernmuster MusterAus(const std::vector<std::string>& beNummer);

} // namespace reservations
