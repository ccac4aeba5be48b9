#pragma once

#include <compare>
#include <functional>
#include <string>
#include <string_view>

namespace jet {

/// A name of a table, field or alias: keeps its spelling, compares without regard to case (umlauts too).
class SqlName {
public:
    SqlName() = default;
    explicit SqlName(std::string_view text);

    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] const std::string& folded() const { return folded_; }
    [[nodiscard]] bool empty() const { return text_.empty(); }

    bool operator==(const SqlName& other) const { return folded_ == other.folded_; }
    auto operator<=>(const SqlName& other) const { return folded_ <=> other.folded_; }

private:
    std::string text_;
    std::string folded_;
};

/// Quoted for the storage's SQL: "na""me".
[[nodiscard]] std::string quoted(std::string_view name);

} // namespace jet

template <>
struct std::hash<jet::SqlName> {
    std::size_t operator()(const jet::SqlName& name) const noexcept { return std::hash<std::string>()(name.folded()); }
};
