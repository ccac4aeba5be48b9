#pragma once

#include "platform/jet/database.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace start {

// Single records of the stores tblParameter (Satz, F1 to F28) and tblTexte (Textbaustein, Inhalt). Keys compare without
// regard to case. Errors of the engine go to the caller.

using Feldwerte = std::vector<std::pair<std::string, std::string>>;

/// One field of a record; none when the record is missing, Null when the field is.
[[nodiscard]] std::optional<basic::Value> FeldLesen(jet::Database& db, std::string_view satz,
                                                    std::string_view feld = "F1");
/// "Ja" or "Nein" as stored; none when the record is missing.
[[nodiscard]] std::optional<std::string> JaNeinLesen(jet::Database& db, std::string_view satz);
/// Writes "Ja" for 1, "Nein" for any other value; adds the record when it is missing.
void JaNeinSchreiben(jet::Database& db, std::string_view satz, int wert);
/// A caption of the plan by its field ("F1", "F2", ...); the word "Bezeichnung" when the record is missing.
[[nodiscard]] std::string BeschriftungLesen(jet::Database& db, std::string_view feld);

/// Sets fields of a record, which is added when it is missing. The last writer wins.
void SatzSchreiben(jet::Database& db, std::string_view satz, const Feldwerte& felder);
void TextSchreiben(jet::Database& db, std::string_view textbaustein, std::string_view inhalt);

} // namespace start
