#include "store/sample_house.h"

#include "platform/basic/dates.h"
#include "platform/basic/format.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"
#include "platform/jet/workspace.h"
#include "store/first_run.h"
#include "store/rows.h"
#include "store/sample_guests.h"
#include "store/sample_stays.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace store {

namespace {

using basic::Date;
using basic::Value;

constexpr std::string_view kUser = "Beispiel";
constexpr double kTaxRate = 7;

/// Night prices by room number: default, high season, low season; the others stay unset.
struct RoomPrices {
    double Preis;
    double Hauptsaison;
    double Nebensaison;
};
constexpr std::array<RoomPrices, 9> kPrices = {{{55, 65, 48},
                                                {78, 90, 68},
                                                {89, 105, 79},
                                                {52, 62, 45},
                                                {110, 129, 95},
                                                {92, 109, 82},
                                                {58, 68, 50},
                                                {145, 169, 129},
                                                {160, 189, 139}}};

double nightPrice(const SampleStay& stay) { return kPrices.at(static_cast<std::size_t>(stay.Zimmernummer) - 1).Preis; }
double totalPrice(const SampleStay& stay) { return nightPrice(stay) * stay.Nächte; }

/// A stay with the numbers that it got.
struct StayOnFile {
    SampleStay stay;
    std::int64_t ID;
    std::int64_t GastID;
};

bool isBilled(const SampleStay& stay) {
    return stay.Zustand == SampleState::Bezahlt || stay.Zustand == SampleState::Berechnet;
}
bool isInHouse(const SampleStay& stay) {
    return stay.Zustand == SampleState::ImHaus || stay.Zustand == SampleState::Gehalten;
}

// --- source file

void priceRooms(jet::Database& database) {
    jet::Recordset rooms = database.OpenRecordset("SELECT * FROM tbZimmernummern WHERE Zimmernummer < 10 ORDER BY "
                                                  "Zimmernummer");
    for (const RoomPrices& prices : kPrices) {
        rooms.Edit();
        rooms.Fields("PreisDefault") = prices.Preis;
        rooms.Fields("PreisHauptsaison") = prices.Hauptsaison;
        rooms.Fields("PreisNebensaison") = prices.Nebensaison;
        rooms.Update();
        rooms.MoveNext();
    }
}

void fillBlock(jet::Database& database, const std::vector<StayOnFile>& stays, Date now) {
    jet::Recordset rows = database.OpenRecordset("tbBlockbuchung");
    for (const StayOnFile& entry : stays) {
        if (!entry.stay.Block) continue;
        const SampleGuest& guest = sampleGuests()[static_cast<std::size_t>(entry.stay.Gast)];
        addRow(rows, {{"IDBlockbuchung", 1},
                      {"IDBelegung", entry.ID},
                      {"WannAngelegt", now},
                      {"BlVorname", guest.FirstName},
                      {"BlNachname", guest.LastName},
                      {"Master", rows.RecordCount() == 0}});
    }
}

void fillTariffs(jet::Database& database) {
    std::set<std::int64_t> prices;
    for (const RoomPrices& room : kPrices)
        prices.insert(static_cast<std::int64_t>(room.Preis));
    jet::Recordset rows = database.OpenRecordset("tblTarife");
    for (const std::int64_t price : prices)
        addRow(rows, {{"Tarif", basic::Format(price, "0.00")}});
}

void fillSourceFile(jet::Database& database, const std::vector<StayOnFile>& stays, Date now) {
    jet::Transaction transaction(database, "tbZimmernummern");
    writeDefaultRooms(database);
    writeDefaultParameters(database, false);
    priceRooms(database);
    fillTariffs(database);
    fillBlock(database, stays, now);
    transaction.Commit();
}

// --- shared file

void fillSeasons(jet::Database& database, Date today) {
    const int year = basic::partsOf(today).year;
    jet::Recordset rows = database.OpenRecordset("tbSaisonzeiten");
    for (int season = year - 1; season <= year + 1; ++season) {
        addRow(rows, {{"Saisonbezeichnung", "Hauptsaison"},
                      {"Start", Date::fromYmd(season, 6, 15)},
                      {"Ende", Date::fromYmd(season, 9, 15)}});
        addRow(rows, {{"Saisonbezeichnung", "Nebensaison"},
                      {"Start", Date::fromYmd(season, 11, 1)},
                      {"Ende", Date::fromYmd(season, 12, 20)}});
    }
}

void fillTaxRatesAndArticles(jet::Database& database) {
    jet::Recordset rates = database.OpenRecordset("tbSteuerschluessel");
    const std::int64_t standard =
        addCountedRow(rates, "IDSteuerschluessel", {{"Steuersatz", kTaxRate}, {"Standard", true}});
    const std::int64_t full = addCountedRow(rates, "IDSteuerschluessel", {{"Steuersatz", 19}, {"Standard", false}});
    jet::Recordset articles = database.OpenRecordset("tbArtKategorie");
    addRow(
        articles,
        {{"ArtKategorie", "Frühstück"}, {"Preis", 9.5}, {"MWST_SL", full}, {"IstStandard", 1}, {"istVerpflegung", 1}});
    addRow(
        articles,
        {{"ArtKategorie", "Getränke"}, {"Preis", 3.2}, {"MWST_SL", full}, {"IstStandard", 0}, {"istVerpflegung", 0}});
    addRow(
        articles,
        {{"ArtKategorie", "Kurtaxe"}, {"Preis", 2}, {"MWST_SL", standard}, {"IstStandard", 0}, {"istVerpflegung", 0}});
}

std::map<std::string, Value> numbersByName(jet::Database& database, std::string_view table, std::string_view number,
                                           std::string_view name) {
    std::map<std::string, Value> result;
    for (jet::Recordset rows = database.OpenRecordset(table); !rows.Eof(); rows.MoveNext())
        result[rows.Fields(name).Value().textOr()] = rows.Fields(number).Value();
    return result;
}

std::vector<std::int64_t> fillGuests(jet::Database& database, Date now) {
    auto countries = numbersByName(database, "tbLänder", "ID", "Länder");
    auto salutations = numbersByName(database, "tbAnreden", "IDAnrede", "Anrede");
    jet::Recordset rows = database.OpenRecordset("Address");
    std::vector<std::int64_t> ids;
    for (const SampleGuest& guest : sampleGuests())
        ids.push_back(addCountedRow(rows, "ID",
                                    {{"IDAnrede", salutations[std::string(guest.Anrede)]},
                                     {"AdressNummer", basic::Format(ids.size() + 1, "0000")},
                                     {"FirstName", guest.FirstName},
                                     {"LastName", guest.LastName},
                                     {"Address", guest.Address},
                                     {"PostalCode", guest.PostalCode},
                                     {"City", guest.City},
                                     {"Country", guest.Country},
                                     {"IDLand", countries[std::string(guest.Country)]},
                                     {"Phone", guest.Phone},
                                     {"OwnerID", 0},
                                     {"WerErstellt", kUser},
                                     {"WannErstellt", now}}));
    return ids;
}

/// The short name that the reservation form proposes: six letters, arrival and departure, a counter where it is taken.
std::string shortName(const SampleGuest& guest, Date von, Date bis, std::set<std::string>& taken) {
    const std::string stem =
        basic::Left(guest.LastName, 6) + basic::Format(von, "dd_mm") + "-" + basic::Format(bis, "dd_mm");
    std::string name = stem;
    for (int counter = 1; !taken.insert(name).second; ++counter)
        name = stem + "/" + std::to_string(counter);
    return name;
}

int billingState(const SampleStay& stay) {
    if (isBilled(stay)) return 1;
    return stay.Zustand == SampleState::Gehalten ? 2 : 0;
}

std::int64_t addStay(jet::Recordset& rows, const SampleStay& stay, std::int64_t guest, const std::string& kürzel,
                     Date now) {
    const Date von = now.day() + stay.Ankunft;
    const int number = rows.RecordCount() + 1;
    return addCountedRow(rows, "ID",
                         {{"Zimmernummer", stay.Zimmernummer},
                          {"Von", von},
                          {"Bis", von + stay.Nächte},
                          {"GastID", guest},
                          {"Kürzel", kürzel},
                          {"Belegungsart", stay.Belegungsart},
                          {"Gelöscht", stay.Zustand == SampleState::Warteschlange},
                          {"Checked", isInHouse(stay)},
                          {"AnzahlGäste", stay.Gäste},
                          {"Anz_Kinder", stay.Kinder},
                          {"AnzahlÜbernachtungen", stay.Nächte},
                          {"PreisProNacht", nightPrice(stay)},
                          {"Preis", totalPrice(stay)},
                          {"Frühstück", true},
                          {"BelegNummer", number},
                          {"BelegNummer_eigen", " " + basic::Format(number, "0000") + " "},
                          {"Abgerechnet", billingState(stay)},
                          {"Wäsche1", 6},
                          {"Wäsche2", 3},
                          {"WerErstellt", kUser},
                          {"WannErstellt", now - 60 + std::min(0, stay.Ankunft)}});
}

std::vector<StayOnFile> fillStays(jet::Database& database, const std::vector<std::int64_t>& guests, Date now) {
    jet::Recordset rows = database.OpenRecordset("tblBelegung");
    std::set<std::string> taken;
    std::vector<StayOnFile> result;
    for (const SampleStay& stay : sampleStays()) {
        const auto guest = static_cast<std::size_t>(stay.Gast);
        const Date von = now.day() + stay.Ankunft;
        const std::string kürzel = shortName(sampleGuests()[guest], von, von + stay.Nächte, taken);
        result.push_back({stay, addStay(rows, stay, guests.at(guest), kürzel, now), guests.at(guest)});
    }
    return result;
}

void addInvoice(jet::Recordset& documents, int number, const StayOnFile& entry, Date date) {
    const double total = totalPrice(entry.stay);
    addRow(documents, {{"ReNummer", number},
                       {"Renummer_eigen", "R " + basic::Format(number, "0000") + " "},
                       {"ReZaehler", number},
                       {"IST_Rechnung", "R"},
                       {"IDAdresseRe", entry.GastID},
                       {"DatumRe", date},
                       {"Zahlart", "Bar"},
                       {"BetragBrutto", total},
                       {"BetragMWST", total - total / (kTaxRate + 100) * 100},
                       {"Anzahlung", "N"},
                       {"Anz_Vor_Reise", "N"}});
}

void fillInvoices(jet::Database& database, const std::vector<StayOnFile>& stays, Date today) {
    jet::Recordset documents = database.OpenRecordset("tbRechnungen");
    jet::Recordset links = database.OpenRecordset("tbRechnungen_zu_Posten");
    jet::Recordset payments = database.OpenRecordset("tbZahlung");
    int number = 0;
    for (const StayOnFile& entry : stays) {
        if (!isBilled(entry.stay)) continue;
        const Date departure = today + (entry.stay.Ankunft + entry.stay.Nächte);
        addInvoice(documents, ++number, entry, departure);
        addRow(links, {{"IDRechnung", number}, {"IDPostenRe", 0}, {"IDBelegung", entry.ID}, {"Reihenfolge", number}});
        if (entry.stay.Zustand == SampleState::Bezahlt)
            addRow(payments, {{"IdBelegung", entry.ID},
                              {"IdRechnung", number},
                              {"ZahlDatum", departure},
                              {"Betrag", totalPrice(entry.stay)},
                              {"Zahlart", "Bar"},
                              {"WasBezahlt", "Gesamtzahlung"}});
    }
}

std::vector<StayOnFile> fillSharedFile(jet::Database& database, Date now) {
    jet::Transaction transaction(database, "tblBelegung");
    writeDefaultTexts(database);
    writeDefaultTypes(database);
    fillSeasons(database, now.day());
    fillTaxRatesAndArticles(database);
    const std::vector<std::int64_t> guests = fillGuests(database, now);
    std::vector<StayOnFile> stays = fillStays(database, guests, now);
    fillInvoices(database, stays, now.day());
    transaction.Commit();
    return stays;
}

} // namespace

void fillSampleHouse(jet::Database& database, Date now) {
    const std::vector<StayOnFile> stays = fillSharedFile(database, now);
    fillSourceFile(database, stays, now);
}

} // namespace store
