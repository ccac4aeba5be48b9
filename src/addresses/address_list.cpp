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

std::string Zeilentext(const std::string& nachname, const std::string& vorname, const std::string& plz,
                       const std::string& ort) {
    std::string zeile = nachname;
    anhängen(zeile, vorname);
    anhängen(zeile, basic::Trim(plz + " " + ort));
    return zeile;
}

std::string gefaltet(std::string_view text) {
    return basic::foldCase(basic::isAscii(text) ? std::string(text) : basic::normalised(text));
}

} // namespace

void Adressliste::einordnen(std::vector<std::string> schlüssel) const {
    std::vector<std::pair<std::string, std::size_t>> ordnung;
    ordnung.reserve(schlüssel.size());
    for (std::size_t i = 0; i < schlüssel.size(); ++i)
        ordnung.emplace_back(std::move(schlüssel[i]), i);
    std::ranges::sort(ordnung);
    for (std::size_t rang = 0; rang < ordnung.size(); ++rang)
        einträge_[ordnung[rang].second].Rang = rang;
    std::ranges::sort(einträge_, [](const Eintrag& a, const Eintrag& b) {
        return a.Suchtext != b.Suchtext ? a.Suchtext < b.Suchtext : a.Rang < b.Rang;
    });
}

void Adressliste::einlesen() const {
    jet::Recordset rows = db_->OpenRecordset("SELECT ID, LastName, FirstName, PostalCode, City FROM Address",
                                             jet::RecordsetType::Snapshot);
    std::vector<std::string> schlüssel;
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::string nachname = einzeilig(rows.At(1));
        const std::string zeile =
            Zeilentext(nachname, einzeilig(rows.At(2)), einzeilig(rows.At(3)), einzeilig(rows.At(4)));
        if (zeile.empty()) continue;
        einträge_.push_back({rows.At(0).longOr(), zeile, gefaltet(zeile), 0});
        // the name by itself, so that Meier comes before Meier-Huber
        schlüssel.push_back(basic::collationKey(nachname) + '\0' + basic::collationKey(zeile));
    }
    einordnen(std::move(schlüssel));
}

void Adressliste::lesen() const {
    if (gelesen_) return;
    einträge_.clear();
    gelesen_ = basic::quietly([this] { einlesen(); });
}

std::vector<services::Match> Adressliste::matches(std::string_view typed, std::size_t limit) const {
    lesen();
    const std::string anfang = gefaltet(basic::LTrim(typed));
    const auto beginn = [&](const Eintrag& eintrag) {
        return std::string_view(eintrag.Suchtext).substr(0, anfang.size());
    };
    const auto treffer = std::ranges::equal_range(einträge_, std::string_view(anfang), {}, beginn);
    std::vector<const Eintrag*> gefunden;
    for (const Eintrag& eintrag : treffer)
        gefunden.push_back(&eintrag);
    const auto erste = gefunden.begin() + static_cast<std::ptrdiff_t>(std::min(limit, gefunden.size()));
    std::ranges::partial_sort(gefunden, erste, {}, &Eintrag::Rang);
    std::vector<services::Match> matches;
    std::for_each(gefunden.begin(), erste, [&](const Eintrag* e) { matches.push_back({e->ID, e->Zeile}); });
    return matches;
}

std::string Adressliste::Zeile(std::int64_t id) const {
    lesen();
    const auto platz = std::ranges::find(einträge_, id, &Eintrag::ID);
    return platz == einträge_.end() ? std::string() : platz->Zeile;
}

std::size_t Adressliste::Anzahl() const {
    lesen();
    return einträge_.size();
}

} // namespace addresses
