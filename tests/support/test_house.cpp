#include "support/test_house.h"

#include "store/database_files.h"
#include "store/first_run.h"
#include "store/new_house.h"
#include "store/rows.h"

namespace support {

namespace {

jet::Database createAndOpen(const jet::Workspace& workspace, const TempFolder& folder, Date now,
                            TestHouse::Content content) {
    store::NewHouse house;
    house.Ordner = folder.path().string();
    house.Jetzt = now;
    house.mitBeispiel = content == TestHouse::Content::Sample;
    house.beispieldatei = false;
    house.postleitzahlen = false;
    store::createHouse(workspace, house);
    return workspace.OpenDatabase(folder.file("Lokal.mdb"), false, false, store::openConnect());
}

Value textOrNull(const std::string& text) { return text.empty() ? Value() : Value(text); }

} // namespace

TestHouse::TestHouse(Content content)
    : clock_(Date::fromYmdHms(2026, 6, 15, 10, 30, 0)), workspace_(clock_),
      database_(createAndOpen(workspace_, folder_, clock_.now(), content)) {
    if (content == Content::Sample) return;
    jet::Transaction transaction(database_, "tbBelegArten");
    store::writeDefaultTypes(database_);
    transaction.Commit();
}

jet::Database TestHouse::open(std::string_view name) const {
    return workspace_.OpenDatabase(file(name), false, false, store::openConnect());
}

void TestHouse::room(const Room& room) {
    jet::Recordset rows = database_.OpenRecordset("SELECT * FROM tbZimmernummern WHERE Zimmernummer = 0");
    store::addRow(rows, {{"Zimmernummer", room.Zimmernummer},
                         {"NeueNummer", room.NeueNummer.empty() ? std::to_string(room.Zimmernummer) : room.NeueNummer},
                         {"Bemerkungen", room.Bemerkungen},
                         {"AnzahlGästeDefault", room.AnzahlGästeDefault},
                         {"PreisDefault", room.PreisDefault},
                         {"PreisHauptsaison", room.PreisHauptsaison},
                         {"PreisZwischensaison", room.PreisZwischensaison},
                         {"PreisNebensaison", room.PreisNebensaison},
                         {"PreisSondersaison", room.PreisSondersaison},
                         {"katBlockBuchung", textOrNull(room.katBlockBuchung)}});
}

void TestHouse::rooms(int count) {
    for (int number = 1; number <= count; ++number)
        room({.Zimmernummer = number, .NeueNummer = "Zimmer " + std::to_string(number)});
    room({.Zimmernummer = count + 1, .NeueNummer = "Vorläufig", .AnzahlGästeDefault = 0});
    parameter("Räumlichkeiten", {std::to_string(count)});
}

std::int64_t TestHouse::guest(const Guest& guest) {
    jet::Recordset rows = database_.OpenRecordset("SELECT * FROM Address WHERE ID = 0");
    return store::addCountedRow(rows, "ID",
                                {{"LastName", guest.LastName},
                                 {"FirstName", textOrNull(guest.FirstName)},
                                 {"City", textOrNull(guest.City)},
                                 {"PostalCode", textOrNull(guest.PostalCode)},
                                 {"Address", textOrNull(guest.Address)},
                                 {"Country", textOrNull(guest.Country)}});
}

std::int64_t TestHouse::stay(const Stay& stay) {
    if (stay.GastID == 0 && standingGuest_ == 0) standingGuest_ = guest({});
    const int nights = stay.Bis.dayNumber() - stay.Von.dayNumber();
    jet::Recordset rows = database_.OpenRecordset("SELECT * FROM tblBelegung WHERE ID = 0");
    return store::addCountedRow(rows, "ID",
                                {{"Zimmernummer", stay.Zimmernummer},
                                 {"Von", stay.Von},
                                 {"Bis", stay.Bis},
                                 {"GastID", stay.GastID == 0 ? standingGuest_ : stay.GastID},
                                 {"Kürzel", stay.Kürzel.empty() ? "Gast" + std::to_string(++shortNames_) : stay.Kürzel},
                                 {"Belegungsart", stay.Belegungsart},
                                 {"Gelöscht", stay.Gelöscht},
                                 {"Checked", stay.Checked},
                                 {"AnzahlGäste", stay.AnzahlGäste},
                                 {"Anz_Kinder", stay.Anz_Kinder},
                                 {"AnzahlÜbernachtungen", nights},
                                 {"PreisProNacht", stay.PreisProNacht},
                                 {"Preis", stay.Preis.isNull() ? Value(stay.PreisProNacht * nights) : stay.Preis},
                                 {"Abgerechnet", stay.Abgerechnet},
                                 {"IDAdressRechnung", stay.IDAdressRechnung},
                                 {"Info", stay.Info}});
}

void TestHouse::season(const Season& season) {
    jet::Recordset rows = database_.OpenRecordset("tbSaisonzeiten");
    store::addRow(rows,
                  {{"Saisonbezeichnung", season.Saisonbezeichnung}, {"Start", season.Start}, {"Ende", season.Ende}});
}

void TestHouse::parameter(std::string_view satz, std::initializer_list<std::string_view> fields) {
    jet::Recordset rows = database_.OpenRecordset("SELECT * FROM tblParameter WHERE Satz = " + jet::sqlText(satz));
    if (rows.Eof()) {
        rows.AddNew();
        rows.Fields("Satz") = satz;
    } else
        rows.Edit();
    int number = 0;
    for (const std::string_view field : fields)
        rows.Fields("F" + std::to_string(++number)) = field;
    rows.Update();
}

Value TestHouse::value(std::string_view sql) {
    const jet::Recordset rows = database_.OpenRecordset(sql);
    return rows.Eof() ? Value() : rows.At(0);
}

std::int64_t TestHouse::count(std::string_view table) {
    return value("SELECT Count(*) FROM " + std::string(table)).longOr();
}

} // namespace support
