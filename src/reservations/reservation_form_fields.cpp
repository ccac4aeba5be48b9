#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/numbers.h"
#include "reservations/reservation_form.h"
#include "store/quotes.h"

#include <algorithm>

namespace reservations {

namespace {

using services::Leave;

constexpr int KürzelZeichen = 17;

std::optional<services::Colour> warnfarbe(bool vergeben) {
    return vergeben ? std::optional(look::Warnung) : std::nullopt;
}

/// Quotation marks stand in pairs, because the text goes into merge files.
void paareSchließen(services::TextBox& box) {
    if (store::DoppZeichen(box.Text)) box.Text += '"';
}

} // namespace

void frmReservierung::Feld_Change() {
    änderung_ = true;
    cmdWarten.Enabled = !block_ && abrechnung_ == Abrechnungsstand::Offen;
}

Leave frmReservierung::Text_LostFocus(services::TextBox& box) {
    paareSchließen(box);
    return Leave::Go;
}

// Short name

/// A given short name may be longer than what can be typed: it then carries a counter.
void frmReservierung::setzeKürzel(const std::string& text) {
    fldK_rzel.Text = text;
    fldK_rzel.MaxLength = std::max(KürzelZeichen, static_cast<int>(basic::Len(text)));
}

void frmReservierung::kürzelPrüfen() {
    const std::string kürzel = basic::Trim(fldK_rzel.Text); // as a changed row stores it
    kürzelVergeben_ =
        !kürzel.empty() && basic::quietly(false, [&] { return KürzelVergeben(g_.dbHaupt, kürzel, ID()); });
    fldK_rzel.BackColor = warnfarbe(kürzelVergeben_);
}

void frmReservierung::fldK_rzel_Change() {
    Feld_Change();
    kürzelPrüfen();
}

void frmReservierung::kürzelVorgeben() {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    // Without its days the stay is refused anyway, and a short name would stay that says nothing.
    if (!basic::Trim(fldK_rzel.Text).empty() || !von || !bis) return;
    setzeKürzel(VorgabeKürzel(g_.dbHaupt, adresse.cboAdresse.Text, basic::Format(*von, "dd.mm.yyyy"),
                              basic::Format(*bis, "dd.mm.yyyy"), ID()));
    kürzelVergeben_ = false;
    fldK_rzel.BackColor.reset();
}

// Number

void frmReservierung::nummerVergeben() {
    const Nummernmuster muster = MusterAus(g_.einstellungen.BeNummer);
    auto nummer = static_cast<std::int64_t>(basic::Val(txtBeNummer.Text));
    const bool bleibt = nummer != 0 && ID() != 0 && !BelegnummerVergeben(g_.dbHaupt, nummer, ID());
    if (!bleibt) nummer = NächsteBelegnummer(g_.dbHaupt, muster);
    txtBeNummer.Text = std::to_string(nummer);
    txtBeNummer_eigen.Text = BelegnummerText(muster, nummer, datum(fldVon).value_or(g_.clock.today()));
    nummerPrüfen();
}

void frmReservierung::nummerPrüfen() {
    nummerVergeben_ = !basic::Trim(txtBeNummer_eigen.Text).empty() && basic::quietly(false, [&] {
        return BelegnummerTextVergeben(g_.dbHaupt, txtBeNummer_eigen.Text, ID());
    });
    txtBeNummer_eigen.BackColor = warnfarbe(nummerVergeben_);
}

void frmReservierung::txtBeNummer_eigen_Change() {
    Feld_Change();
    nummerPrüfen();
}

Leave frmReservierung::txtBeNummer_eigen_LostFocus() {
    if (basic::Trim(txtBeNummer_eigen.Text).empty()) {
        txtBeNummer_eigen.Text.clear();
        return Leave::Go;
    }
    paareSchließen(txtBeNummer_eigen);
    nummerPrüfen();
    if (!nummerVergeben_) return Leave::Go;
    ablehnen(
        "Diese Belegnummer ist bereits vorhanden. Geben Sie eine andere Nummer ein oder leeren Sie das Feld, damit "
        "eine neue Nummer vergeben werden kann.");
    txtBeNummer_eigen.Text.clear();
    nummerPrüfen();
    return Leave::Go;
}

void frmReservierung::txtBeNummer_eigen_DblClick() {
    try {
        nummerVergeben();
        Feld_Change();
    } catch (const basic::Error& fehler) {
        ablehnen(fehler.text());
    }
}

// Billing address

void frmReservierung::cboAdrRechnung_Change() {
    cboAdrRechnung.Chosen = 0;
    Feld_Change();
}

void frmReservierung::cboAdrRechnung_Click(std::int64_t id) {
    cboAdrRechnung.Chosen = id;
    basic::quietly([&] { cboAdrRechnung.Text = dienste_.adressen.Zeile(id); });
    Feld_Change();
}

/// A typed text counts when it leaves one address, or is one to the letter.
bool frmReservierung::rechnungsadresseFinden() {
    const std::string text = basic::Trim(cboAdrRechnung.Text);
    if (text.empty() || cboAdrRechnung.Chosen != 0) return true;
    const auto treffer = dienste_.adressen.matches(text, 2);
    const bool eindeutig = treffer.size() == 1 || (!treffer.empty() && basic::equalText(treffer.front().Text, text));
    if (!eindeutig) return ablehnen("Bitte wählen Sie einen Eintrag aus der Liste.");
    cboAdrRechnung.Chosen = treffer.front().Data;
    cboAdrRechnung.Text = treffer.front().Text;
    return true;
}

Leave frmReservierung::cboAdrRechnung_LostFocus() {
    return basic::quietly(true, [&] { return rechnungsadresseFinden(); }) ? Leave::Go : Leave::Stay;
}

} // namespace reservations
