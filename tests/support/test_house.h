#pragma once

#include "platform/jet/sql_values.h"
#include "platform/jet/workspace.h"
#include "platform/services/clock.h"
#include "support/temp_folder.h"

#include <cstdint>
#include <optional>
#include <string>

namespace support {

using basic::Date;
using basic::Value;

/// Day `day` of month `month`, in the year of the test houses unless another is given.
[[nodiscard]] inline Date day(int day, int month, int year = 2026) { return Date::fromYmd(year, month, day); }

struct Room {
    int Zimmernummer;
    std::string NeueNummer = {}; ///< empty: the number itself
    std::string Bemerkungen = {};
    int AnzahlGästeDefault = 2;
    Value PreisDefault = 80.0;
    Value PreisHauptsaison = {};
    Value PreisZwischensaison = {};
    Value PreisNebensaison = {};
    Value PreisSondersaison = {};
    std::string katBlockBuchung = {};
};

struct Guest {
    std::string LastName = "Gast";
    std::string FirstName = {};
    std::string City = {};
    std::string PostalCode = {};
    std::string Address = {};
    std::string Country = {};
};

struct Stay {
    int Zimmernummer = 1;
    Date Von;
    Date Bis;
    std::int64_t GastID = 0; ///< 0: the house's standing guest
    std::string Kürzel = {}; ///< empty: "Gast" and a number
    int Belegungsart = 1;
    bool Gelöscht = false; ///< in the waiting row
    bool Checked = false;
    int AnzahlGäste = 2;
    int Anz_Kinder = 0;
    double PreisProNacht = 80;
    Value Preis = {}; ///< Null: nights times price
    int Abgerechnet = 0;
    Value IDAdressRechnung = {};
    Value Info = {};
};

struct Season {
    std::string Saisonbezeichnung;
    Date Start;
    Date Ende; ///< no longer part of it
};

/// A new installation in a folder of its own, opened through its link file. Its clock stands at 15.06.2026 10:30.
class TestHouse {
public:
    /// With samples: rooms, guests and stays of the sample house around the clock's day; else the house is empty but
    /// for its base lists and the occupancy types.
    enum class Content { Empty, Sample };
    explicit TestHouse(Content content = Content::Empty);

    [[nodiscard]] jet::Database& db() { return database_; }
    [[nodiscard]] const jet::Workspace& workspace() const { return workspace_; }
    [[nodiscard]] services::FixedClock& clock() { return clock_; }
    [[nodiscard]] Date today() const { return clock_.today(); }
    /// Path of one of its files.
    [[nodiscard]] std::string file(std::string_view name) const { return folder_.file(name); }
    /// A data file of the house for itself.
    [[nodiscard]] jet::Database open(std::string_view name) const;

    void room(const Room& room);
    /// Rooms 1 to `count` named "Zimmer 1" and so on, and the waiting row behind them; sets "Räumlichkeiten".
    void rooms(int count);
    std::int64_t guest(const Guest& guest);
    std::int64_t stay(const Stay& stay);
    void season(const Season& season);
    /// Sets F1, F2 ... of a record of tblParameter.
    void parameter(std::string_view satz, std::initializer_list<std::string_view> fields);

    /// First field of the first row; Null when there is none.
    [[nodiscard]] Value value(std::string_view sql);
    [[nodiscard]] std::int64_t count(std::string_view table);

private:
    TempFolder folder_{TempFolder::Place::Memory};
    services::FixedClock clock_;
    jet::Workspace workspace_;
    jet::Database database_;
    std::int64_t standingGuest_ = 0;
    int shortNames_ = 0;
};

} // namespace support
