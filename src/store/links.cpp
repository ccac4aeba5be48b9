#include "store/links.h"

#include "platform/basic/text.h"
#include "store/database_files.h"

namespace store {

namespace {

bool sharesAddresses(const LinkPlaces& places) { return places.Instanz > 0 && places.AdrAusBel; }

std::string homeConnect(const LinkPlaces& places, std::string_view table, const std::string& homePath) {
    const bool fromMain = sharesAddresses(places) && basic::LCase(table) == "address";
    return linkConnect(fromMain ? places.Zentral : homePath);
}

bool leadsToSharedFile(const jet::TableDef& link) {
    return basic::InStr(1, linkedFileName(link.Connect), "Zentra") > 0;
}

jet::Database openLinkFile(const jet::Workspace& workspace, const LinkPlaces& places) {
    return workspace.OpenDatabase(places.LokalDB, false, false, openConnect());
}

bool relinked(jet::Database& linkFile, const LinkPlaces& places, const jet::TableDef& link,
              const std::string& homePath) {
    try {
        linkFile.RefreshLink(link.Name, homeConnect(places, link.SourceTableName, homePath));
        return true;
    } catch (const jet::Error&) {
        return false;
    }
}

} // namespace

bool tableIsLinked(const jet::Database& linkFile, std::string_view table) { return linkFile.HasTable(table); }

jet::TableDef linkDef(std::string_view connect, std::string_view table) {
    jet::TableDef link;
    link.Name = table;
    link.Connect = connect;
    link.SourceTableName = table;
    return link;
}

void createLink(jet::Database& linkFile, std::string_view connect, std::string_view table) {
    linkFile.AppendTableDef(linkDef(connect, table));
}

void refreshLink(jet::Database& linkFile, std::string_view connect, std::string_view table) {
    if (linkFile.HasTable(table)) linkFile.RefreshLink(table, connect);
}

void linkOrRefresh(const jet::Workspace& workspace, const LinkPlaces& places, bool create, std::string_view table,
                   const std::string& homePath) {
    if (places.LokalDB.empty() || homePath.empty()) return;
    jet::Database linkFile = openLinkFile(workspace, places);
    const std::string connect = homeConnect(places, table, homePath);
    if (create)
        createLink(linkFile, connect, table);
    else
        refreshLink(linkFile, connect, table);
}

std::vector<std::string> relinkAll(const jet::Workspace& workspace, const LinkPlaces& places,
                                   const std::string& sharedPath, const std::string& sourcePath) {
    jet::Database linkFile = openLinkFile(workspace, places);
    std::vector<std::string> left;
    for (const std::string& name : linkFile.TableNames()) {
        const jet::TableDef link = linkFile.GetTableDef(name);
        if (link.Connect.empty()) continue;
        if (!relinked(linkFile, places, link, leadsToSharedFile(link) ? sharedPath : sourcePath)) left.push_back(name);
    }
    return left;
}

} // namespace store
