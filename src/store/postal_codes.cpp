#include "store/postal_codes.h"

#include "platform/basic/text.h"
#include "platform/basic/utf8.h"
#include "platform/jet/workspace.h"

#include <algorithm>
#include <optional>
#include <set>

namespace store {

namespace {

constexpr std::int64_t kLongestCode = 20;
constexpr std::int64_t kLongestPlace = 80;

std::string toUtf8(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
    if (basic::isValidText(bytes)) return basic::normalised(bytes);
    std::string text;
    for (const char c : bytes)
        text += basic::Chr(static_cast<unsigned char>(c));
    return text;
}

/// One field from the beginning of the line, which loses it and its separator; none when a quote stays open or text
/// stands behind a closed one.
std::optional<std::string> takeField(std::string_view& line) {
    std::string field;
    if (!line.starts_with('"')) {
        field = line.substr(0, line.find(';'));
        line.remove_prefix(std::min(line.size(), field.size() + 1));
        return field;
    }
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] != '"') {
            field += line[i];
            continue;
        }
        const bool doubled = i + 1 < line.size() && line[i + 1] == '"';
        if (doubled) {
            field += line[i++];
            continue;
        }
        line.remove_prefix(i + 1);
        if (!line.empty() && line.front() != ';') return std::nullopt;
        line.remove_prefix(std::min<std::size_t>(line.size(), 1));
        return field;
    }
    return std::nullopt;
}

bool isCode(const std::string& code) {
    const auto fits = [](char c) {
        return basic::isDigit(c) || c == ' ' || c == '-' ||
               (basic::lowerAscii(c) >= 'a' && basic::lowerAscii(c) <= 'z');
    };
    return std::ranges::any_of(code, basic::isDigit) && std::ranges::all_of(code, fits) &&
           std::ssize(code) <= kLongestCode;
}

/// No separator of the lists and merge files, nothing that is no text.
bool isPlace(const std::string& place) {
    const auto disturbs = [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == ';' || c == '~' || c == '"';
    };
    return !place.empty() && std::ranges::none_of(place, disturbs) && basic::Len(place) <= kLongestPlace;
}

std::optional<PostalCode> readLine(std::string_view line) {
    const auto code = takeField(line);
    if (!code) return std::nullopt;
    const auto place = takeField(line);
    if (!place) return std::nullopt;
    PostalCode row{basic::Trim(*code), basic::Trim(*place)};
    if (!isCode(row.PLZ) || !isPlace(row.Ort)) return std::nullopt;
    return row;
}

bool isHeading(std::string_view line, int number) {
    return number == 1 && std::ranges::none_of(line.substr(0, line.find(';')), basic::isDigit);
}

std::string identity(const PostalCode& row) { return basic::foldCase(row.PLZ + ";" + row.Ort); }

std::set<std::string> known(jet::Database& holidayFile) {
    std::set<std::string> result;
    jet::Recordset rows = holidayFile.OpenRecordset("SELECT PLZ, Ort FROM tbPLZ", jet::RecordsetType::Snapshot);
    for (; !rows.Eof(); rows.MoveNext())
        result.insert(identity({rows.At(0).textOr(), rows.At(1).textOr()}));
    return result;
}

} // namespace

PostalCodeList readPostalCodes(std::string_view bytes) {
    const std::string text = toUtf8(bytes);
    PostalCodeList list;
    int number = 0;
    for (std::string_view rest = text; !rest.empty();) {
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        ++number;
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.find_first_not_of(' ') == std::string_view::npos || isHeading(line, number)) continue;
        if (auto row = readLine(line))
            list.rows.push_back(std::move(*row));
        else
            list.badLines.push_back(number);
    }
    return list;
}

int storePostalCodes(jet::Database& holidayFile, const std::vector<PostalCode>& rows, ExistingCodes existing) {
    jet::Transaction transaction(holidayFile, "tbPLZ");
    if (existing == ExistingCodes::Replace) holidayFile.Execute("DELETE FROM tbPLZ");
    std::set<std::string> there = known(holidayFile);
    jet::Recordset table = holidayFile.OpenRecordset("SELECT PLZ, Ort FROM tbPLZ WHERE PLZ = ''");
    int added = 0;
    for (const PostalCode& row : rows) {
        if (!there.insert(identity(row)).second) continue;
        table.AddNew();
        table.Fields(0) = row.PLZ;
        table.Fields(1) = row.Ort;
        table.Update();
        ++added;
    }
    transaction.Commit();
    return added;
}

} // namespace store
