#include "platform/jet/literals.h"

#include "platform/basic/text.h"
#include "platform/jet/syntax_error.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>

namespace jet {

namespace {

using Kind = ast::Literal::Kind;

/// What a byte can begin outside of literals and quoted names.
enum class Start : unsigned char { Nothing, Quote, Hash, Bracket, Backquote, Digit, Point, Ampersand, Control };

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool isHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
constexpr std::size_t byteOf(char c) { return static_cast<unsigned char>(c); }

constexpr std::array<bool, 256> nameBytes = [] {
    std::array<bool, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto c = static_cast<char>(i);
        table[i] = i >= 0x80 || isDigit(c) || isLetter(c) || c == '_';
    }
    return table;
}();

constexpr std::array<Start, 256> starts = [] {
    std::array<Start, 256> table{};
    for (std::size_t i = 0; i < 0x20; ++i)
        table[i] = Start::Control;
    for (const char blank : {'\t', '\r', '\n'})
        table[byteOf(blank)] = Start::Nothing;
    for (char c = '0'; c <= '9'; ++c)
        table[byteOf(c)] = Start::Digit;
    table[0x7F] = Start::Control;
    table[byteOf('\'')] = table[byteOf('"')] = Start::Quote;
    table[byteOf('#')] = Start::Hash;
    table[byteOf('[')] = Start::Bracket;
    table[byteOf('`')] = Start::Backquote;
    table[byteOf('.')] = Start::Point;
    table[byteOf('&')] = Start::Ampersand;
    return table;
}();

enum TextFlags : unsigned { Wildcard = 1, BeyondAscii = 2 };

constexpr std::array<unsigned char, 256> textFlags = [] {
    std::array<unsigned char, 256> table{};
    for (const char c : {'*', '%', '?', '#', '['})
        table[byteOf(c)] = Wildcard;
    for (std::size_t i = 0x80; i < table.size(); ++i)
        table[i] = BeyondAscii;
    return table;
}();

[[noreturn]] void fail(std::string_view sql, std::size_t offset, std::string_view message) {
    raiseAt(ErrorNumber::Syntax, sql, offset, message);
}

/// Most of a statement begins nothing; the time of a known statement is spent here.
std::size_t skipPlain(std::string_view sql, std::size_t at) {
    const char* const end = sql.data() + sql.size();
    const char* next = sql.data() + at;
    while (next != end && starts[byteOf(*next)] == Start::Nothing)
        ++next;
    return static_cast<std::size_t>(next - sql.data());
}

/// Offset of the quote that closes a name.
std::size_t closingQuote(std::string_view sql, std::size_t from, char quote) {
    const std::size_t end = sql.find(quote, from + 1);
    if (end == std::string_view::npos) fail(sql, from, "Der Name wird nicht geschlossen");
    return end;
}

bool followsName(std::string_view sql, std::size_t at) { return at > 0 && isNameByte(sql[at - 1]); }

bool beginsFraction(std::string_view sql, std::size_t at) {
    if (at + 1 >= sql.size() || !isDigit(sql[at + 1])) return false;
    return !followsName(sql, at) && (at == 0 || (sql[at - 1] != ']' && sql[at - 1] != '`'));
}

/// Offset behind the digits of &H1F, or 0: `a &Halle` joins two fields.
std::size_t hexEnd(std::string_view sql, std::size_t from) {
    if (from + 2 >= sql.size() || (sql[from + 1] != 'H' && sql[from + 1] != 'h')) return 0;
    std::size_t end = from + 2;
    while (end < sql.size() && isHexDigit(sql[end]))
        ++end;
    const bool nameGoesOn = end < sql.size() && isNameByte(sql[end]);
    return end == from + 2 || nameGoesOn ? 0 : end;
}

std::size_t skipDigits(std::string_view sql, std::size_t at) {
    while (at < sql.size() && isDigit(sql[at]))
        ++at;
    return at;
}

std::size_t skipExponent(std::string_view sql, std::size_t at) {
    if (at >= sql.size() || (sql[at] != 'e' && sql[at] != 'E')) return at;
    std::size_t digits = at + 1;
    if (digits < sql.size() && (sql[digits] == '+' || sql[digits] == '-')) ++digits;
    const std::size_t end = skipDigits(sql, digits);
    return end == digits ? at : end;
}

void setNumber(LiteralValue& literal, double number) {
    literal.kind = Kind::Double;
    literal.value = number;
}

void setWhole(LiteralValue& literal, std::int64_t number) {
    if (number > std::numeric_limits<std::int32_t>::max()) return setNumber(literal, static_cast<double>(number));
    literal.kind = Kind::Integer;
    literal.value = number;
}

std::size_t readHex(std::string_view sql, std::size_t from, LiteralValue& literal) {
    const std::size_t end = hexEnd(sql, from);
    std::uint32_t number = 0;
    const auto result = std::from_chars(sql.data() + from + 2, sql.data() + end, number, 16);
    if (result.ec != std::errc()) fail(sql, from, "Die Zahl ist zu groß");
    setWhole(literal, number);
    return end;
}

std::size_t readNumber(std::string_view sql, std::size_t from, LiteralValue& literal) {
    const std::size_t wholeEnd = skipDigits(sql, from);
    const bool point = wholeEnd < sql.size() && sql[wholeEnd] == '.';
    const std::size_t end = skipExponent(sql, point ? skipDigits(sql, wholeEnd + 1) : wholeEnd);
    constexpr std::size_t digitsOfAnyInt64 = 18;
    if (end == wholeEnd && end - from <= digitsOfAnyInt64) {
        std::int64_t number = 0;
        std::from_chars(sql.data() + from, sql.data() + end, number);
        setWhole(literal, number);
        return end;
    }
    double number = 0;
    const auto result = std::from_chars(sql.data() + from, sql.data() + end, number);
    if (result.ec != std::errc()) fail(sql, from, "Die Zahl ist zu groß oder zu klein");
    setNumber(literal, number);
    return end;
}

/// Offset of the quote that closes a text; a doubled quote does not.
std::size_t textEnd(std::string_view sql, std::size_t from, bool& doubled) {
    const char quote = sql[from];
    for (std::size_t at = from + 1;; at += 2) {
        at = sql.find(quote, at);
        if (at == std::string_view::npos) fail(sql, from, "Der Text wird nicht geschlossen");
        if (at + 1 >= sql.size() || sql[at + 1] != quote) return at;
        doubled = true;
    }
}

std::string withoutDoubling(std::string_view content, char quote) {
    std::string text;
    text.reserve(content.size());
    for (std::size_t i = 0; i < content.size(); ++i) {
        text += content[i];
        if (content[i] == quote) ++i;
    }
    return text;
}

std::size_t readText(std::string_view sql, std::size_t from, LiteralValue& literal) {
    bool doubled = false;
    const std::size_t end = textEnd(sql, from, doubled);
    const std::string_view content = sql.substr(from + 1, end - from - 1);
    unsigned flags = 0;
    for (const char c : content)
        flags |= textFlags[byteOf(c)];
    if ((flags & BeyondAscii) != 0 && !basic::isValidText(content)) fail(sql, from, "Der Text ist kein gültiges UTF-8");
    literal.kind = (flags & Wildcard) != 0 ? Kind::WildcardText : Kind::Text;
    literal.value = doubled ? withoutDoubling(content, sql[from]) : std::string(content);
    return end + 1;
}

/// Reads what stands between two # from left to right.
struct DateReader {
    std::string_view rest;

    void skipBlanks() {
        while (!rest.empty() && rest.front() == ' ')
            rest.remove_prefix(1);
    }

    bool accept(char c) {
        if (rest.empty() || rest.front() != c) return false;
        rest.remove_prefix(1);
        return true;
    }

    /// -1 where no number of at most `digits` digits stands.
    int number(std::size_t digits) {
        const std::size_t length = skipDigits(rest, 0);
        int value = -1;
        if (length == 0 || length > digits) return value;
        std::from_chars(rest.data(), rest.data() + length, value);
        rest.remove_prefix(length);
        return value;
    }

    /// Two digits mean 1930 to 2029.
    int year() {
        const std::size_t length = skipDigits(rest, 0);
        const int value = number(4);
        if (value < 0 || length > 2) return value;
        return value < 30 ? 2000 + value : 1900 + value;
    }
};

struct DateFields {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

bool readDay(DateReader& reader, DateFields& fields) {
    const bool yearFirst = skipDigits(reader.rest, 0) == 4;
    const int first = reader.number(4);
    const char separator = reader.rest.substr(0, 1) == "/" ? '/' : '-';
    if (!reader.accept(separator)) return false;
    const int second = reader.number(2);
    if (!reader.accept(separator)) return false;
    if (yearFirst)
        fields = {first, second, reader.number(2)};
    else
        fields = {reader.year(), first, second};
    return true;
}

bool readTime(DateReader& reader, DateFields& fields) {
    fields.hour = reader.number(2);
    if (!reader.accept(':')) return false;
    fields.minute = reader.number(2);
    if (reader.accept(':')) fields.second = reader.number(2);
    return true;
}

bool isPossible(const DateFields& f) {
    if (f.year < 100 || f.month < 1 || f.month > 12 || f.day < 1 || f.day > 31) return false;
    const std::chrono::year_month_day day(std::chrono::year(f.year), std::chrono::month(static_cast<unsigned>(f.month)),
                                          std::chrono::day(static_cast<unsigned>(f.day)));
    const bool minuteFits = f.minute >= 0 && f.minute < 60 && f.second >= 0 && f.second < 60;
    return day.ok() && f.hour >= 0 && f.hour < 24 && minuteFits;
}

bool isTimeOnly(std::string_view content) {
    const std::size_t colon = content.find(':');
    return colon != std::string_view::npos && content.find_first_of("-/") == std::string_view::npos;
}

std::optional<Date> dateOf(std::string_view content) {
    DateReader reader{content};
    DateFields fields;
    reader.skipBlanks();
    const bool timeOnly = isTimeOnly(content);
    if (!timeOnly && !readDay(reader, fields)) return std::nullopt;
    reader.skipBlanks();
    if (!reader.rest.empty() && !readTime(reader, fields)) return std::nullopt;
    reader.skipBlanks();
    if (!reader.rest.empty() || !isPossible(fields)) return std::nullopt;
    return Date::fromYmdHms(fields.year, fields.month, fields.day, fields.hour, fields.minute, fields.second);
}

std::size_t readDate(std::string_view sql, std::size_t from, LiteralValue& literal) {
    const std::size_t end = sql.find('#', from + 1);
    if (end == std::string_view::npos) fail(sql, from, "Das Datum wird nicht geschlossen");
    const auto date = dateOf(sql.substr(from + 1, end - from - 1));
    if (!date) fail(sql, from, "#Monat-Tag-Jahr# wurde erwartet, und dies ist kein Datum");
    literal.kind = Kind::Date;
    literal.value = *date;
    return end + 1;
}

} // namespace

bool isNameByte(char c) { return nameBytes[byteOf(c)]; }

std::size_t findLiteral(std::string_view sql, std::size_t from) {
    for (std::size_t at = skipPlain(sql, from); at < sql.size(); at = skipPlain(sql, at + 1)) {
        switch (starts[byteOf(sql[at])]) {
        case Start::Nothing:
            break;
        case Start::Quote:
        case Start::Hash:
            return at;
        case Start::Bracket:
            at = closingQuote(sql, at, ']');
            break;
        case Start::Backquote:
            at = closingQuote(sql, at, '`');
            break;
        case Start::Digit:
            if (!followsName(sql, at)) return at;
            break;
        case Start::Point:
            if (beginsFraction(sql, at)) return at;
            break;
        case Start::Ampersand:
            if (hexEnd(sql, at) != 0) return at;
            break;
        case Start::Control:
            fail(sql, at, "Steuerzeichen sind hier nicht erlaubt");
        }
    }
    return sql.size();
}

std::size_t readLiteral(std::string_view sql, std::size_t from, LiteralValue& literal) {
    switch (starts[byteOf(sql[from])]) {
    case Start::Quote:
        return readText(sql, from, literal);
    case Start::Hash:
        return readDate(sql, from, literal);
    case Start::Ampersand:
        return readHex(sql, from, literal);
    default:
        return readNumber(sql, from, literal);
    }
}

} // namespace jet
