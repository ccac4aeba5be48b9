#include "platform/jet/functions.h"

#include "platform/basic/convert.h"
#include "platform/basic/dates.h"
#include "platform/basic/format.h"
#include "platform/basic/numbers.h"
#include "platform/basic/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

namespace jet {

namespace {

using Arguments = std::span<const Value>;
using Result = Function::Result;

// Most functions give Null for a Null argument; those that do not are written out below.

int intArgument(Arguments a, std::size_t index, int absent) {
    return index < a.size() && !a[index].isNull() ? static_cast<int>(basic::CLng(a[index])) : absent;
}

std::string textOf(const Value& value) { return value.isText() ? value.text() : basic::CStr(value); }

bool anyNull(Arguments a) {
    return std::any_of(a.begin(), a.end(), [](const Value& v) { return v.isNull(); });
}

template <Value (*evaluate)(Arguments, Date)>
Value nullSafe(Arguments a, Date today) {
    return anyNull(a) ? Value() : evaluate(a, today);
}

template <std::string (*convert)(std::string_view)>
Value onText(Arguments a, Date) {
    return a[0].isNull() ? Value() : Value(convert(textOf(a[0])));
}

template <int basic::DateParts::*part>
Value datePart(Arguments a, Date today) {
    return a[0].isNull() ? Value() : Value(basic::partsOf(basic::CDate(a[0], today)).*part);
}

/// Functions of one number that keep its type where it is whole.
template <double (*round)(double)>
Value rounded(Arguments a, Date) {
    if (a[0].isNull() || a[0].kind() == Value::Kind::Integer) return a[0];
    if (a[0].isDate()) return Date(round(a[0].dateOr().serial()));
    return round(basic::CDbl(a[0]));
}

Value dateDiff(Arguments a, Date today) {
    return basic::DateDiff(textOf(a[0]), basic::CDate(a[1], today), basic::CDate(a[2], today), intArgument(a, 3, 1),
                           intArgument(a, 4, 1));
}

Value dateAdd(Arguments a, Date today) {
    return basic::DateAdd(textOf(a[0]), basic::CDbl(a[1]), basic::CDate(a[2], today));
}

Value datePartOf(Arguments a, Date today) {
    return basic::DatePart(textOf(a[0]), basic::CDate(a[1], today), intArgument(a, 2, 1), intArgument(a, 3, 1));
}

Value weekday(Arguments a, Date today) { return basic::Weekday(basic::CDate(a[0], today), intArgument(a, 1, 1)); }

Value weekdayName(Arguments a, Date) {
    return basic::WeekdayName(intArgument(a, 0, 1), a.size() > 1 && a[1].boolOr(), intArgument(a, 2, 1));
}

Value monthName(Arguments a, Date) { return basic::MonthName(intArgument(a, 0, 1), a.size() > 1 && a[1].boolOr()); }

Value dateSerial(Arguments a, Date) {
    return basic::DateSerial(intArgument(a, 0, 0), intArgument(a, 1, 0), intArgument(a, 2, 0));
}

Value timeSerial(Arguments a, Date) {
    return basic::TimeSerial(intArgument(a, 0, 0), intArgument(a, 1, 0), intArgument(a, 2, 0));
}

Value dateValue(Arguments a, Date today) { return basic::CDate(a[0], today).day(); }

Value timeValue(Arguments a, Date today) { return Date(basic::CDate(a[0], today).secondOfDay() / 86400.0); }

Value format(Arguments a, Date) { return basic::Format(a[0], a.size() > 1 ? a[1].textOr() : std::string()); }

Value left(Arguments a, Date) { return basic::Left(textOf(a[0]), basic::CLng(a[1])); }
Value right(Arguments a, Date) { return basic::Right(textOf(a[0]), basic::CLng(a[1])); }

Value mid(Arguments a, Date) {
    return basic::Mid(textOf(a[0]), basic::CLng(a[1]),
                      a.size() > 2 ? std::optional<std::int64_t>(basic::CLng(a[2])) : std::nullopt);
}

/// The first argument may be the start, and it is told by there being three; a fourth is the kind of comparison, which
/// makes no difference here: case is always ignored.
Value inStr(Arguments a, Date) {
    if (a.size() == 2) return basic::InStr(1, textOf(a[0]), textOf(a[1]));
    return basic::InStr(basic::CLng(a[0]), textOf(a[1]), textOf(a[2]));
}

Value inStrRev(Arguments a, Date) { return basic::InStrRev(textOf(a[0]), textOf(a[1])); }
Value replace(Arguments a, Date) { return basic::Replace(textOf(a[0]), textOf(a[1]), textOf(a[2])); }
Value length(Arguments a, Date) { return basic::Len(textOf(a[0])); }
Value ascOf(Arguments a, Date) { return basic::Asc(textOf(a[0])); }
Value chr(Arguments a, Date) { return basic::Chr(basic::CLng(a[0])); }
Value space(Arguments a, Date) { return basic::Space(basic::CLng(a[0])); }

Value string(Arguments a, Date) {
    const std::string character = a[1].isText() ? a[1].text() : basic::Chr(basic::CLng(a[1]) % 256);
    return basic::String(basic::CLng(a[0]), character);
}

Value strComp(Arguments a, Date) {
    const int order = basic::compareText(textOf(a[0]), textOf(a[1]));
    return (order > 0) - (order < 0);
}

Value absolute(Arguments a, Date) {
    if (a[0].kind() == Value::Kind::Integer) return a[0].longOr() < 0 ? -a[0].longOr() : a[0].longOr();
    return std::fabs(basic::CDbl(a[0]));
}

Value sign(Arguments a, Date) { return basic::Sgn(basic::CDbl(a[0])); }
Value roundOf(Arguments a, Date) { return basic::Round(basic::CDbl(a[0]), intArgument(a, 1, 0)); }

template <double (*function)(double)>
Value real(Arguments a, Date) {
    const double result = function(basic::CDbl(a[0]));
    if (!std::isfinite(result)) raise(ErrorNumber::InvalidCall);
    return result;
}

Value nz(Arguments a, Date) {
    if (!a[0].isNull()) return a[0];
    return a.size() > 1 ? a[1] : Value("");
}

constexpr ExprType Boolean = ExprType::Boolean;
constexpr ExprType Long = ExprType::Long;
constexpr ExprType Double = ExprType::Double;
constexpr ExprType DateType = ExprType::Date;
constexpr ExprType Text = ExprType::Text;

// In the order of their folded names.
constexpr auto table = std::to_array<Function>({
    {"Abs", 1, 1, Result::SameAsFirst, Double, nullSafe<absolute>},
    {"Asc", 1, 1, Result::Fixed, Long, nullSafe<ascOf>},
    {"CBool", 1, 1, Result::Fixed, Boolean, [](Arguments a, Date) -> Value { return basic::CBool(a[0]); }},
    {"CCur", 1, 1, Result::Fixed, Double,
     [](Arguments a, Date) -> Value { return basic::Round(basic::CDbl(a[0]), 4); }},
    {"CDate", 1, 1, Result::Fixed, DateType,
     [](Arguments a, Date today) -> Value { return basic::CDate(a[0], today); }},
    {"CDbl", 1, 1, Result::Fixed, Double, [](Arguments a, Date) -> Value { return basic::CDbl(a[0]); }},
    {"Chr", 1, 1, Result::Fixed, Text, nullSafe<chr>},
    {"CInt", 1, 1, Result::Fixed, Long, [](Arguments a, Date) -> Value { return basic::CInt(a[0]); }},
    {"CLng", 1, 1, Result::Fixed, Long, [](Arguments a, Date) -> Value { return basic::CLng(a[0]); }},
    {"CSng", 1, 1, Result::Fixed, Double,
     [](Arguments a, Date) -> Value { return static_cast<double>(static_cast<float>(basic::CDbl(a[0]))); }},
    {"CStr", 1, 1, Result::Fixed, Text, [](Arguments a, Date) -> Value { return basic::CStr(a[0]); }},
    {"CVDate", 1, 1, Result::Fixed, DateType,
     [](Arguments a, Date today) -> Value { return basic::CVDate(a[0], today); }},
    {"DateAdd", 3, 3, Result::Fixed, DateType, nullSafe<dateAdd>},
    {"DateDiff", 3, 5, Result::Fixed, Long, nullSafe<dateDiff>},
    {"DatePart", 2, 4, Result::Fixed, Long, nullSafe<datePartOf>},
    {"DateSerial", 3, 3, Result::Fixed, DateType, nullSafe<dateSerial>},
    {"DateValue", 1, 1, Result::Fixed, DateType, nullSafe<dateValue>},
    {"Day", 1, 1, Result::Fixed, Long, datePart<&basic::DateParts::day>},
    {"Exp", 1, 1, Result::Fixed, Double, nullSafe<real<std::exp>>},
    {"Fix", 1, 1, Result::SameAsFirst, Double, rounded<basic::Fix>},
    {"Format", 1, 4, Result::Fixed, Text, format},
    {"Hour", 1, 1, Result::Fixed, Long, datePart<&basic::DateParts::hour>},
    {"InStr", 2, 4, Result::Fixed, Long, nullSafe<inStr>},
    {"InStrRev", 2, 2, Result::Fixed, Long, nullSafe<inStrRev>},
    {"Int", 1, 1, Result::SameAsFirst, Double, rounded<basic::Int>},
    {"IsDate", 1, 1, Result::Fixed, Boolean,
     [](Arguments a, Date today) -> Value { return basic::IsDate(a[0], today); }},
    {"IsNull", 1, 1, Result::Fixed, Boolean, [](Arguments a, Date) -> Value { return a[0].isNull(); }},
    {"IsNumeric", 1, 1, Result::Fixed, Boolean, [](Arguments a, Date) -> Value { return basic::IsNumeric(a[0]); }},
    {"LCase", 1, 1, Result::Fixed, Text, onText<basic::LCase>},
    {"Left", 2, 2, Result::Fixed, Text, nullSafe<left>},
    {"Len", 1, 1, Result::Fixed, Long, nullSafe<length>},
    {"Log", 1, 1, Result::Fixed, Double, nullSafe<real<std::log>>},
    {"LTrim", 1, 1, Result::Fixed, Text, onText<basic::LTrim>},
    {"Mid", 2, 3, Result::Fixed, Text, nullSafe<mid>},
    {"Minute", 1, 1, Result::Fixed, Long, datePart<&basic::DateParts::minute>},
    {"Month", 1, 1, Result::Fixed, Long, datePart<&basic::DateParts::month>},
    {"MonthName", 1, 2, Result::Fixed, Text, nullSafe<monthName>},
    {"Nz", 1, 2, Result::CommonOfAll, Text, nz},
    {"Replace", 3, 3, Result::Fixed, Text, nullSafe<replace>},
    {"Right", 2, 2, Result::Fixed, Text, nullSafe<right>},
    {"Round", 1, 2, Result::Fixed, Double, nullSafe<roundOf>},
    {"RTrim", 1, 1, Result::Fixed, Text, onText<basic::RTrim>},
    {"Second", 1, 1, Result::Fixed, Long, datePart<&basic::DateParts::second>},
    {"Sgn", 1, 1, Result::Fixed, Long, nullSafe<sign>},
    {"Space", 1, 1, Result::Fixed, Text, nullSafe<space>},
    {"Sqr", 1, 1, Result::Fixed, Double, nullSafe<real<std::sqrt>>},
    {"Str", 1, 1, Result::Fixed, Text, [](Arguments a, Date) -> Value { return basic::Str(a[0]); }},
    {"StrComp", 2, 3, Result::Fixed, Long, nullSafe<strComp>},
    {"String", 2, 2, Result::Fixed, Text, nullSafe<string>},
    {"TimeSerial", 3, 3, Result::Fixed, DateType, nullSafe<timeSerial>},
    {"TimeValue", 1, 1, Result::Fixed, DateType, nullSafe<timeValue>},
    {"Trim", 1, 1, Result::Fixed, Text, onText<basic::Trim>},
    {"UCase", 1, 1, Result::Fixed, Text, onText<basic::UCase>},
    {"Val", 1, 1, Result::Fixed, Double, [](Arguments a, Date) -> Value { return basic::Val(a[0]); }},
    {"Weekday", 1, 2, Result::Fixed, Long, nullSafe<weekday>},
    {"WeekdayName", 1, 3, Result::Fixed, Text, nullSafe<weekdayName>},
    {"Year", 1, 1, Result::Fixed, Long, datePart<&basic::DateParts::year>},
});

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool comesBefore(std::string_view name, std::string_view folded) {
    return std::lexicographical_compare(name.begin(), name.end(), folded.begin(), folded.end(),
                                        [](char a, char b) { return lower(a) < lower(b); });
}

static_assert(std::is_sorted(table.begin(), table.end(),
                             [](const Function& a, const Function& b) { return comesBefore(a.name, b.name); }));

} // namespace

const Function* findFunction(const SqlName& name) {
    std::string_view wanted = name.folded();
    if (wanted.ends_with('$')) // Left$ and its like are the text-giving twins of Left
        wanted.remove_suffix(1);
    const auto* found = std::lower_bound(table.begin(), table.end(), wanted,
                                         [](const Function& f, std::string_view n) { return comesBefore(f.name, n); });
    return found != table.end() && !comesBefore(wanted, found->name) ? found : nullptr;
}

std::span<const Function> allFunctions() { return table; }

std::string sqlFunctionName(const Function& function) {
    std::string name = "j_";
    for (const char c : function.name)
        name += lower(c);
    return name;
}

} // namespace jet
