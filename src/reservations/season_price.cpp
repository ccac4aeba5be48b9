#include "reservations/season_price.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/jet/sql_values.h"

#include <limits>
#include <optional>

namespace reservations {

namespace {

using basic::Date;

constexpr std::size_t kOhneSaison = 4;

/// Name of a line, and how the message announces its price.
struct Zeilentext {
    const char* Saison;
    const char* Ansage;
};

constexpr std::array<Zeilentext, 5> kZeilen{{{"Hauptsaison", " Hauptsaison, Preis: "},
                                             {"Zwischensaison", " Zwischensaison, Preis: "},
                                             {"Nebensaison", " Nebensaison, Preis: "},
                                             {"Sondersaison", " Sondersaison, Preis: "},
                                             {"Ohne Saison", " ohne Saison, Standardpreis: "}}};

constexpr auto kZuWenig =
    "Für die Berechnung der Saisonpreise liegen nicht genug Stammdaten vor. Kontrollieren Sie in den Einstellungen die "
    "Preise für die Zimmer und legen Sie Saisonzeiten fest.";

/// The night counters have 16 bits, in the tables too; a typing error in a year must not walk through centuries.
constexpr int kMeisteNächte = std::numeric_limits<std::int16_t>::max();

std::string zeile(const Saisonzeile& zeile, const char* ansage) {
    return std::to_string(zeile.Nächte) + (zeile.Nächte == 1 ? " Nacht" : " Nächte") + ansage +
           basic::Format(zeile.Preis, "#,##0.00") + " pro Nacht";
}

} // namespace

clsSaisonpreis::Zeilen5 clsSaisonpreis::leereZeilen() {
    Zeilen5 zeilen;
    for (std::size_t i = 0; i < zeilen.size(); ++i)
        zeilen[i].Saison = kZeilen[i].Saison;
    return zeilen;
}

double clsSaisonpreis::Saisonpreis_Ausrechnen(int zimmer, const std::string& von, const std::string& bis,
                                              bool showMessages) {
    leeren();
    if (!basic::IsDate(von) || !basic::IsDate(bis)) return 0;
    const auto summe = basic::quietly(std::optional<double>(), [&] {
        return std::optional(ausrechnen(zimmer, basic::CDate(von).day(), basic::CDate(bis).day(), showMessages));
    });
    if (!summe) leeren();
    return summe.value_or(0);
}

void clsSaisonpreis::leeren() {
    zeilen_ = leereZeilen();
    saisons_ = 0;
}

double clsSaisonpreis::ausrechnen(int zimmer, Date von, Date bis, bool showMessages) {
    if (bis - von > kMeisteNächte) return 0;
    std::string text;
    double summe = 0;
    if (hatSaisonpreis(zimmer)) {
        nächteZählen(von, bis);
        summe = preiseEintragen(zimmer, text);
    }
    if (showMessages) {
        const std::string gefunden = "Folgende Saisonzeiten und Preise wurden gefunden:\n" + text;
        dialogs_->MsgBox(summe == 0 ? kZuWenig : gefunden, {.icon = services::MsgIcon::Information}, titel_);
    }
    return summe;
}

bool clsSaisonpreis::hatSaisonpreis(int zimmer) {
    return db_
        ->OpenRecordset("SELECT Zimmernummer, PreisNebensaison, PreisZwischensaison, PreisHauptsaison, "
                        "PreisSondersaison From tbZimmernummern  Where (((Zimmernummer) = " +
                            jet::sqlNumber(zimmer) +
                            ")  And ((PreisNebensaison) Is Null) And ((PreisZwischensaison) Is Null)  And "
                            "((PreisHauptsaison) Is Null) And ((PreisSondersaison) Is Null))",
                        jet::RecordsetType::Snapshot)
        .Eof();
}

void clsSaisonpreis::nächteZählen(Date von, Date bis) {
    for (Date tag = von; tag < bis; tag = tag + 1) {
        const std::string saison = Saison(tag);
        std::size_t i = 0;
        while (i < kOhneSaison && zeilen_[i].Saison != saison)
            ++i;
        ++zeilen_[i].Nächte;
    }
}

std::string clsSaisonpreis::Saison(Date tag) {
    const std::string datum = "CVDate(" + jet::sqlText(basic::CStr(tag)) + ")";
    const auto rs =
        db_->OpenRecordset(" SELECT tbSaisonzeiten.Saisonbezeichnung From tbSaisonzeiten  WHERE (((" + datum +
                               ")>=[tbSaisonzeiten].[Start] And (" + datum + ")<[tbSaisonzeiten].[Ende]))",
                           jet::RecordsetType::Snapshot);
    return rs.Eof() ? std::string() : rs.At(0).textOr();
}

double clsSaisonpreis::preiseEintragen(int zimmer, std::string& text) {
    double summe = 0;
    bool berechenbar = true;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        Saisonzeile& zeile = zeilen_[i];
        if (zeile.Nächte == 0) continue;
        // Nights outside all seasons alone are no season price.
        if (i != kOhneSaison || saisons_ > 0) ++saisons_;
        zeile.Preis = Preis(zimmer, i == kOhneSaison ? std::string() : zeile.Saison);
        if (zeile.Preis == 0) {
            berechenbar = false;
            continue;
        }
        zeile.Summe = zeile.Nächte * zeile.Preis;
        summe += zeile.Summe;
        text += (text.empty() ? "" : "\n") + reservations::zeile(zeile, kZeilen[i].Ansage);
    }
    return berechenbar && saisons_ > 0 ? summe : 0;
}

double clsSaisonpreis::Preis(int zimmer, const std::string& saison) {
    const std::string spalte = saison.empty() ? std::string() : " ,Preis" + saison;
    auto rs = db_->OpenRecordset("SELECT Zimmernummer, PreisDefault " + spalte +
                                     " From tbZimmernummern  WHERE Zimmernummer = " + jet::sqlNumber(zimmer),
                                 jet::RecordsetType::Snapshot);
    if (rs.Eof()) return 0;
    const double standard = rs.At(1).doubleOr();
    return saison.empty() ? standard : rs.At(2).doubleOr(standard);
}

} // namespace reservations
