#pragma once

#include "addresses/address.h"

#include <string>

namespace addresses {

/// How header and record of the file end: the word processor's merge wants the mark, the letter program a plain line.
enum class Satzende { Tilde, Ohne };

/// Writes one address as the file of a merge (Windows-1252, CR LF; a character that has no place there becomes "?").
/// Separators inside a value become commas, so that a value cannot make a column of its own. False when the file cannot
/// be written; the old one then stays.
[[nodiscard]] bool AdressdateiSchreiben(const std::string& datei, const Adresse& adresse, Satzende ende);

} // namespace addresses
