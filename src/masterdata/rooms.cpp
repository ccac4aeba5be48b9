#include "masterdata/rooms.h"

namespace masterdata {

namespace {

constexpr std::size_t HöchstzahlZimmer = 200;

constexpr auto Zimmerabfrage =
    "SELECT tbZimmernummern.Zimmernummer,tbZimmernummern.Raucher,  tbZimmernummern.NeueNummer, "
    "tbZimmernummern.Bemerkungen, tbZusätze.Farbe AS Z1Farbe, tbZusätze.Beschriftung AS Z1Beschriftung, "
    "tbZusätze.Bedeutung AS Z1Bedeutung, tbZusätze_1.Farbe AS Z2Farbe, tbZusätze_1.Beschriftung AS Z2Beschriftung, "
    "tbZusätze_1.Bedeutung AS Z2Bedeutung, AnzahlGästeDefault FROM (tbZimmernummern LEFT JOIN tbZusätze ON "
    "tbZimmernummern.Zusatz1 = tbZusätze.ZusatzFeld) LEFT JOIN tbZusätze AS tbZusätze_1 ON tbZimmernummern.Zusatz2 = "
    "tbZusätze_1.ZusatzFeld order by tbZimmernummern.Zimmernummer;";

tplZimmer Zimmer(jet::Recordset& rs) {
    const auto text = [&](std::string_view field) { return rs.Fields(field).Value().textOr(); };
    const auto number = [&](std::string_view field, int ifNull) {
        return static_cast<int>(rs.Fields(field).Value().longOr(ifNull));
    };
    return {.Zimmernummer = number("Zimmernummer", 0),
            .NeueNummer = text("NeueNummer"),
            .Bemerkungen = text("Bemerkungen"),
            .Z1Farbe = number("Z1Farbe", Menüfarbe),
            .Z2Farbe = number("Z2Farbe", Menüfarbe),
            .Z1Beschriftung = text("Z1Beschriftung"),
            .Z2Beschriftung = text("Z2Beschriftung"),
            .Z1Bedeutung = text("Z1Bedeutung"),
            .Z2Bedeutung = text("Z2Bedeutung"),
            .AnzahlGaeste = number("AnzahlGästeDefault", 0),
            .Raucher = text("Raucher")};
}

} // namespace

std::vector<tplZimmer> ZimmerEinlesen(jet::Database& db) {
    std::vector<tplZimmer> zimmer;
    auto rs = db.OpenRecordset(Zimmerabfrage, jet::RecordsetType::Snapshot);
    for (; !rs.Eof() && zimmer.size() < HöchstzahlZimmer; rs.MoveNext())
        zimmer.push_back(Zimmer(rs));
    return zimmer;
}

std::vector<tplVorgabe> VorgabeZimmerEinlesen(jet::Database& db) {
    std::vector<tplVorgabe> vorgaben;
    auto rs = db.OpenRecordset("select * from tbzimmernummern order by zimmernummer ;");
    for (; !rs.Eof(); rs.MoveNext())
        vorgaben.push_back({.Zimmernummer = static_cast<int>(rs.Fields("Zimmernummer").Value().longOr(0)),
                            .Preisdefault = rs.Fields("Preisdefault").Value().doubleOr(0),
                            .AnzahlGästeDefault = static_cast<int>(rs.Fields("AnzahlGästeDefault").Value().longOr(0))});
    return vorgaben;
}

bool Zusatzspaltenbelegt(jet::Database& db) {
    auto rs = db.OpenRecordset("SELECT Count(tbZimmernummern.Zimmernummer) AS Anzahl FROM tbZimmernummern WHERE "
                               "tbZimmernummern.Zusatz1 Is Not Null OR tbZimmernummern.Zusatz2 Is Not Null;",
                               jet::RecordsetType::Snapshot);
    return rs.Fields("Anzahl").Value().longOr(0) > 0;
}

} // namespace masterdata
