#pragma once

#include "masterdata/rooms.h"
#include "plan/plan_source.h"

namespace plan {

/// Invented stays for pictures and measurements, kept in memory: the same numbers give the same stays.
class ErfundeneBelegung final : public Planquelle {
public:
    /// `stays` in rooms 1 to `rooms`, spread over the `days` from `start` on and the week before it. Stays of one room
    /// do not overlap while there is place for all.
    ErfundeneBelegung(int rooms, int days, int stays, basic::Date start);

    [[nodiscard]] const std::vector<Markierung>& Reservierungen(basic::Date fensterstart,
                                                                basic::Date fensterende) override;
    [[nodiscard]] std::vector<masterdata::Feiertag> Feiertage(basic::Date start, basic::Date ende) override;

private:
    std::vector<Markierung> all_;
    std::vector<Markierung> rows_;
};

/// Rooms 101, 102, ... on floors of ten, and the waiting row.
[[nodiscard]] std::vector<masterdata::tplZimmer> ErfundeneZimmer(int rooms);

} // namespace plan
