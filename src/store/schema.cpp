#include "store/schema.h"

#include "platform/jet/sql_name.h"

#include <algorithm>
#include <initializer_list>
#include <string>

namespace store {

namespace {

using jet::FieldDef;
using jet::FieldType;
using jet::IndexDef;
using jet::TableDef;

// Widths that no statement fixes: wide enough for what people type.
constexpr int kName = 80;
constexpr int kText = 255;

FieldDef field(std::string_view name, FieldType type, int size = 0) {
    FieldDef result = jet::CreateField(std::string(name), type, size);
    result.AllowZeroLength = type == FieldType::Text || type == FieldType::Memo;
    return result;
}

FieldDef counter(std::string_view name) {
    FieldDef result = field(name, FieldType::Long);
    result.Counter = true;
    return result;
}

FieldDef yesNo(std::string_view name) { return field(name, FieldType::Boolean); }
FieldDef integer(std::string_view name) { return field(name, FieldType::Integer); }
FieldDef lng(std::string_view name) { return field(name, FieldType::Long); }
FieldDef dbl(std::string_view name) { return field(name, FieldType::Double); }
FieldDef date(std::string_view name) { return field(name, FieldType::Date); }
FieldDef text(std::string_view name, int size) { return field(name, FieldType::Text, size); }
FieldDef memo(std::string_view name) { return field(name, FieldType::Memo); }

IndexDef index(std::initializer_list<std::string_view> fields) {
    IndexDef result;
    for (const std::string_view name : fields) {
        result.Name += result.Name.empty() ? "" : "_";
        result.Name += name;
        result.Fields.emplace_back(name);
    }
    return result;
}

IndexDef key(std::string_view name) {
    IndexDef result;
    result.Name = "PrimaryKey";
    result.Fields.emplace_back(name);
    result.Unique = true;
    result.Primary = true;
    return result;
}

/// An index over the rows of a YESNO field that are True.
IndexDef onlyWhere(std::string_view name) {
    IndexDef result = index({name});
    result.Where = std::string(name) + " = True";
    return result;
}

TableDef table(std::string_view name, std::vector<FieldDef> fields, std::vector<IndexDef> indexes = {}) {
    TableDef result;
    result.Name = name;
    result.Fields = std::move(fields);
    result.Indexes = std::move(indexes);
    return result;
}

// No index on the stays begins with Von: the plan's query must take (Bis), for past stays outnumber those to come.
std::vector<IndexDef> stayIndexes() {
    return {key("ID"),
            index({"Bis"}),
            index({"Zimmernummer", "Gelöscht", "Von", "Bis"}),
            index({"GastID"}),
            index({"IDAdressRechnung"}),
            index({"Kürzel"}),
            index({"BelegNummer", "BelegNummer_eigen"}),
            onlyWhere("Gelöscht")};
}

TableDef stays() {
    return table("tblBelegung",
                 {counter("ID"),
                  integer("Zimmernummer"),
                  date("Von"),
                  date("Bis"),
                  lng("GastID"),
                  lng("IDAdressRechnung"),
                  text("Kürzel", kName),
                  memo("Info"),
                  integer("Belegungsart"),
                  yesNo("Gelöscht"),
                  yesNo("Checked"),
                  integer("AnzahlGäste"),
                  integer("Anz_Kinder"),
                  text("Alter_Kinder", kText),
                  integer("AnzahlÜbernachtungen"),
                  dbl("PreisProNacht"),
                  dbl("Preis"),
                  yesNo("Fix"),
                  yesNo("Mittag"),
                  yesNo("Abendessen"),
                  yesNo("VerpflegungAusweisen"),
                  lng("BelegNummer"),
                  text("BelegNummer_eigen", kName),
                  integer("Abgerechnet"),
                  text("IST_Geteilt", 1),
                  memo("Re_text"),
                  text("Abg_Temp", 10),
                  text("WerErstellt", kName),
                  date("WannErstellt"),
                  text("WerGeändert", kName),
                  date("WannGeändert"),
                  integer("Wäsche1"),
                  integer("Wäsche2"),
                  yesNo("Frühstück"),
                  text("Zahlart", 50)},
                 stayIndexes());
}

TableDef furtherGuests() {
    return table("WeitereGäste",
                 {counter("ID_Gast"), lng("ID_Belegung"), lng("ID_Adresse"), text("Anrede", kName),
                  text("Vorname", kName), text("Name", kName), text("Strasse", kText), text("PLZ", 20),
                  text("Ort", kName), text("Land", kName)},
                 {key("ID_Gast"), index({"ID_Belegung"}), index({"ID_Adresse"})});
}

TableDef addresses() {
    return table("Address",
                 {counter("ID"),
                  lng("IDKlasse"),
                  lng("IDKategorie"),
                  lng("IDBewertung"),
                  lng("IDStatus"),
                  lng("IDAnrede"),
                  text("Anrede", kName),
                  text("Matchcode", kName),
                  text("AdressNummer", kName),
                  text("AdressNr", kName), // the overview searches this one beside the number shown
                  text("FirstName", kName),
                  text("LastName", kName),
                  text("CompanyName", kText),
                  text("Address", kText),
                  text("Postfach", kName),
                  text("PLZPostfach", 20),
                  text("PostalCode", 20),
                  text("City", kName),
                  text("Region", kName),
                  text("Country", kName),
                  lng("IDLand"),
                  text("Phone", kName),
                  text("Tele-Fax", kName),
                  text("Handy", kName),
                  text("TelGeschäft", kName),
                  text("FaxGeschäft", kName),
                  text("HandyGeschäft", kName),
                  text("EMailGeschäft", kText),
                  text("EMAIL", kText),
                  text("Internet", kText),
                  date("Geburtstag"),
                  text("Beruf", kName),
                  text("Branche", kName),
                  text("Raucher", 20),
                  lng("IDKreditkarte"),
                  text("KKNummer", kName),
                  text("KKGültigBis", 20),
                  text("BenutztVon1", kName),
                  text("BenutztVon2", kName),
                  text("BenutztVon3", kName),
                  text("BenutztVon4", kName),
                  text("BenutztVon5", kName),
                  text("Herkunft1", kName),
                  text("Herkunft2", kName),
                  text("Herkunft3", kName),
                  text("Herkunft4", kName),
                  text("Herkunft5", kName),
                  lng("IDÜberAdresse"),
                  yesNo("GelöschtAdr"),
                  yesNo("NeuAngelegt"),
                  lng("OwnerID"),
                  text("Hilfsfeld", kText),
                  memo("Data"),
                  text("WerErstellt", kName),
                  date("WannErstellt"),
                  text("WerGeändert", kName),
                  date("WannGeändert"),
                  memo("BemerkAdr")},
                 {key("ID"), index({"LastName"})});
}

TableDef posts() {
    return table("tbRePosten",
                 {counter("IDRePosten"), lng("IDBelegung"), lng("IDAdressePo"), text("ArtikelPo", kText),
                  lng("IDArtikel"), dbl("MengePo"), dbl("PreisPo"), lng("IDSteuerschlüssel"), date("DatumPo"),
                  date("DatumPoBis"), yesNo("KeinDatum"), text("BemerkungPo", kText), text("AbgerechnetPo", 10),
                  integer("AnzGästePo"), text("IST_Belegung", 10), integer("IstVerpflegung")},
                 {key("IDRePosten"), index({"IDBelegung"}), index({"IDAdressePo"})});
}

TableDef documents() {
    return table("tbRechnungen",
                 {lng("ReNummer"), text("Renummer_eigen", kName), lng("ReZaehler"), lng("Beszaehler"),
                  text("IST_Rechnung", 10), lng("IDAdresseRe"), date("DatumRe"), date("BezahltDatumRe"),
                  text("Zahlart", 50), dbl("BetragBrutto"), dbl("BetragMWST"), dbl("Rabatt_Proz"), dbl("Rabatt_Betrag"),
                  dbl("Skonto_Proz"), text("Rabatt_Bezeichnung", kText), text("Anzahlung", 10),
                  text("Anz_Vor_Reise", 10), memo("RE_TEXT1"), memo("RE_TEXT2")},
                 {key("ReNummer"), index({"IDAdresseRe"}), index({"Renummer_eigen"})});
}

TableDef documentRows() {
    return table("tbRechnungen_zu_Posten",
                 {lng("IDRechnung"), lng("IDPostenRe"), lng("IDBelegung"), lng("Reihenfolge")},
                 {index({"IDRechnung"}), index({"IDPostenRe"}), index({"IDBelegung"}), index({"Reihenfolge"})});
}

TableDef payments() {
    return table("tbZahlung",
                 {counter("IDZahlung"), lng("IdBelegung"), lng("IdRechnung"), date("ZahlDatum"), dbl("Betrag"),
                  text("Zahlart", 50), text("WasBezahlt", kName), text("Zahlung_Bem", kText)},
                 {key("IDZahlung"), index({"IdBelegung"}), index({"IdRechnung"})});
}

TableDef articles() {
    // IstStandard is 0 or 1: statements ask for 1, and sort it downwards to have the standard article first.
    return table("tbArtKategorie",
                 {counter("IDArtKategorie"), text("ArtKategorie", kText), text("Bem_ArtKategorie", kText), dbl("Preis"),
                  lng("MWST_SL"), integer("IstStandard"), integer("istVerpflegung"), yesNo("KeinDatum")},
                 {key("IDArtKategorie")});
}

TableDef taxRates() {
    // A counter that also takes given numbers: the standard rate is inserted without one.
    return table("tbSteuerschluessel",
                 {counter("IDSteuerschluessel"), dbl("Steuersatz"), date("GUeltigseit"), date("GUeltigBis"),
                  yesNo("Standard"), date("StandardGueltigBis"), lng("IDNachfolger")},
                 {key("IDSteuerschluessel")});
}

TableDef seasons() {
    return table("tbSaisonzeiten",
                 {counter("idSaisonzeiten"), text("Saisonbezeichnung", kName), date("Start"), date("Ende")},
                 {key("idSaisonzeiten")});
}

TableDef occupancyTypes() {
    return table("tbBelegArten", {integer("BelegungsID"), text("BelegungsArt", kName)}, {key("BelegungsID")});
}

TableDef extras() {
    return table(
        "tbZusätze",
        {counter("ZusatzFeld"), text("Beschriftung", kName), text("Bedeutung", kText), lng("Farbe"), integer("Spalte")},
        {key("ZusatzFeld")});
}

TableDef textBlocks() {
    return table("tblTexte", {counter("ID"), text("Textbaustein", kName), memo("Inhalt")}, {key("Textbaustein")});
}

TableDef rooms() {
    return table("tbZimmernummern",
                 {integer("Zimmernummer"), text("NeueNummer", kName), memo("Bemerkungen"), dbl("PreisHauptsaison"),
                  dbl("PreisNebensaison"), dbl("PreisZwischensaison"), dbl("PreisSondersaison"), text("Raucher", 20),
                  integer("Zusatz1"), integer("Zusatz2"), integer("Reihenfolge_Hilf"), integer("AnzahlGästeDefault"),
                  dbl("PreisDefault"), text("katBlockBuchung", 50)},
                 {key("Zimmernummer")});
}

TableDef parameters() {
    std::vector<FieldDef> fields = {text("Satz", kName)};
    for (int number = 1; number <= 28; ++number)
        fields.push_back(text("F" + std::to_string(number), 50));
    return table("tblParameter", std::move(fields), {key("Satz")});
}

TableDef blocks() {
    // IDBelegung has the width of a stay's number; older files carry 16 bits there and are read as they are.
    return table("tbBlockbuchung",
                 {integer("IDBlockbuchung"), lng("IDBelegung"), date("WannAngelegt"), text("BlVorname", 50),
                  text("BlNachname", 50), yesNo("Master")},
                 {index({"IDBlockbuchung"}), index({"IDBelegung"})});
}

TableDef holidays() {
    return table("tbFeiertage", {lng("IDFeiertage"), text("FTBezeichnung", 50), date("FTDatum")},
                 {key("IDFeiertage"), index({"FTDatum"})});
}

TableDef postalCodes() { return table("tbPLZ", {text("PLZ", 20), text("Ort", kName)}, {index({"PLZ"})}); }

TableDef columnWidths() {
    return table("tbSpaltenbreiten",
                 {text("Formular", kName), text("Steuerelement", kName), memo("Breiten"), integer("AnzSpalten")},
                 {index({"Formular", "Steuerelement"})});
}

std::vector<TableDef> addressLists() {
    return {
        table("tbAnreden", {counter("IDAnrede"), text("Anrede", kName)}, {key("IDAnrede")}),
        table("tbLänder", {counter("ID"), text("Länder", kName)}, {key("ID")}),
        table("tbKreditkarte", {counter("IDKreditkarte"), text("Kreditkarte", kName)}, {key("IDKreditkarte")}),
        table("tbAdresskategorie",
              {counter("IDAdresskategorie"), text("AdressKatName", kName), text("AdressKatBemerkung", kText)},
              {key("IDAdresskategorie")}),
        table("tbAdress_zu_Adresskategorie", {lng("IDAdressKategorie"), lng("IDAdresse")},
              {index({"IDAdresse"}), index({"IDAdressKategorie"})}),
        table("tbAdress_zu_Adress", {lng("IDAdresseOber"), lng("idAdresseUnter")},
              {index({"IDAdresseOber"}), index({"idAdresseUnter"})}),
        table("tbAdress_zu_Ergebnis", {lng("IDAdresse"), lng("IDErgebnis")}, {index({"IDAdresse"})}),
        table("tbAnsprechpartner", {counter("IDAnsprechpartner"), lng("IDAdresse"), text("Ansprechpartner", kName)},
              {key("IDAnsprechpartner"), index({"IDAdresse"})}),
    };
}

std::vector<TableDef> sharedTables() {
    std::vector<TableDef> result = {stays(),        furtherGuests(), addresses(),     posts(),    documents(),
                                    documentRows(), payments(),      articles(),      taxRates(), seasons(),
                                    textBlocks(),   extras(),        occupancyTypes()};
    for (TableDef& definition : addressLists())
        result.push_back(std::move(definition));
    result.push_back(table("TblHilfeDarstellung", {yesNo("WahrNichtWahr"), text("Beschreibung", kName)}));
    result.push_back(table("tbRabatt_betrag", {dbl("Rabatt_betrag")}));
    result.push_back(table("tbRabatt_text", {text("Rabatt_text", kText)}));
    return result;
}

std::vector<TableDef> sourceTables() {
    return {rooms(),
            parameters(),
            blocks(),
            holidays(),
            table("tblTarife", {text("Tarif", kName)}),
            table("tbKategorie", {text("blKategorie", 50)}),
            table("tbZahlart", {text("Zahlarten", 50)})};
}

std::vector<SchemaTable> allTables() {
    std::vector<SchemaTable> result;
    for (TableDef& definition : sharedTables())
        result.push_back({HomeFile::Zentral, std::move(definition)});
    for (TableDef& definition : sourceTables())
        result.push_back({HomeFile::Herbergo, std::move(definition)});
    return result;
}

} // namespace

const std::vector<SchemaTable>& schema() {
    static const std::vector<SchemaTable> kSchema = allTables();
    return kSchema;
}

const SchemaTable* findTable(std::string_view name) {
    const jet::SqlName wanted(name);
    const auto found = std::ranges::find_if(
        schema(), [&](const SchemaTable& entry) { return jet::SqlName(entry.definition.Name) == wanted; });
    return found == schema().end() ? nullptr : &*found;
}

std::vector<TableDef> tablesOf(HomeFile home) {
    std::vector<TableDef> result;
    for (const SchemaTable& entry : schema())
        if (entry.home == home) result.push_back(entry.definition);
    return result;
}

std::vector<TableDef> sampleFileTables() {
    std::vector<TableDef> result;
    for (const SchemaTable& entry : schema())
        result.push_back(entry.definition);
    result.push_back(columnWidths());
    return result;
}

std::vector<TableDef> holidayFileTables() { return {holidays(), postalCodes()}; }

} // namespace store
