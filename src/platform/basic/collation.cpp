#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

namespace basic {

namespace {

void check(UErrorCode status) {
    if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
}

struct CloseCollator {
    void operator()(UCollator* collator) const { ucol_close(collator); }
};

using CollatorPointer = std::unique_ptr<UCollator, CloseCollator>;

CollatorPointer openCollator() {
    UErrorCode status = U_ZERO_ERROR;
    CollatorPointer collator(ucol_open("de", &status));
    check(status);
    ucol_setStrength(collator.get(), UCOL_SECONDARY);
    return collator;
}

int compareByIcu(const UCollator* collator, std::string_view a, std::string_view b) {
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result = ucol_strcollUTF8(collator, a.data(), static_cast<std::int32_t>(a.size()), b.data(),
                                                     static_cast<std::int32_t>(b.size()), &status);
    check(status);
    return static_cast<int>(result);
}

/// Place of each printable ASCII character in the dictionary, letters without case; 0 for the others.
using Ranks = std::array<unsigned char, 256>;

Ranks ranksOf(const UCollator* collator) {
    std::array<char, 95> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<char>(' ' + static_cast<int>(i));
    const auto compare = [&](const char& a, const char& b) { return compareByIcu(collator, {&a, 1}, {&b, 1}); };
    std::sort(order.begin(), order.end(), [&](const char& a, const char& b) { return compare(a, b) < 0; });
    Ranks ranks{};
    unsigned char rank = 1;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i > 0 && compare(order[i - 1], order[i]) != 0) ++rank;
        ranks[static_cast<unsigned char>(order[i])] = rank;
    }
    return ranks;
}

struct Collation {
    CollatorPointer collator = openCollator();
    Ranks ranks = ranksOf(collator.get());
};

/// Opened once and never changed; comparing through it is safe from every thread.
const Collation& german() {
    static const Collation collation;
    return collation;
}

/// Decides texts that differ within their ASCII beginnings; none where the dictionary has to be asked.
std::optional<int> compareAscii(const Ranks& ranks, std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int rankA = ranks[static_cast<unsigned char>(a[i])];
        const int rankB = ranks[static_cast<unsigned char>(b[i])];
        if (rankA == 0 || rankB == 0) return std::nullopt;
        if (rankA != rankB) return rankA < rankB ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    const std::string_view longer = a.size() > common ? a : b;
    if (ranks[static_cast<unsigned char>(longer[common])] == 0) return std::nullopt;
    return a.size() < b.size() ? -1 : 1;
}

std::u16string toUtf16(std::string_view text) {
    std::u16string result(text.size() + 1, u'\0');
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(result.data(), static_cast<std::int32_t>(result.size()), &length, text.data(),
                         static_cast<std::int32_t>(text.size()), static_cast<UChar32>(replacementCharacter), nullptr,
                         &status);
    check(status);
    result.resize(static_cast<std::size_t>(length));
    return result;
}

} // namespace

int compareText(std::string_view a, std::string_view b) {
    if (a == b) return 0;
    const Collation& collation = german();
    if (const std::optional<int> result = compareAscii(collation.ranks, a, b)) return *result;
    return compareByIcu(collation.collator.get(), a, b);
}

std::string collationKey(std::string_view text) {
    const std::u16string wide = toUtf16(text);
    const auto fill = [&](std::string& key) {
        return ucol_getSortKey(german().collator.get(), wide.data(), static_cast<std::int32_t>(wide.size()),
                               reinterpret_cast<std::uint8_t*>(key.data()), static_cast<std::int32_t>(key.size()));
    };
    std::string key(text.size() * 2 + 16, '\0');
    const auto needed = static_cast<std::size_t>(fill(key));
    if (needed > key.size()) {
        key.resize(needed);
        fill(key);
    }
    key.resize(needed - 1);
    return key;
}

std::string collationVersion() {
    UVersionInfo version{};
    ucol_getVersion(german().collator.get(), &version[0]);
    std::array<char, U_MAX_VERSION_STRING_LENGTH> text{};
    u_versionToString(&version[0], text.data());
    return std::string("de-") + text.data();
}

} // namespace basic
