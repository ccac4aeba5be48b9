#pragma once

#include <span>
#include <string_view>

namespace store {

/// An invented guest of the sample house.
struct SampleGuest {
    std::string_view Anrede; ///< a word of tbAnreden
    std::string_view FirstName;
    std::string_view LastName;
    std::string_view Address;
    std::string_view PostalCode;
    std::string_view City;
    std::string_view Phone;
    std::string_view Country = "Deutschland";
};

[[nodiscard]] std::span<const SampleGuest> sampleGuests();

} // namespace store
