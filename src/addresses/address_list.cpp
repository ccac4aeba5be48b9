#include "addresses/address_list.h"

#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>

namespace addresses {

namespace {

/// One line of text, whatever another program has put into the field.
std::string einzeilig(const basic::Value& wert) {
    std::string text = wert.textOr();
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return basic::Trim(text);
}

void anhängen(std::string& zeile, const std::string& teil) {
    if (teil.empty()) return;
    if (!zeile.empty()) zeile += ", ";
    zeile += teil;
}

constexpr std::string_view Spalten = "SELECT ID, LastName, FirstName, PostalCode, City FROM Address ";

std::string Zeilentext(const jet::Recordset& rows) {
    std::string zeile = einzeilig(rows.At(1));
    anhängen(zeile, einzeilig(rows.At(2)));
    anhängen(zeile, basic::Trim(einzeilig(rows.At(3)) + " " + einzeilig(rows.At(4))));
    return zeile;
}

std::string gefaltet(std::string_view text) {
    return basic::foldCase(basic::isAscii(text) ? std::string(text) : basic::normalised(text));
}

} // namespace

void Adressliste::einlesen() const {
    jet::Recordset rows =
        db_->OpenRecordset(std::string(Spalten) + "ORDER BY LastName, FirstName, City", jet::RecordsetType::Snapshot);
    einträge_.reserve(static_cast<std::size_t>(rows.RecordCount()));
    for (; !rows.Eof(); rows.MoveNext()) {
        std::string zeile = Zeilentext(rows);
        if (zeile.empty()) continue;
        std::string suchtext = gefaltet(zeile);
        einträge_.push_back({rows.At(0).longOr(), std::move(zeile), std::move(suchtext), einträge_.size()});
    }
    std::ranges::sort(einträge_, [](const Eintrag& a, const Eintrag& b) {
        return a.Suchtext != b.Suchtext ? a.Suchtext < b.Suchtext : a.Rang < b.Rang;
    });
}

/// Who stores an address marks it with the time; a deleted one is missing in the count.
std::string Adressliste::tabellenstand() const {
    return basic::quietly(std::string(), [this] {
        const jet::Recordset rows = db_->OpenRecordset(
            "SELECT Count(ID) & '/' & Max(ID) & '/' & Max(WannGeändert) FROM Address", jet::RecordsetType::Snapshot);
        return rows.At(0).textOr();
    });
}

void Adressliste::lesen() const {
    if (gelesen_ && !nachsehen_) return;
    std::string stand = tabellenstand();
    nachsehen_ = false;
    if (gelesen_ && stand == stand_) return;
    stand_ = std::move(stand);
    einträge_.clear();
    gelesen_ = basic::quietly([this] { einlesen(); });
}

std::vector<services::Match> Adressliste::matches(std::string_view typed, std::size_t limit) const {
    lesen();
    const std::string anfang = gefaltet(basic::LTrim(typed));
    const auto beginn = [&](const Eintrag& eintrag) {
        return std::string_view(eintrag.Suchtext).substr(0, anfang.size());
    };
    const auto von = std::ranges::lower_bound(einträge_, std::string_view(anfang), {}, beginn);
    const auto bis = std::ranges::upper_bound(einträge_, std::string_view(anfang), {}, beginn);
    std::vector<const Eintrag*> gefunden;
    std::for_each(von, bis, [&](const Eintrag& eintrag) { gefunden.push_back(&eintrag); });
    const auto erste = gefunden.begin() + static_cast<std::ptrdiff_t>(std::min(limit, gefunden.size()));
    std::ranges::partial_sort(gefunden, erste, {}, &Eintrag::Rang);
    std::vector<services::Match> matches;
    std::for_each(gefunden.begin(), erste, [&](const Eintrag* e) { matches.push_back({e->ID, e->Zeile}); });
    return matches;
}

std::string Adressliste::Zeile(std::int64_t id) const {
    const jet::Recordset rows =
        db_->OpenRecordset(std::string(Spalten) + "WHERE ID = " + std::to_string(id), jet::RecordsetType::Snapshot);
    return rows.Eof() ? std::string() : Zeilentext(rows);
}

std::size_t Adressliste::Anzahl() const {
    lesen();
    return einträge_.size();
}

} // namespace addresses
