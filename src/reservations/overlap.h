#pragma once

#include "platform/jet/database.h"
#include "start/windows.h"

#include <string>
#include <vector>

namespace reservations {

// May a stay have its room? A stay occupies the nights from `Von` up to but not including `Bis`; a departure day is
// free for the next arrival. Stays of the waiting row block nothing, offers do. The three tests differ on purpose. All
// raise the engine's errors.

/// The room and the days that a stay wants.
struct Wunsch {
    int Zimmer = 0; ///< room number
    basic::Date Von;
    basic::Date Bis;
    int ID = 0; ///< the stay itself, which is not in its own way; 0: not stored yet
};

/// Before the save: the stays in the way, in the order of their IDs. One with the very same days is not seen: the test
/// after the write finds it.
[[nodiscard]] std::vector<start::Kollision> Kollisionen(jet::Database& db, const Wunsch& wunsch);
/// After the write: is nobody else in the room? Sees the stay with the very same days too.
[[nodiscard]] bool ZimmerFrei(jet::Database& db, const Wunsch& wunsch);
/// While typing: should the form warn? Does not know the stay itself by its ID in the statement: a single hit that is
/// the stay itself gives no warning, two hits do. Without a room
/// there is nothing to test.
[[nodiscard]] bool Überschneidungswarnung(jet::Database& db, const Wunsch& wunsch);

struct FreiesZimmer {
    int Zimmernummer = 0;
    std::string NeueNummer;

    bool operator==(const FreiesZimmer&) const = default;
};

/// The rooms that are free from `von` to `bis`, in the plan's order, without the waiting row; at most 100. Unlike the
/// tests a stay that begins on `von` or ends on `bis` blocks, too.
[[nodiscard]] std::vector<FreiesZimmer> FreieZimmer(jet::Database& db, basic::Date von, basic::Date bis);

// The statements behind them, for who looks at their plan: each must find its rows by the room, or without the table.

[[nodiscard]] std::string AbfrageVorDemSpeichern(const Wunsch& wunsch);
[[nodiscard]] std::string AbfrageNachDemSpeichern(const Wunsch& wunsch);
[[nodiscard]] std::string AbfrageBeimTippen(const Wunsch& wunsch);
[[nodiscard]] std::string AbfrageFreieZimmer(basic::Date von, basic::Date bis);

} // namespace reservations
