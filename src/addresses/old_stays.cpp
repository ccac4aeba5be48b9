#include "addresses/invoice_address.h"
#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/jet/sql_values.h"

namespace addresses {

namespace {

/// Nothing of the house is older; beyond, the calendar would end.
constexpr double kLängsteZeit = 100'000;

/// A count of days; none for what is none.
std::optional<int> alsTage(const std::string& text) {
    const std::optional<double> zahl = basic::parseNumber(text);
    if (!zahl || *zahl < 0 || *zahl > kLängsteZeit) return std::nullopt;
    return static_cast<int>(basic::CLng(*zahl));
}

/// Asks until there is a count of days; none when the user gave up.
std::optional<int> Tagesfrage(services::Dialogs& dialogs, const std::string& titel) {
    for (;;) {
        const auto antwort = dialogs.InputBox(
            "Mit diesem Vorgang erhalten Reservierungen und Zusatzposten mit dieser Adresse den Status 'Abgerechnet', "
            "damit die Kontrollanzeige für 'Abgerechnet' im Übersichtsformular korrekt arbeitet. "
            "Die Korrekturen sind nötig, um Daten aus früheren Versionen des Herbergos anzupassen."
            "Sollen alle Reservierungen und deren Zusatzposten, deren Anfangsdatum mehr als (Angabe in Tagen) "
            "zurückliegt, auf 'Abgerechnet' gesetzt werden?",
            "Korrektur vorhandener Reservierungsdaten", "30");
        if (!antwort) return std::nullopt;
        if (const auto tage = alsTage(*antwort)) return tage;
        dialogs.MsgBox("Geben Sie eine Anzahl Tage ein.", {.icon = services::MsgIcon::Exclamation}, titel);
    }
}

int reservierungenSetzen(jet::Database& db, const std::string& id, const std::string& datum) {
    db.Execute(" UPDATE tblBelegung SET tblBelegung.Abgerechnet = 1 WHERE (((tblBelegung.Von)< CDate(" + datum +
               "))  AND ((tblBelegung.GastID)=" + id + "))");
    return db.RecordsAffected();
}

int postenSetzen(jet::Database& db, const std::string& id, const std::string& datum) {
    db.Execute(" UPDATE tblBelegung INNER JOIN tbRePosten ON tblBelegung.ID = tbRePosten.IDBelegung"
               " SET tbRePosten.AbgerechnetPo = 'Ja' WHERE (((tbRePosten.IDAdressePo)=" +
               id + ")  AND ((tblBelegung.Von)< CDate(" + datum + ")))");
    return db.RecordsAffected();
}

std::string Bericht(int reservierungen, int posten) {
    if (reservierungen == 0 && posten == 0) return "Vor dem angegbenen Datum gab es keine nicht abgerechneten Daten.";
    const std::string beginn = " Es wurden ";
    if (posten == 0) return beginn + std::to_string(reservierungen) + " Reservierungen geändert.";
    if (reservierungen == 0) return beginn + std::to_string(posten) + " Zusatzposten geändert.";
    return beginn + std::to_string(reservierungen) + " Reservierungen und " + std::to_string(posten) +
           " Zusatzposten geändert.";
}

} // namespace

void clsADresse::AlteReservierungenAendern(jet::Database& db, std::int64_t id, basic::Date heute,
                                           services::Dialogs& dialogs, const std::string& titel) {
    if (id == 0) {
        dialogs.MsgBox("Wählen Sie zunächst eine Adresse aus.", {.icon = services::MsgIcon::Information}, titel);
        return;
    }
    const auto tage = Tagesfrage(dialogs, titel);
    if (!tage) return;
    const std::string datum = jet::sqlText(basic::Format(heute.day() - *tage, "dd.mm.yyyy"));
    const int reservierungen = reservierungenSetzen(db, std::to_string(id), datum);
    const int posten = postenSetzen(db, std::to_string(id), datum);
    dialogs.MsgBox(Bericht(reservierungen, posten), {.icon = services::MsgIcon::Information}, titel);
}

} // namespace addresses
