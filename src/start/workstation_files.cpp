#include "start/workstation_files.h"

#include "platform/basic/quietly.h"
#include "start/paths.h"
#include "store/base_lists.h"
#include "store/path_test.h"
#include "store/sample_house.h"
#include "store/schema.h"

#include <filesystem>
#include <functional>

namespace start {

namespace {

namespace fs = std::filesystem;
using basic::quietly;
using Füllen = std::function<void(jet::Database&)>;

/// A file is made under another name and then renamed, so that a run that is cut short leaves no half of one.
void anlegen(const GlobalState& g, std::string_view name, const Füllen& füllen) {
    const std::string path = g.instanz.Datei(name);
    std::error_code error;
    if (fs::symlink_status(path, error).type() != fs::file_type::not_found) return;
    const std::string unfinished = path + ".neu";
    fs::remove(unfinished, error);
    const bool made = quietly([&] {
        jet::Database db = g.wsHaupt.CreateDatabase(unfinished, store::openConnect());
        füllen(db);
        db.Close();
    });
    if (made)
        fs::rename(unfinished, path, error);
    else
        fs::remove(unfinished, error);
}

template <typename Fill>
void inOneTransaction(jet::Database& db, std::string_view table, Fill fill) {
    jet::Transaction transaction(db, table);
    fill(db);
    transaction.Commit();
}

void beispielFüllen(jet::Database& db, basic::Date jetzt) {
    db.AppendTableDefs(store::sampleFileTables());
    inOneTransaction(db, "tblBelegung", store::fillSharedLists);
    inOneTransaction(db, "tblParameter", store::fillSourceLists);
    store::fillSampleHouse(db, jetzt);
}

void fehlendeLinks(const GlobalState& g, const std::string& zentral, const std::string& pfad) {
    jet::Database linkFile =
        g.wsHaupt.OpenDatabase(g.instanz.Datei(g.instanz.Namen().Lokal), false, false, store::openConnect());
    std::vector<jet::TableDef> fehlend;
    for (const store::SchemaTable& table : store::schema()) {
        const std::string& home = table.home == store::HomeFile::Zentral ? zentral : pfad;
        if (!linkFile.HasTable(table.definition.Name))
            fehlend.push_back(store::linkDef(store::linkConnect(home), table.definition.Name));
    }
    if (fehlend.empty() || quietly([&] { linkFile.AppendTableDefs(fehlend); })) return;
    // An older house lacks tables: the others are linked one by one.
    for (const jet::TableDef& link : fehlend)
        quietly([&] { linkFile.AppendTableDef(link); });
}

} // namespace

void arbeitsplatzdateienAnlegen(const GlobalState& g) {
    const store::FileNames namen = g.instanz.Namen();
    anlegen(g, namen.Lokal, [](jet::Database&) {});
    anlegen(g, namen.Beispiel, [&](jet::Database& db) { beispielFüllen(db, g.clock.now()); });
    anlegen(g, store::kHolidayFile, [](jet::Database& db) { db.AppendTableDefs(store::holidayFileTables()); });
}

store::LinkPlaces linkPlätze(const GlobalState& g) {
    return {g.instanz.Datei(g.instanz.Namen().Lokal), clsPfade(g.settings).DBPfad(schlüssel(0).Zentral),
            g.instanz.Nummer, g.AdrAusBel};
}

bool verknüpfen(const GlobalState& g, const std::string& zentral, const std::string& pfad) {
    const store::LinkPlaces places = linkPlätze(g);
    quietly([&] {
        fehlendeLinks(g, zentral, pfad);
        (void)store::relinkAll(g.wsHaupt, places, zentral, pfad);
    });
    return store::linksWork(g.wsHaupt, places.LokalDB);
}

} // namespace start
