#pragma once

#include "masterdata/holidays.h"
#include "platform/basic/date.h"
#include "platform/jet/database.h"

#include <string>
#include <vector>

namespace plan {

/// One reservation as the plan draws it: what subMarkieren is given, in its order.
struct Markierung {
    basic::Date Von = {};
    basic::Date Bis = {};
    int Zimmernummer = 0;
    int BelegungsID = 0;
    bool Gelöscht = false; ///< stands in the waiting row
    bool Checked = false;
    int Diff = 0; ///< the room's normal occupancy less the guests
    std::string Firstname = {};
    std::string Lastname = {};
    std::string NeueNummer = {};
    int GastID = 0;
    int ID = 0;
    int IDAdressRechnung = 0;
    int AnzahlGäste = 0;
    std::string Kürzel = {};
    bool Angebot = false; ///< the type is an offer
};

/// Where the plan's rows come from.
class Planquelle {
public:
    virtual ~Planquelle() = default;
    /// All with Von <= `fensterende` and Bis >= `fensterstart`, in the order in which they are drawn. Good until the
    /// next call. May raise jet::Error.
    [[nodiscard]] virtual const std::vector<Markierung>& Reservierungen(basic::Date fensterstart,
                                                                        basic::Date fensterende) = 0;
    /// From `start` to `ende`, both included.
    [[nodiscard]] virtual std::vector<masterdata::Feiertag> Feiertage(basic::Date start, basic::Date ende) = 0;
};

/// The data files of the house.
class PlanAusDatenbank final : public Planquelle {
public:
    explicit PlanAusDatenbank(jet::Database& db) : db_(&db) {}
    [[nodiscard]] const std::vector<Markierung>& Reservierungen(basic::Date fensterstart,
                                                                basic::Date fensterende) override;
    [[nodiscard]] std::vector<masterdata::Feiertag> Feiertage(basic::Date start, basic::Date ende) override;

private:
    jet::Database* db_;
    std::vector<Markierung> rows_; ///< kept from load to load for its allocations
};

/// The statement behind the plan. It has no ORDER BY: the engine gives the rows in key order, and the last one wins a
/// shared cell.
[[nodiscard]] std::string Planabfrage(basic::Date fensterstart, basic::Date fensterende);

} // namespace plan
