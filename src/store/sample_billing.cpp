#include "store/sample_billing.h"

#include "platform/basic/format.h"
#include "store/rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace store {

namespace {

using basic::Date;
using basic::Value;

enum class Rate : std::size_t { Ermäßigt, Voll, Ohne };
constexpr std::array<double, 3> kRates = {7, 19, 0};

struct Article {
    std::string_view ArtKategorie;
    double Preis;
    Rate Satz;
    int Verpflegung; ///< 1 breakfast, 2 half board, 3 full board
    bool KeinDatum;
};
constexpr Article kBreakfast = {"Frühstück", 9.5, Rate::Voll, 1, false};
constexpr Article kHalfBoard = {"Halbpension", 28.5, Rate::Voll, 2, false};
constexpr Article kDrinks = {"Getränke", 3.2, Rate::Voll, 0, false};
constexpr Article kParking = {"Stellplatz", 6, Rate::Voll, 0, true};
constexpr Article kSpaTax = {"Kurtaxe", 1.8, Rate::Ohne, 0, true};
constexpr std::array<Article, 8> kArticles = {
    kBreakfast, kHalfBoard, {"Vollpension", 42, Rate::Voll, 3, false}, kDrinks,
    kParking,   kSpaTax,    {"Hund", 8, Rate::Voll, 0, true},          {"Wäscheservice", 12.5, Rate::Voll, 0, false}};

// What the counters of the still empty tables give.
std::int64_t keyOf(Rate rate) { return static_cast<std::int64_t>(rate) + 1; }
std::int64_t keyOf(const Article& article) {
    const auto found = std::ranges::find(kArticles, article.ArtKategorie, &Article::ArtKategorie);
    return found - kArticles.begin() + 1;
}

double inCents(double amount) { return std::round(amount * 100) / 100; }
double taxIn(double gross, Rate rate) {
    return gross - gross / (kRates.at(static_cast<std::size_t>(rate)) + 100) * 100;
}

/// A quantity of an article, for a stay.
struct Post {
    const Article* article;
    int Menge;
};

int nightsOf(const SampleStay& stay) { return stay.Bis.dayNumber() - stay.Von.dayNumber(); }
bool isBilled(const SampleStay& stay) {
    return stay.Zustand == SampleState::Bezahlt || stay.Zustand == SampleState::Berechnet;
}

/// What has been booked: meals for every stay, the rest for guests who are or were in the house.
std::vector<Post> postsOf(const SampleStayOnFile& entry, Date today) {
    const SampleStay& stay = entry.stay;
    const int nights = nightsOf(stay);
    std::vector<Post> posts;
    if (hasDinner(stay))
        posts.push_back({&kHalfBoard, nights * stay.Gäste});
    else if (hasBreakfast(stay))
        posts.push_back({&kBreakfast, nights * stay.Gäste});
    if (stay.Von >= today || stay.Zustand == SampleState::Warteschlange) return posts;
    posts.push_back({&kSpaTax, nights * stay.Gäste});
    if (entry.ID % 2 == 0) posts.push_back({&kDrinks, nights + stay.Gäste});
    if (entry.ID % 3 == 0) posts.push_back({&kParking, nights});
    return posts;
}

void fillRates(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbSteuerschluessel");
    for (const double rate : kRates)
        addRow(rows, {{"Steuersatz", rate}, {"Standard", rate == kRates.front()}});
}

void fillArticles(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbArtKategorie");
    for (const Article& article : kArticles)
        addRow(rows, {{"ArtKategorie", article.ArtKategorie},
                      {"Preis", article.Preis},
                      {"MWST_SL", keyOf(article.Satz)},
                      {"IstStandard", article.Verpflegung > 0 ? 1 : 0},
                      {"istVerpflegung", article.Verpflegung},
                      {"KeinDatum", article.KeinDatum}});
}

std::string_view postState(const SampleStay& stay) {
    if (isBilled(stay)) return "Ja";
    return stay.Zustand == SampleState::Gehalten ? "Warten" : "Nein";
}

std::int64_t addPost(jet::Recordset& rows, const SampleStayOnFile& entry, const Post& post) {
    const Article& article = *post.article;
    const bool isMeal = article.Verpflegung > 0;
    return addCountedRow(rows, "IDRePosten",
                         {{"IDBelegung", entry.ID},
                          {"IDAdressePo", entry.GastID},
                          {"ArtikelPo", article.ArtKategorie},
                          {"IDArtikel", keyOf(article)},
                          {"MengePo", post.Menge},
                          {"PreisPo", article.Preis},
                          {"IDSteuerschlüssel", keyOf(article.Satz)},
                          {"DatumPo", entry.stay.Von},
                          {"DatumPoBis", isMeal ? Value(entry.stay.Bis) : Value()},
                          {"KeinDatum", article.KeinDatum},
                          {"AbgerechnetPo", postState(entry.stay)},
                          {"AnzGästePo", isMeal ? Value(entry.stay.Gäste) : Value()},
                          {"IstVerpflegung", article.Verpflegung}});
}

/// The tables that an invoice is written to.
struct Books {
    jet::Recordset posts;
    jet::Recordset documents;
    jet::Recordset lines;
    jet::Recordset payments;

    explicit Books(jet::Database& database)
        : posts(database.OpenRecordset("tbRePosten")), documents(database.OpenRecordset("tbRechnungen")),
          lines(database.OpenRecordset("tbRechnungen_zu_Posten")), payments(database.OpenRecordset("tbZahlung")) {}
};

void addLine(Books& books, int number, std::int64_t post, std::int64_t stay) {
    addRow(books.lines, {{"IDRechnung", number},
                         {"IDPostenRe", post},
                         {"IDBelegung", stay},
                         {"Reihenfolge", books.lines.RecordCount() + 1}});
}

void addInvoice(Books& books, int number, const SampleStayOnFile& entry, double gross, double tax) {
    addRow(books.documents, {{"ReNummer", number},
                             {"Renummer_eigen", "R " + basic::Format(number, "0000") + " "},
                             {"ReZaehler", number},
                             {"IST_Rechnung", "R"},
                             {"IDAdresseRe", entry.GastID},
                             {"DatumRe", entry.stay.Bis},
                             {"Zahlart", paymentKind(entry.stay)},
                             {"BetragBrutto", inCents(gross)},
                             {"BetragMWST", inCents(tax)},
                             {"Anzahlung", "N"},
                             {"Anz_Vor_Reise", "N"}});
}

/// Without an invoice where `number` is Null.
void addPayment(Books& books, const SampleStayOnFile& entry, const Value& number, Date date, double amount,
                std::string_view what) {
    addRow(books.payments, {{"IdBelegung", entry.ID},
                            {"IdRechnung", number},
                            {"ZahlDatum", date},
                            {"Betrag", inCents(amount)},
                            {"Zahlart", paymentKind(entry.stay)},
                            {"WasBezahlt", what}});
}

/// Who owes much pays a part of it two weeks before the arrival.
void payInvoice(Books& books, const SampleStayOnFile& entry, int number, double gross) {
    constexpr double much = 800;
    constexpr double deposit = 250;
    if (gross <= much) return addPayment(books, entry, number, entry.stay.Bis, gross, "Gesamtzahlung");
    addPayment(books, entry, number, entry.stay.Von - 14, deposit, "Anzahlung");
    addPayment(books, entry, number, entry.stay.Bis, gross - deposit, "Restzahlung");
}

void billStay(Books& books, const SampleStayOnFile& entry, Date today, int& lastInvoice) {
    const bool billed = isBilled(entry.stay);
    const int number = billed ? ++lastInvoice : 0;
    double gross = entry.Preis;
    double tax = taxIn(entry.Preis, Rate::Ermäßigt);
    if (billed) addLine(books, number, 0, entry.ID);
    for (const Post& post : postsOf(entry, today)) {
        const std::int64_t key = addPost(books.posts, entry, post);
        if (!billed) continue;
        addLine(books, number, key, 0);
        const double amount = post.Menge * post.article->Preis;
        gross += amount;
        tax += taxIn(amount, post.article->Satz);
    }
    if (billed) addInvoice(books, number, entry, gross, tax);
    if (entry.stay.Zustand == SampleState::Bezahlt) payInvoice(books, entry, number, inCents(gross));
}

/// Invoices are numbered as the guests left.
std::vector<SampleStayOnFile> byDeparture(std::span<const SampleStayOnFile> stays) {
    std::vector<SampleStayOnFile> result(stays.begin(), stays.end());
    std::ranges::stable_sort(result, {}, [](const SampleStayOnFile& entry) { return entry.stay.Bis; });
    return result;
}

} // namespace

bool hasBreakfast(const SampleStay& stay) {
    constexpr int apartment = 9;
    return stay.Zimmernummer != apartment;
}

bool hasDinner(const SampleStay& stay) {
    constexpr int weddingSuite = 8;
    return stay.Zimmernummer == weddingSuite;
}

std::string_view paymentKind(const SampleStay& stay) {
    constexpr std::array<std::string_view, 4> kKinds = {"Überweisung", "EC-Karte", "Bar", "Kreditkarte"};
    return kKinds.at(static_cast<std::size_t>(stay.Gast) % kKinds.size());
}

void fillSampleBilling(jet::Database& database, std::span<const SampleStayOnFile> stays, Date today) {
    fillRates(database);
    fillArticles(database);
    Books books(database);
    int lastInvoice = 0;
    for (const SampleStayOnFile& entry : byDeparture(stays)) {
        billStay(books, entry, today, lastInvoice);
        if (entry.stay.Angezahlt) addPayment(books, entry, {}, today - 5, 300, "Anzahlung");
    }
}

} // namespace store
