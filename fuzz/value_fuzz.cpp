#include "platform/basic/convert.h"
#include "platform/basic/error.h"
#include "platform/basic/format.h"
#include "platform/basic/like.h"
#include "platform/basic/text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

using namespace basic;

void require(bool holds) {
    if (!holds) std::abort();
}

template <typename Call>
void trying(Call call) {
    try {
        call();
    } catch (const Error&) {
        // A refusal is an answer.
    }
}

/// Whatever is read can be printed and read again.
void readValues(std::string_view text) {
    const Date today = Date::fromYmd(2019, 7, 15);
    if (const auto date = parseDate(text, today)) require(CStr(CDate(CStr(*date), today)) == CStr(*date));
    if (const auto number = parseNumber(text)) require(CStr(CDbl(CStr(*number))) == CStr(*number));
    require(!std::isnan(Val(text)));
}

void formatValues(std::string_view text, std::string_view pattern) {
    const Date today = Date::fromYmd(2019, 7, 15);
    trying([&] { static_cast<void>(Format(text, pattern, today)); });
    trying([&] { static_cast<void>(Format(Val(text), pattern, today)); });
    trying([&] { static_cast<void>(Format(Value(), pattern, today)); });
    trying([&] { static_cast<void>(Format(Date(Val(text)), pattern, today)); });
}

void compareTexts(std::string_view a, std::string_view b) {
    require((compareText(a, b) < 0) == (collationKey(a) < collationKey(b)));
    require(isValidText(foldCase(a)));
    static_cast<void>(LikePattern(b).matches(a));
    static_cast<void>(InStr(1, a, b));
    if (isValidText(a)) require(Left(a, 2) + Mid(a, 3) == a);
}

} // namespace

/// The input is a text and a pattern, parted by the first line feed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = std::min(input.find('\n'), input.size());
    const std::string_view text = input.substr(0, end);
    const std::string_view pattern = input.substr(std::min(end + 1, input.size()));
    readValues(text);
    formatValues(text, pattern);
    compareTexts(text, pattern);
    return 0;
}
