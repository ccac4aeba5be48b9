#pragma once

#include "platform/basic/date.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace basic {

/// What a field, a variable of the old kind or an expression can hold. Null is a value of its own: it is not the empty
/// text. True counts as -1 wherever a number is wanted.
class Value {
public:
    using Storage = std::variant<std::monostate, bool, std::int64_t, double, Date, std::string>;
    enum class Kind { Null, Boolean, Integer, Double, Date, Text };

    Value() = default;
    Value(std::nullptr_t) {}
    Value(std::same_as<bool> auto value) : storage_(value) {}
    template <std::integral T>
    requires(!std::same_as<T, bool>) Value(T value) : storage_(static_cast<std::int64_t>(value)) {}
    Value(double value) : storage_(value) {}
    Value(Date value) : storage_(value) {}
    Value(std::string value) : storage_(std::move(value)) {}
    Value(std::string_view value) : storage_(std::string(value)) {}
    Value(const char* value) : storage_(std::string(value)) {}
    template <typename T>
    Value(const std::optional<T>& value) {
        if (value) *this = Value(*value);
    }

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(storage_.index()); }
    [[nodiscard]] bool isNull() const { return storage_.index() == 0; }
    [[nodiscard]] bool isText() const { return kind() == Kind::Text; }
    [[nodiscard]] bool isDate() const { return kind() == Kind::Date; }
    /// Boolean, Integer or Double.
    [[nodiscard]] bool isNumber() const;
    [[nodiscard]] const Storage& storage() const { return storage_; }

    /// The text itself; undefined for other kinds.
    [[nodiscard]] const std::string& text() const { return std::get<std::string>(storage_); }

    // Reading with a stand-in for Null; other kinds are converted by the rules of convert.h (13 where that fails).
    [[nodiscard]] std::string textOr(std::string_view ifNull = {}) const;
    [[nodiscard]] std::int64_t longOr(std::int64_t ifNull = 0) const;
    [[nodiscard]] double doubleOr(double ifNull = 0) const;
    [[nodiscard]] bool boolOr(bool ifNull = false) const;
    [[nodiscard]] Date dateOr(Date ifNull = Date()) const;
    /// Null gives no date.
    [[nodiscard]] std::optional<Date> date() const;

    /// Same kind and same content, text byte by byte. Comparison by the rules of the dialect is compareValues().
    bool operator==(const Value&) const = default;

private:
    Storage storage_;
};

} // namespace basic
