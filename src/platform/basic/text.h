#pragma once

#include "platform/basic/value.h"

#include <string>
#include <string_view>
#include <vector>

namespace basic {

// Texts are UTF-8. Positions and lengths count characters (code points), positions start at 1.

/// German dictionary order, case ignored, accents counted (ü is not u, but sorts with it): negative, 0, positive.
/// Invalid UTF-8 compares by replacement characters, never fails.
[[nodiscard]] int compareText(std::string_view a, std::string_view b);
[[nodiscard]] inline bool equalText(std::string_view a, std::string_view b) { return compareText(a, b) == 0; }

/// The fold by which names of tables and fields and the patterns of Like ignore case (full Unicode case folding,
/// umlauts too; ß and ss stay different). ASCII input takes a fast path.
[[nodiscard]] std::string foldCase(std::string_view text);

/// ß stays ß.
[[nodiscard]] std::string UCase(std::string_view text);
[[nodiscard]] std::string LCase(std::string_view text);

[[nodiscard]] std::int64_t Len(std::string_view text);
/// A negative length raises 5.
[[nodiscard]] std::string Left(std::string_view text, std::int64_t length);
[[nodiscard]] std::string Right(std::string_view text, std::int64_t length);
/// Past the end gives the empty text; start below 1 or a negative length raises 5.
[[nodiscard]] std::string Mid(std::string_view text, std::int64_t start, std::optional<std::int64_t> length = {});
/// Blanks (U+0020) only.
[[nodiscard]] std::string Trim(std::string_view text);
[[nodiscard]] std::string LTrim(std::string_view text);
[[nodiscard]] std::string RTrim(std::string_view text);
/// First position at or after start, 0 if none or the text is empty; an empty pattern gives start. Case is ignored.
[[nodiscard]] std::int64_t InStr(std::int64_t start, std::string_view text, std::string_view pattern);
/// First position of the last occurrence, 0 if none or the text is empty; an empty pattern gives Len.
[[nodiscard]] std::int64_t InStrRev(std::string_view text, std::string_view pattern);
/// Every occurrence, case counted; an empty `find` changes nothing.
[[nodiscard]] std::string Replace(std::string_view text, std::string_view find, std::string_view with);
/// The first character of `character`, count times. A negative count or no character raises 5, more than 67,108,864
/// characters raise 6.
[[nodiscard]] std::string String(std::int64_t count, std::string_view character);
[[nodiscard]] std::string Space(std::int64_t count);
/// Windows-1252 code 0 to 255; others raise 5.
[[nodiscard]] std::string Chr(std::int64_t code);
/// Windows-1252 code of the first character (63 where it has none); the empty text raises 5.
[[nodiscard]] std::int64_t Asc(std::string_view text);
/// The empty text has no parts; an empty delimiter leaves the text whole.
[[nodiscard]] std::vector<std::string> Split(std::string_view text, std::string_view delimiter);

/// Sort key whose byte order is the order of compareText.
[[nodiscard]] std::string collationKey(std::string_view text);
/// Version of the collation data, stored in data files: text indexes built under another version are rebuilt.
[[nodiscard]] std::string collationVersion();

/// Is it valid UTF-8?
[[nodiscard]] bool isValidText(std::string_view text);
/// Canonical composition (NFC), so that one umlaut has one spelling.
[[nodiscard]] std::string normalised(std::string_view text);

} // namespace basic
