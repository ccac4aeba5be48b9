#pragma once

#include "platform/jet/compiled.h"
#include "platform/jet/parser.h"

namespace jet {

enum class Identities { Omit, Include };

/// Binds names and types of a parsed SELECT, UPDATE, DELETE or INSERT and writes it in the storage's SQL. Unknown
/// tables and fields, wrong argument counts and types that can never fit raise an Error that names the place. With
/// Identities::Include an updatable SELECT gets one more result column for each base table: its row's identity. The
/// tree is annotated on the way and not needed afterwards.
[[nodiscard]] Compiled compile(Parsed& parsed, const std::vector<LiteralValue>& literals, const Catalogue& catalogue,
                               Identities identities);

} // namespace jet
