#pragma once

#include "platform/jet/database.h"

#include <string_view>

namespace reservations {

// Stays that belong together (tbBlockbuchung). The block tool makes them; here they are recognised.

[[nodiscard]] bool istBlockmitglied(jet::Database& db, int id);
/// Does any stay of this short name (case ignored) stand in a block?
[[nodiscard]] bool istBlockmitgliedMitKürzel(jet::Database& db, std::string_view kürzel);
/// Sets `Fix` of all members of the stay's block; nothing happens when it has none.
void FixÜbernehmen(jet::Database& db, int id, bool fix);
/// Takes the stay out of its block.
void AusBlockNehmen(jet::Database& db, int id);
/// Writes the remark to all members of the stay's block; an empty one as Null. False when nothing could be written and
/// the members keep theirs: the remark has an apostrophe, the stay is in two blocks, or the file fails.
bool BemerkungÜbernehmen(jet::Database& db, int id, std::string_view bemerkung);

} // namespace reservations
