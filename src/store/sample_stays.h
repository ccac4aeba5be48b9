#pragma once

#include "platform/basic/date.h"

#include <vector>

namespace store {

enum class SampleState {
    Offen,         ///< firm or an offer, not in the house
    ImHaus,        ///< checked in
    Gehalten,      ///< in the house, billing held back
    Bezahlt,       ///< left, invoice written and paid
    Berechnet,     ///< left, invoice written, nothing paid
    Warteschlange, ///< in the waiting row
};

/// A stay of the sample house.
struct SampleStay {
    int Zimmernummer;
    basic::Date Von;
    basic::Date Bis;
    int Gast;         ///< place in sampleGuests()
    int Belegungsart; ///< 4 is an offer
    int Gäste;
    int Kinder;
    SampleState Zustand;
    bool Block;     ///< a member of the one block; the first is its leader
    bool Angezahlt; ///< to come, and partly paid already
};

/// The stays as they lie around `today`: first one that arrives on it, then all others in order of arrival. Most follow
/// the days of the week: business guests come on Mondays, couples at the weekend, families from Saturday to Saturday.
/// In a room no two share a night, but for those of the waiting row. Offers arrive after today.
[[nodiscard]] std::vector<SampleStay> sampleStays(basic::Date today);

} // namespace store
