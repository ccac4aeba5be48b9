#include "reservations/number_form.h"

#include "platform/basic/convert.h"
#include "platform/basic/quietly.h"
#include "reservations/telling.h"
#include "store/quotes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace reservations {

namespace {

using services::Leave;
using services::MsgResult;

struct Datumsauswahl {
    const char* Text;
    const char* Format;
};

constexpr std::array<Datumsauswahl, 10> kDatum{{{"", ""},
                                                {"Jahr zweistellig (02)", "yy"},
                                                {"Jahr vierstellig (2002)", "yyyy"},
                                                {"Monatsabkürzung + Jahr (Jan 02)", "mmm yy"},
                                                {"Monatsabkürzung + Jahr (Jan 2002)", "mmm yyyy"},
                                                {"Monat + Jahr (01 2002)", "mm yyyy"},
                                                {"Monat + Jahr (01 02)", "mm yy"},
                                                {"Datum vollständig (13 01 02)", "dd mm yy"},
                                                {"Kalenderwoche + Jahr (34 02)", "ww yy"},
                                                {"Kalenderwoche + Jahr (34 2002)", "ww yyyy"}}};

/// What F4 says, in the order of the option buttons.
constexpr std::array<const char*, 2> kFehlende{"Alle", "Freilassen"};

constexpr auto kAbfrage = "Select Satz, F1,F2 ,F3, F4 from tblParameter where Satz = 'BeNummer';";

/// Of a field of the record, less the quote that may be appended.
constexpr int kPlatz = 49;
/// So that the counter stays within a Long.
constexpr int kStellen = 9;

std::optional<std::vector<std::string>> felder(jet::Database& db) {
    auto rs = db.OpenRecordset(kAbfrage, jet::RecordsetType::Snapshot);
    if (rs.Eof()) return std::nullopt;
    std::vector<std::string> werte;
    for (std::size_t i = 1; i < rs.FieldCount(); ++i)
        werte.push_back(rs.At(i).textOr());
    return werte;
}

/// As another station may have left it; as it was read at the start where there is no record.
Nummernmuster gelesen(start::GlobalState& g) {
    const auto werte = basic::quietly(std::optional<std::vector<std::string>>(), [&] { return felder(g.dbHaupt); });
    return MusterAus(werte.value_or(g.einstellungen.BeNummer));
}

std::vector<std::string> feldwerte(const Nummernmuster& muster) {
    return {muster.Vor, muster.Datumsformat, muster.Start, muster.Fehlende};
}

void schreiben(jet::Database& db, const Nummernmuster& muster) {
    auto rs = db.OpenRecordset(kAbfrage);
    if (rs.Eof()) {
        rs.AddNew();
        rs.Fields("Satz") = "BeNummer";
    } else {
        rs.Edit();
    }
    std::size_t position = 0;
    for (const std::string& wert : feldwerte(muster))
        rs.Fields(++position) = wert;
    rs.Update();
}

template <typename Range, typename Projection = std::identity>
int indexOf(const Range& range, const std::string& value, Projection projection = {}) {
    const auto found = std::ranges::find(range, value, projection);
    return found == range.end() ? -1 : static_cast<int>(found - range.begin());
}

} // namespace

frmBeNummer::frmBeNummer(start::GlobalState& g) : g_(g), muster_(gelesen(g)), gespeichert_(muster_) {
    txtVor.MaxLength = kPlatz;
    txtBeNummer.MaxLength = kStellen;
    txtBeNummerBeispiel.Locked = true;
    for (const Datumsauswahl& auswahl : kDatum)
        cboDatum.Items.AddItem(auswahl.Text);
    cboDatum.ToolTipText = "Diese Auswahl erscheint nach der laufenden Nummer.";
    opFreie.Caption = "Fehlende Reservierungsnummern";
    opFreie.ToolTipText = "Fehlende Reservierungsnummern können wahlweise wieder vergeben werden oder frei bleiben.";
    for (const auto* caption : {"wieder vergeben", "frei lassen"}) {
        services::OptionButton button;
        button.Caption = caption;
        button.ToolTipText = opFreie.ToolTipText;
        opFreie.Buttons.push_back(button);
    }
    zeigen();
}

void frmBeNummer::zeigen() {
    txtVor.Text = muster_.Vor;
    txtBeNummer.Text = muster_.Start;
    cboDatum.choose(indexOf(kDatum, muster_.Datumsformat, &Datumsauswahl::Format));
    opFreie.Value = indexOf(kFehlende, muster_.Fehlende);
    beispiel();
}

void frmBeNummer::beispiel() {
    // A stored start is any text; what no counter can hold shows as none.
    const double start = basic::Val(muster_.Start);
    const auto nummer = std::abs(start) < 1e9 ? static_cast<std::int64_t>(start) : 0;
    txtBeNummerBeispiel.Text = BelegnummerText(muster_, nummer, g_.clock.today());
}

void frmBeNummer::txtVor_Change() {
    muster_.Vor = txtVor.Text;
    beispiel();
}

Leave frmBeNummer::txtVor_LostFocus() {
    if (store::DoppZeichen(txtVor.Text)) {
        txtVor.Text += '"';
        txtVor_Change();
    }
    return Leave::Go;
}

void frmBeNummer::txtBeNummer_Change() {
    muster_.Start = txtBeNummer.Text;
    beispiel();
}

void frmBeNummer::cboDatum_Click() {
    if (cboDatum.ListIndex < 0) return;
    muster_.Datumsformat = kDatum.at(static_cast<std::size_t>(cboDatum.ListIndex)).Format;
    beispiel();
}

void frmBeNummer::opFreie_Click(int index) {
    opFreie.Value = index;
    muster_.Fehlende = kFehlende.at(static_cast<std::size_t>(index));
}

bool frmBeNummer::speichern() {
    txtVor_LostFocus();
    return toldIfFailed(g_.dialogs, g_.strTitel(), [this] {
        schreiben(g_.dbHaupt, muster_);
        std::vector<std::string>& werte = g_.einstellungen.BeNummer;
        werte.resize(std::max<std::size_t>(werte.size(), 4));
        std::ranges::copy(feldwerte(muster_), werte.begin());
        gespeichert_ = muster_;
        return true;
    });
}

bool frmBeNummer::canClose() {
    if (muster_ == gespeichert_) return true;
    const services::MsgStyle style{.buttons = services::MsgButtons::YesNoCancel, .icon = services::MsgIcon::Question};
    const MsgResult antwort = g_.dialogs.MsgBox("Änderungen speichern?", style, g_.strTitel());
    if (antwort == MsgResult::Yes) return speichern();
    return antwort == MsgResult::No;
}

} // namespace reservations
