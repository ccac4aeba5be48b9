#include "store/sample_stays.h"

#include <array>

namespace store {

namespace {

using enum SampleState;

// Within a room no two overlap; stays of the waiting row may lie anywhere.
constexpr std::array<SampleStay, 54> kStays = {{
    // the first row arrives today: what moves sample data to another day goes by it
    {3, 0, 3, 0, 1, 2, 0, Offen},
    // room 1: touching stays
    {1, -12, 4, 1, 1, 1, 0, Bezahlt},
    {1, -8, 5, 4, 2, 1, 0, Berechnet},
    {1, -3, 5, 6, 1, 1, 0, ImHaus},
    {1, 2, 4, 11, 3, 1},
    {1, 6, 7, 14, 1, 1},
    {1, 31, 6, 9, 1, 1}, // over the right end of the window
    // room 2
    {2, -20, 6, 7, 1, 2, 0, Bezahlt},
    {2, -5, 10, 15, 2, 2, 0, ImHaus}, // over the left end
    {2, 5, 2, 22, 1, 2},
    {2, 9, 5, 30, 4, 2},
    {2, 16, 14, 23, 1, 2},
    // room 3
    {3, -6, 6, 28, 1, 2, 0, ImHaus}, // leaves today
    {3, 5, 4, 19, 3, 2},
    {3, 10, 3, 33, 2, 2, 0, Offen, true},
    {3, 20, 7, 26, 1, 2},
    // room 4
    {4, -9, 7, 12, 3, 1, 0, Bezahlt},
    {4, -1, 2, 17, 1, 1, 0, ImHaus},
    {4, 1, 1, 31, 2, 1},
    {4, 3, 4, 21, 4, 1},
    {4, 10, 3, 33, 2, 1, 0, Offen, true},
    {4, 24, 10, 25, 1, 1},
    // room 5
    {5, -4, 8, 2, 1, 2, 1, ImHaus},
    {5, 4, 5, 10, 2, 3},
    {5, 10, 3, 33, 2, 3, 0, Offen, true},
    {5, 14, 3, 24, 1, 2, 1},
    {5, 28, 12, 16, 1, 2},
    // room 6
    {6, -30, 14, 20, 1, 2, 0, Bezahlt},
    {6, -2, 6, 5, 2, 2, 0, Gehalten},
    {6, 4, 3, 18, 2, 2},
    {6, 7, 3, 29, 1, 1},
    {6, 12, 9, 8, 4, 2},
    // room 7
    {7, -7, 3, 13, 1, 1, 0, Bezahlt},
    {7, -3, 3, 32, 3, 1, 0, ImHaus}, // leaves today
    {7, 0, 2, 27, 1, 1},
    {7, 2, 5, 3, 2, 1},
    {7, 15, 1, 31, 1, 1},
    {7, 17, 6, 9, 4, 1},
    // room 8
    {8, -10, 9, 16, 1, 2, 0, Berechnet},
    {8, 1, 3, 28, 3, 2},
    {8, 6, 14, 23, 1, 2},
    {8, 20, 7, 30, 1, 2}, // follows on the day of the departure
    // room 9: as long as the window and longer
    {9, -40, 33, 24, 1, 4, 2, Bezahlt},
    {9, -6, 13, 10, 2, 4, 2, ImHaus},
    {9, 7, 7, 2, 1, 3, 1},
    {9, 15, 30, 21, 1, 2},
    // the waiting row
    {2, 0, 4, 13, 1, 2, 0, Warteschlange},
    {5, 1, 3, 27, 2, 3, 0, Warteschlange},
    {1, 3, 3, 17, 4, 1, 0, Warteschlange},
    {9, 3, 9, 25, 4, 2, 0, Warteschlange},
    {8, 12, 5, 19, 1, 2, 0, Warteschlange},
    {6, 18, 4, 11, 3, 2, 0, Warteschlange},
    {3, 18, 4, 1, 1, 2, 0, Warteschlange},
    {4, 29, 9, 6, 1, 1, 0, Warteschlange},
}};

} // namespace

std::span<const SampleStay> sampleStays() { return kStays; }

} // namespace store
