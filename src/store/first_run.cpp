#include "store/first_run.h"

#include "platform/basic/convert.h"
#include "platform/basic/text.h"
#include "store/rows.h"

#include <array>
#include <initializer_list>
#include <span>
#include <string>

namespace store {

namespace {

struct DefaultRoom {
    int Zimmernummer;
    std::string_view NeueNummer;
    std::string_view Bemerkungen;
    int AnzahlGäste;
};

constexpr std::array<DefaultRoom, 10> kRooms = {{
    {6, "202", "Doppelzimmer mit Bad", 2},
    {7, "203", "Einzelzimmer mit WC", 1},
    {10, "Vorläufig", "nimmt alle Reservierungen auf, die noch nicht sicher sind.", 0},
    {9, "301", "Appartement mit Bad", 4},
    {8, "204", "Hochzeitssuite", 2},
    {1, "101", "Einzelzimmer mit Bad", 1},
    {2, "102", "Doppelzimmer ohne Bad", 2},
    {3, "103", "Doppelzimmer mit Duche und WC", 2},
    {4, "104", "Einzelzimmer", 1},
    {5, "201", "Dreibettzimmer mit Dusche", 3},
}};

struct DefaultText {
    std::string_view Textbaustein;
    std::string_view Inhalt;
};

constexpr std::array<DefaultText, 19> kTexts = {{
    {"Absender1", "Hotel und Restaurant"},
    {"Absender2", "Zum Burggraben"},
    {"Absender3", "Am Schloss 1"},
    {"Absender4", "0421 449988"},
    {"Absender5", "Hamburg - Altona"},
    {"Grußformel", "Mit freundlichen Grüßen"},
    {"Brieftext", "Wir wünschen Ihnen eine angenehme Heimreise."},
    {"Betreff", "Zimmerreservierung"},
    {"Adresse", "An"},
    {"Anrede", "Sehr geehrte(r) Frau/Herr"},
    {"PLZ", "22765"},
    {"Telefon", "0421 449988"},
    {"FAX", "0421 449989"},
    {"EMAIL", "info@zum-burggraben.example"},
    {"Internet", "www.zum-burggraben.example"},
    {"Bank", "Sparkasse am Burggraben"},
    {"Steuernummer", "00/000/00000"},
    {"DruckAnzahl", "2"},
    {"WordProgramm", "Ja"},
}};

constexpr std::array<std::string_view, 9> kTypes = {"Frei", "Meier", "Schulze", "Tresen", "Angebot", "", "", "", ""};

constexpr std::array<std::string_view, 23> kColumnCaptions = {"&Checked in",
                                                              "Vorname",
                                                              "Nachname",
                                                              "Name 2",
                                                              "Straße",
                                                              "Ort",
                                                              "Land",
                                                              "E-Mail",
                                                              "Telefon",
                                                              "FAX",
                                                              "Personen",
                                                              "Von",
                                                              "Bis",
                                                              "Zimmer",
                                                              "Zusatzspalte 1",
                                                              "Zusatzspalte 2",
                                                              "Bemerkungen",
                                                              "Abkürzung",
                                                              "Einzelpreis",
                                                              "Gesamtpreis",
                                                              "Anzahl der Tage",
                                                              "Vorläufige Reservierung",
                                                              "ID"};

void addRecord(jet::Recordset& rows, std::string_view record, std::span<const std::string_view> values) {
    rows.AddNew();
    rows.Fields("Satz") = record;
    int field = 0;
    for (const std::string_view value : values)
        rows.Fields("F" + std::to_string(++field)) = value;
    rows.Update();
}

void addRecord(jet::Recordset& rows, std::string_view record, std::initializer_list<std::string_view> values) {
    addRecord(rows, record, std::span(values.begin(), values.size()));
}

bool isRoomsRecord(jet::Recordset& rows) {
    return basic::equalText(rows.Fields("Satz").Value().textOr(), "Räumlichkeiten");
}

/// Deletes all records but the one of the rooms. Gives the number of rooms that it holds, empty where that is none.
std::string clearRecords(jet::Recordset& rows) {
    std::string rooms;
    for (; !rows.Eof(); rows.MoveNext()) {
        const basic::Value& number = rows.Fields("F1").Value();
        if (!isRoomsRecord(rows))
            rows.Delete();
        else if (!number.isNull() && basic::Val(number) != 0)
            rooms = number.textOr();
    }
    return rooms;
}

void writeRooms(jet::Database& database, const std::string& rooms) {
    jet::Recordset record = database.OpenRecordset("SELECT * FROM tblParameter WHERE Satz = 'Räumlichkeiten'");
    if (record.Eof()) return addRecord(record, "Räumlichkeiten", {rooms});
    record.Edit();
    record.Fields("F1") = rooms;
    record.Update();
}

void writePlanRecords(jet::Database& database, jet::Recordset& rows, const std::string& rooms) {
    addRecord(rows, "Belegungsarten", {"frei", "Meier", "Schulze", "Tresen", "Angebot"});
    addRecord(rows, "Beschriftungen", {"Reserviert von:", "Zimmer"});
    addRecord(rows, "Farben", {"9399613", "16742405", "16762112", "16773888", "16056285"});
    writeRooms(database, rooms);
    addRecord(rows, "SpaltenBeschriftung", defaultColumnCaptions());
    addRecord(rows, "Spaltenbreiten",
              {"900",  "1200", "1500", "1200", "1500", "1300", "1100", "1500", "1300", "1300", "800", "1000",
               "1000", "900",  "1000", "1000", "2000", "1500", "1000", "1100", "900",  "900",  "600"});
    addRecord(rows, "ZeitDarstellung", {"35", "2"});
    addRecord(rows, "ZimVonBis", {"1", "10"});
}

void addCurrency(jet::Database& database) {
    jet::Recordset currency = database.OpenRecordset("SELECT tblParameter.Satz, tblParameter.F1   From tblParameter "
                                                     "WHERE (((tblParameter.Satz)='Währung'));");
    if (currency.Eof()) addRow(currency, {{"Satz", "Währung"}, {"F1", "€"}});
}

void emptyTable(jet::Database& database, std::string_view table) {
    jet::Recordset rows = database.OpenRecordset(table);
    deleteAll(rows);
}

} // namespace

std::span<const std::string_view> defaultColumnCaptions() { return kColumnCaptions; }

void writeDefaultRooms(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbZimmernummern");
    deleteAll(rows);
    for (const DefaultRoom& room : kRooms)
        addRow(rows, {{"Zimmernummer", room.Zimmernummer},
                      {"NeueNummer", room.NeueNummer},
                      {"Bemerkungen", room.Bemerkungen},
                      {"AnzahlGästeDefault", room.AnzahlGäste}});
}

void writeDefaultTexts(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tblTexte");
    deleteAll(rows);
    for (const DefaultText& text : kTexts)
        addRow(rows, {{"Textbaustein", text.Textbaustein}, {"Inhalt", text.Inhalt}});
}

void writeDefaultTypes(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbBelegArten");
    deleteAll(rows);
    for (std::size_t type = 0; type < kTypes.size(); ++type)
        addRow(rows, {{"BelegungsID", type}, {"BelegungsArt", kTypes.at(type)}});
}

void writeDefaultParameters(jet::Database& database, bool keepRooms) {
    jet::Recordset rows = database.OpenRecordset("tblParameter");
    const std::string rooms = clearRecords(rows);
    writePlanRecords(database, rows, keepRooms && !rooms.empty() ? rooms : "9");
    addCurrency(database);
}

void writeDefaults(jet::Database& database, bool keepRooms) {
    emptyTable(database, "tbZusätze");
    writeDefaultRooms(database);
    writeDefaultTexts(database);
    writeDefaultTypes(database);
    writeDefaultParameters(database, keepRooms);
}

} // namespace store
