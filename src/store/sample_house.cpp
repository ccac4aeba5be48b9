#include "store/sample_house.h"

#include "platform/basic/dates.h"
#include "platform/basic/format.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"
#include "platform/jet/workspace.h"
#include "store/first_run.h"
#include "store/rows.h"
#include "store/sample_billing.h"
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

/// Night prices by room number, what the room has besides, and the word under which a block's letter sums rooms up.
struct RoomEquipment {
    double Preis;
    double Hauptsaison;
    double Zwischensaison;
    double Nebensaison;
    double Sondersaison;
    std::string_view Kategorie;
    int Zusatz1 = 0; ///< extra of the left column, 0 for none
    int Zusatz2 = 0;
};

constexpr int kBalcony = 1;
constexpr int kTerrace = 2;
constexpr int kPets = 3;

constexpr std::array<RoomEquipment, 9> kRooms = {{{55, 65, 59, 48, 72, "Einzelzimmer"},
                                                  {78, 90, 84, 68, 98, "Doppelzimmer", 0, kPets},
                                                  {89, 105, 96, 79, 115, "Doppelzimmer", kBalcony},
                                                  {52, 62, 56, 45, 68, "Einzelzimmer", 0, kPets},
                                                  {110, 129, 118, 95, 142, "Familienzimmer", kBalcony},
                                                  {92, 109, 99, 82, 119, "Doppelzimmer", kBalcony},
                                                  {58, 68, 62, 50, 75, "Einzelzimmer"},
                                                  {145, 169, 155, 129, 189, "Doppelzimmer", kTerrace},
                                                  {160, 189, 172, 139, 210, "Familienzimmer", kTerrace, kPets}}};

double nightPrice(const SampleStay& stay) { return kRooms.at(static_cast<std::size_t>(stay.Zimmernummer) - 1).Preis; }
int nightsOf(const SampleStay& stay) { return stay.Bis.dayNumber() - stay.Von.dayNumber(); }
double totalPrice(const SampleStay& stay) { return nightPrice(stay) * nightsOf(stay); }

const SampleGuest& guestOf(const SampleStay& stay) { return sampleGuests()[static_cast<std::size_t>(stay.Gast)]; }

// --- source file

Value extraOrNull(int extra) { return extra == 0 ? Value() : Value(extra); }

void equipRooms(jet::Database& database) {
    jet::Recordset rooms = database.OpenRecordset("SELECT * FROM tbZimmernummern WHERE Zimmernummer < 10 ORDER BY "
                                                  "Zimmernummer");
    for (const RoomEquipment& room : kRooms) {
        rooms.Edit();
        rooms.Fields("PreisDefault") = room.Preis;
        rooms.Fields("PreisHauptsaison") = room.Hauptsaison;
        rooms.Fields("PreisZwischensaison") = room.Zwischensaison;
        rooms.Fields("PreisNebensaison") = room.Nebensaison;
        rooms.Fields("PreisSondersaison") = room.Sondersaison;
        rooms.Fields("katBlockBuchung") = room.Kategorie;
        rooms.Fields("Zusatz1") = extraOrNull(room.Zusatz1);
        rooms.Fields("Zusatz2") = extraOrNull(room.Zusatz2);
        rooms.Update();
        rooms.MoveNext();
    }
}

void fillCategories(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbKategorie");
    for (const std::string_view word : {"Einzelzimmer", "Doppelzimmer", "Familienzimmer"})
        addRow(rows, {{"blKategorie", word}});
}

void fillBlock(jet::Database& database, const std::vector<SampleStayOnFile>& stays, Date now) {
    jet::Recordset rows = database.OpenRecordset("tbBlockbuchung");
    for (const SampleStayOnFile& entry : stays) {
        if (!entry.stay.Block) continue;
        const SampleGuest& guest = guestOf(entry.stay);
        addRow(rows, {{"IDBlockbuchung", 1},
                      {"IDBelegung", entry.ID},
                      {"WannAngelegt", now},
                      {"BlVorname", guest.FirstName},
                      {"BlNachname", guest.LastName},
                      {"Master", rows.RecordCount() == 0}});
    }
}

void fillTariffs(jet::Database& database) {
    std::set<double> prices;
    for (const RoomEquipment& room : kRooms)
        prices.insert(room.Preis);
    jet::Recordset rows = database.OpenRecordset("tblTarife");
    for (const double price : prices)
        addRow(rows, {{"Tarif", basic::Format(price, "0.00")}});
}

/// Stays with fewer guests than their room takes are drawn in a colour of their own, an amber.
void nameSixthType(jet::Database& database) {
    database.Execute("UPDATE tblParameter SET F6 = 'teilbelegt' WHERE Satz = 'Belegungsarten'");
    database.Execute("UPDATE tblParameter SET F6 = '5621503' WHERE Satz = 'Farben'");
}

void fillSourceFile(jet::Database& database, const std::vector<SampleStayOnFile>& stays, Date now) {
    jet::Transaction transaction(database, "tbZimmernummern");
    writeDefaultRooms(database);
    writeDefaultParameters(database, false);
    nameSixthType(database);
    equipRooms(database);
    fillCategories(database);
    fillTariffs(database);
    fillBlock(database, stays, now);
    transaction.Commit();
}

// --- shared file

void fillExtras(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbZusätze");
    const auto add = [&](int number, std::string_view sign, std::string_view meaning, int colour, int column) {
        addRow(rows, {{"ZusatzFeld", number},
                      {"Beschriftung", sign},
                      {"Bedeutung", meaning},
                      {"Farbe", colour},
                      {"Spalte", column}});
    };
    add(kBalcony, "B", "Balkon", 0xB9E3C6, 1);
    add(kTerrace, "T", "Terrasse", 0x9FD8F2, 1);
    add(kPets, "H", "Haustiere erlaubt", 0xE8CFAE, 2);
}

/// The day `Ende` is the first of what follows: every day of the years belongs to one season.
void addYearOfSeasons(jet::Recordset& rows, int year) {
    const auto add = [&](std::string_view name, Date start, Date end) {
        addRow(rows, {{"Saisonbezeichnung", name}, {"Start", start}, {"Ende", end}});
    };
    const auto day = [&](int dayOfMonth, int month) { return Date::fromYmd(year, month, dayOfMonth); };
    add("Nebensaison", day(7, 1), day(1, 4));
    add("Zwischensaison", day(1, 4), day(15, 6));
    add("Hauptsaison", day(15, 6), day(15, 9));
    add("Zwischensaison", day(15, 9), day(1, 11));
    add("Nebensaison", day(1, 11), day(20, 12));
    add("Sondersaison", day(20, 12), Date::fromYmd(year + 1, 1, 7));
}

// They do not move with the stays when the sample is brought up to date, so they reach far.
void fillSeasons(jet::Database& database) {
    constexpr int firstYear = 2020;
    constexpr int lastYear = 2035;
    jet::Recordset rows = database.OpenRecordset("tbSaisonzeiten");
    addRow(rows, {{"Saisonbezeichnung", "Sondersaison"},
                  {"Start", Date::fromYmd(firstYear, 1, 1)},
                  {"Ende", Date::fromYmd(firstYear, 1, 7)}});
    for (int year = firstYear; year <= lastYear; ++year)
        addYearOfSeasons(rows, year);
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
                                     {"WerErstellt", "Tresen"},
                                     {"WannErstellt", now}}));
    return ids;
}

/// The guest's last name by whole words, with a counter where he comes again. No day is part of it: the stays are moved
/// to other days.
std::string shortName(const SampleGuest& guest, std::map<std::string, int>& taken) {
    constexpr std::int64_t longest = 14;
    std::string name(guest.LastName);
    while (basic::Len(name) > longest)
        name.resize(name.find_last_of(' '));
    const int count = ++taken[name];
    return count == 1 ? name : name + " " + std::to_string(count);
}

int billingState(const SampleStay& stay) {
    switch (stay.Zustand) {
    case SampleState::Bezahlt:
    case SampleState::Berechnet:
        return 1;
    case SampleState::Gehalten:
        return 2;
    default:
        return 0;
    }
}

bool isInHouse(const SampleStay& stay) {
    return stay.Zustand == SampleState::ImHaus || stay.Zustand == SampleState::Gehalten;
}

std::string_view childrensAges(const SampleStay& stay) {
    constexpr std::array<std::string_view, 3> kAges = {"", "7", "4, 9"};
    return kAges.at(static_cast<std::size_t>(stay.Kinder));
}

/// Two to seven weeks before the arrival, and not after the day on which the sample is made.
Date dayOfBooking(const SampleStay& stay, int number, Date today) {
    const Date day = stay.Von - (14 + number * 7 % 35);
    return std::min(day, today);
}

std::int64_t addStay(jet::Recordset& rows, const SampleStay& stay, std::int64_t guest, const std::string& kürzel,
                     Date now) {
    constexpr std::array<std::string_view, 3> kStaff = {"Meier", "Schulze", "Tresen"};
    const int number = rows.RecordCount() + 1;
    return addCountedRow(rows, "ID",
                         {{"Zimmernummer", stay.Zimmernummer},
                          {"Von", stay.Von},
                          {"Bis", stay.Bis},
                          {"GastID", guest},
                          {"Kürzel", kürzel},
                          {"Belegungsart", stay.Belegungsart},
                          {"Gelöscht", stay.Zustand == SampleState::Warteschlange},
                          {"Checked", isInHouse(stay)},
                          {"AnzahlGäste", stay.Gäste},
                          {"Anz_Kinder", stay.Kinder},
                          {"Alter_Kinder", childrensAges(stay)},
                          {"AnzahlÜbernachtungen", nightsOf(stay)},
                          {"PreisProNacht", nightPrice(stay)},
                          {"Preis", totalPrice(stay)},
                          {"Zahlart", paymentKind(stay)},
                          {"Frühstück", hasBreakfast(stay)},
                          {"Abendessen", hasDinner(stay)},
                          {"BelegNummer", number},
                          {"BelegNummer_eigen", " " + basic::Format(number, "0000") + " "},
                          {"Abgerechnet", billingState(stay)},
                          {"Wäsche1", 6},
                          {"Wäsche2", 3},
                          {"WerErstellt", kStaff.at(static_cast<std::size_t>(number) % kStaff.size())},
                          {"WannErstellt", dayOfBooking(stay, number, now.day())}});
}

std::vector<SampleStayOnFile> fillStays(jet::Database& database, const std::vector<std::int64_t>& guests, Date now) {
    jet::Recordset rows = database.OpenRecordset("tblBelegung");
    std::map<std::string, int> taken;
    std::vector<SampleStayOnFile> result;
    for (const SampleStay& stay : sampleStays(now.day())) {
        const std::int64_t guest = guests.at(static_cast<std::size_t>(stay.Gast));
        const std::string kürzel = shortName(guestOf(stay), taken);
        result.push_back({stay, addStay(rows, stay, guest, kürzel, now), guest, totalPrice(stay)});
    }
    return result;
}

std::vector<SampleStayOnFile> fillSharedFile(jet::Database& database, Date now) {
    jet::Transaction transaction(database, "tblBelegung");
    writeDefaultTexts(database);
    writeDefaultTypes(database);
    database.Execute("UPDATE tbBelegArten SET BelegungsArt = 'teilbelegt' WHERE BelegungsID = 5");
    fillExtras(database);
    fillSeasons(database);
    const std::vector<std::int64_t> guests = fillGuests(database, now);
    std::vector<SampleStayOnFile> stays = fillStays(database, guests, now);
    fillSampleBilling(database, stays, now.day());
    transaction.Commit();
    return stays;
}

} // namespace

void fillSampleHouse(jet::Database& database, Date now) {
    const std::vector<SampleStayOnFile> stays = fillSharedFile(database, now);
    fillSourceFile(database, stays, now);
}

} // namespace store
