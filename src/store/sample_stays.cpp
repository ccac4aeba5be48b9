#include "store/sample_stays.h"

#include <algorithm>
#include <span>

namespace store {

namespace {

using basic::Date;

enum class Besonders { Nichts, Gehalten, Unbezahlt, Angezahlt, Block, Wartet };
using enum Besonders;

/// A stay by days from a first day, which is today or the Monday of this week.
struct Entry {
    int Zimmernummer;
    int Tag;
    int Nächte;
    int Gast;
    int Belegungsart;
    int Gäste;
    int Kinder = 0;
    Besonders Art = Nichts;
};

// Someone leaves and someone arrives on every day on which the sample is looked at.
constexpr Entry kFromToday[] = {
    // the first row arrives today: what moves sample data to another day goes by it
    {3, 0, 3, 0, 1, 2},
    {3, -22, 6, 35, 1, 2},
    {3, -6, 6, 28, 1, 2}, // leaves today
    {3, 4, 6, 19, 3, 2},
    {3, 11, 7, 40, 4, 2},
    {3, 19, 4, 30, 1, 2},
    {3, 26, 10, 15, 2, 2},
    // single room
    {7, -11, 4, 31, 1, 1},
    {7, -4, 4, 32, 3, 1}, // leaves today
    {7, 0, 2, 27, 1, 1},
    {7, 2, 5, 3, 2, 1},
    {7, 8, 3, 36, 4, 1},
    {7, 12, 6, 9, 1, 1},
    {7, 20, 8, 33, 1, 1},
    // the waiting row
    {2, 1, 3, 37, 1, 2, 0, Wartet},
};

// Offers lie behind this week, whatever day of it is today: those past their day would not stay offers.
constexpr Entry kFromMonday[] = {
    // single room: Monday to Friday, and a weekend between
    {1, -7, 4, 17, 1, 1, 0, Unbezahlt},
    {1, -3, 3, 13, 1, 1},
    {1, 0, 4, 1, 1, 1},
    {1, 4, 3, 41, 2, 1},
    {1, 7, 5, 6, 1, 1},
    {1, 12, 2, 29, 3, 1},
    {1, 14, 5, 1, 1, 1},
    {1, 21, 4, 26, 1, 1},
    {1, 27, 13, 14, 2, 1},
    // double room
    {2, -9, 5, 39, 2, 2},
    {2, -4, 12, 15, 2, 2, 0, Gehalten}, // over the left end of a window, whatever day is today
    {2, 9, 5, 34, 1, 1},
    {2, 14, 4, 30, 4, 2},
    {2, 18, 8, 23, 1, 2},
    {2, 28, 14, 8, 1, 2}, // over the right end
    // single room
    {4, -7, 5, 12, 3, 1},
    {4, -2, 4, 17, 1, 1},
    {4, 2, 3, 31, 2, 1},
    {4, 5, 5, 21, 1, 1},
    {4, 11, 3, 33, 2, 1, 0, Block},
    {4, 15, 8, 25, 1, 1},
    {4, 25, 9, 36, 3, 1},
    // three beds: families
    {5, -9, 7, 24, 1, 3, 0, Unbezahlt},
    {5, -2, 7, 2, 1, 3, 1},
    {5, 5, 5, 10, 2, 3},
    {5, 11, 3, 33, 2, 3, 0, Block},
    {5, 15, 3, 16, 4, 3},
    {5, 19, 7, 38, 3, 2, 1},
    {5, 29, 14, 24, 1, 3, 2}, // over the right end
    // double room with bath
    {6, -24, 3, 20, 1, 2},
    {6, -6, 8, 5, 2, 2},
    {6, 3, 4, 18, 1, 2},
    {6, 7, 4, 5, 2, 1},
    {6, 11, 3, 33, 2, 2, 0, Block},
    {6, 14, 5, 22, 4, 2},
    {6, 19, 9, 29, 3, 2},
    {6, 31, 4, 0, 1, 2},
    // for weddings and weekends
    {8, -45, 2, 28, 1, 2},
    {8, -3, 4, 16, 1, 2},
    {8, 3, 4, 11, 3, 2},
    {8, 9, 5, 40, 1, 2},
    {8, 17, 4, 7, 2, 2},
    {8, 24, 4, 20, 4, 2},
    {8, 32, 7, 19, 1, 2},
    // apartment: whole weeks
    {9, -44, 14, 38, 1, 4, 2},
    {9, -9, 14, 10, 2, 4, 2},
    {9, 5, 7, 2, 1, 3, 1},
    {9, 12, 9, 21, 4, 4},
    {9, 26, 21, 4, 1, 4, 1, Angezahlt}, // over the right end
    {9, 54, 14, 24, 1, 4, 2},
    // the waiting row
    {5, 7, 3, 27, 2, 3, 0, Wartet},
    {6, 11, 3, 35, 4, 2, 0, Wartet},
    {9, 18, 7, 38, 1, 4, 2, Wartet},
    {3, 26, 4, 3, 3, 2, 0, Wartet},
    {4, 31, 9, 9, 1, 1, 0, Wartet},
};

SampleState stateOn(Date today, const SampleStay& stay, Besonders art) {
    if (art == Wartet) return SampleState::Warteschlange;
    if (stay.Bis < today) return art == Unbezahlt ? SampleState::Berechnet : SampleState::Bezahlt;
    if (stay.Von < today) return art == Gehalten ? SampleState::Gehalten : SampleState::ImHaus;
    return SampleState::Offen;
}

void append(std::vector<SampleStay>& stays, std::span<const Entry> entries, Date first, Date today) {
    for (const Entry& entry : entries) {
        SampleStay stay{.Zimmernummer = entry.Zimmernummer,
                        .Von = first + entry.Tag,
                        .Bis = first + entry.Tag + entry.Nächte,
                        .Gast = entry.Gast,
                        .Belegungsart = entry.Belegungsart,
                        .Gäste = entry.Gäste,
                        .Kinder = entry.Kinder,
                        .Zustand = SampleState::Offen,
                        .Block = entry.Art == Block,
                        .Angezahlt = entry.Art == Angezahlt};
        stay.Zustand = stateOn(today, stay, entry.Art);
        stays.push_back(stay);
    }
}

/// The Monday of the week in which the day lies.
Date mondayOf(Date day) {
    const int fromSunday = basic::partsOf(day).weekday - 1;
    return day - (fromSunday + 6) % 7;
}

} // namespace

std::vector<SampleStay> sampleStays(Date today) {
    std::vector<SampleStay> stays;
    append(stays, kFromToday, today, today);
    append(stays, kFromMonday, mondayOf(today), today);
    std::ranges::stable_sort(stays.begin() + 1, stays.end(), {}, &SampleStay::Von);
    return stays;
}

} // namespace store
