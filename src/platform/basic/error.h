#pragma once

#include <stdexcept>
#include <string>

namespace basic {

/// A failed operation of the run-time library or of the database engine, with the number that both have always used
/// (3022 a key given twice, 13 wrong type, ...) and a German text fit to be shown. The only exception that business
/// code catches. The numbers in use stand in error_numbers.h.
class Error : public std::runtime_error {
public:
    Error(int number, const std::string& text) : std::runtime_error(text), number_(number) {}

    [[nodiscard]] int number() const noexcept { return number_; }
    /// UTF-8, one sentence or two, without the number.
    [[nodiscard]] std::string text() const { return what(); }

private:
    int number_;
};

} // namespace basic
