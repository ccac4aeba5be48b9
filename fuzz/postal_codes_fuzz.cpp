#include "store/postal_codes.h"

#include "platform/basic/text.h"

#include <algorithm>
#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

} // namespace

/// Whatever a list holds, each row that is read fits its table, and no line is counted twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const store::PostalCodeList list = store::readPostalCodes(bytes);
    const auto lines = 1 + static_cast<std::size_t>(std::ranges::count(bytes, '\n'));
    require(list.rows.size() + list.badLines.size() <= lines);
    require(std::ranges::is_sorted(list.badLines));
    for (const store::PostalCode& row : list.rows) {
        require(basic::isValidText(row.Ort) && basic::Len(row.Ort) <= 80 && row.PLZ.size() <= 20);
        require(row.Ort.find_first_of(";~\"\r\n") == std::string::npos);
    }
    return 0;
}
