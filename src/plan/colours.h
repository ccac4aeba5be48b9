#pragma once

#include <array>

namespace plan {

/// A BGR Long as the settings keep it: red in the lowest byte. Bits above the three channels are never set.
using Farbe = int;

[[nodiscard]] constexpr int Rot(Farbe farbe) { return farbe & 0xFF; }
[[nodiscard]] constexpr int Grün(Farbe farbe) { return farbe >> 8 & 0xFF; }
[[nodiscard]] constexpr int Blau(Farbe farbe) { return farbe >> 16 & 0xFF; }
[[nodiscard]] constexpr Farbe RGB(int rot, int grün, int blau) { return rot | grün << 8 | blau << 16; }

inline constexpr Farbe Weiß = 0xFFFFFF;
inline constexpr Farbe Schwarz = 0x000000;

/// Adds the difference (0 to 255) to each channel, each capped at 255: a dark blue grows to a lighter blue, a saturated
/// channel stays.
[[nodiscard]] Farbe aufgehellt(Farbe farbe, int differenz);

/// Black or white, whichever is easier to read on the colour.
[[nodiscard]] Farbe Schriftfarbe(Farbe grund);

/// A shade of the colour that is just visible on it, for grid lines and thin frames; `stärke` in percent of the way to
/// the colour of its writing.
[[nodiscard]] Farbe abgesetzt(Farbe farbe, int stärke);

/// The band above the day headers, by month from January.
inline constexpr std::array<Farbe, 12> Monatsfarben = {0xC0C0FF, 0xC0FFFF, 0xC0FFC0, 0xFFFFC0, 0xFFC0C0, 0xFFC0FF,
                                                       0xD2D200, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF8080, 0xFF00FF};

} // namespace plan
