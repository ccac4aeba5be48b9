#pragma once

#include "platform/jet/database.h"
#include "store/sample_stays.h"

#include <cstdint>
#include <span>

namespace store {

/// A stay with the numbers that it got in tblBelegung.
struct SampleStayOnFile {
    SampleStay stay;
    std::int64_t ID;
    std::int64_t GastID;
    double Preis; ///< of the whole stay, in euros
};

/// VAT rates (7 % is the standard, 19 %, none), the articles, the posts of the stays, an invoice for each stay that has
/// left, and the payments. Every amount is a whole number of cents. Runs in the transaction of its caller; none of the
/// tables may hold rows.
void fillSampleBilling(jet::Database& database, std::span<const SampleStayOnFile> stays, basic::Date today);

/// What the guest of this room eats by the house's offer: breakfast everywhere but in the apartment, dinner too in the
/// wedding suite.
[[nodiscard]] bool hasBreakfast(const SampleStay& stay);
[[nodiscard]] bool hasDinner(const SampleStay& stay);
/// How a guest of the sample house pays: a word of tbZahlart.
[[nodiscard]] std::string_view paymentKind(const SampleStay& stay);

} // namespace store
