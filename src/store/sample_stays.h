#pragma once

#include <span>

namespace store {

enum class SampleState {
    Offen,         ///< firm, not in the house
    ImHaus,        ///< checked in
    Warteschlange, ///< in the waiting row
    Bezahlt,       ///< left, invoice written and paid
    Berechnet,     ///< left, invoice written, nothing paid
    Gehalten,      ///< in the house, billing held back
};

/// A stay of the sample house.
struct SampleStay {
    int Zimmernummer;
    int Ankunft; ///< days from today, negative for past days
    int Nächte;
    int Gast;         ///< place in sampleGuests()
    int Belegungsart; ///< 4 is an offer
    int Gäste;
    int Kinder = 0;
    SampleState Zustand = SampleState::Offen;
    bool Block = false; ///< a member of the one block; the first is its leader
};

[[nodiscard]] std::span<const SampleStay> sampleStays();

} // namespace store
