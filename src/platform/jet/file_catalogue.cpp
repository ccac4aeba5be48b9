#include "platform/jet/file_catalogue.h"

#include "platform/basic/text.h"

#include <algorithm>

namespace jet {

FileCatalogue::FileCatalogue(sqlite3* storage, const std::string& mainPath, bool readOnly, Links links)
    : storage_(storage), mode_(links), homes_(std::make_unique<HomeFiles>(storage, mainPath, readOnly)) {
    homes_->reload();
    followLinks();
}

TablePtr FileCatalogue::findOwn(const SqlName& table) const {
    const StoredTables& tables = homes_->main().tables;
    const auto found = tables.find(table.folded());
    return found == tables.end() ? nullptr : found->second;
}

const Link* FileCatalogue::findLink(const SqlName& name) const {
    const auto found = links_.find(name.folded());
    return found == links_.end() ? nullptr : &found->second;
}

TablePtr FileCatalogue::find(const SqlName& table) const {
    if (TablePtr own = findOwn(table)) return own;
    const Link* link = findLink(table);
    return link == nullptr ? nullptr : resolve(*link);
}

TablePtr FileCatalogue::resolve(const Link& link) const {
    const ConnectText connect = readConnect(link.connect);
    const HomeFile& home = homes_->require(connect.path, connect.password);
    const auto found = home.tables.find(SqlName(link.sourceTable).folded());
    if (found == home.tables.end()) raise(ErrorNumber::TableMissing, link.sourceTable + " in " + home.path);
    auto table = std::make_shared<Table>(*found->second);
    table->name = link.name;
    return table;
}

std::vector<std::string> FileCatalogue::names() const {
    std::vector<std::string> names;
    for (const auto& [folded, table] : homes_->main().tables)
        names.push_back(table->storedName);
    for (const auto& [folded, link] : links_)
        names.push_back(link.name.text());
    std::ranges::sort(names, [](const auto& a, const auto& b) { return basic::compareText(a, b) < 0; });
    return names;
}

void FileCatalogue::reload() {
    homes_->reload();
    links_ = readOwnLinks();
}

bool FileCatalogue::reloadIfChanged() {
    if (!homes_->changed()) return false;
    reload();
    return true;
}

FileCatalogue::LinksByName FileCatalogue::readOwnLinks() const {
    LinksByName links;
    for (Link& link : readLinks(storage_)) {
        const std::string folded = link.name.folded();
        links.emplace(folded, std::move(link));
    }
    return links;
}

void FileCatalogue::followLinks() {
    links_ = readOwnLinks();
    if (mode_ == Links::Ignore) return;
    std::map<std::string, std::string> homes; // path to password
    std::set<std::string> paths;
    for (const auto& [folded, link] : links_)
        if (const ConnectText connect = readConnect(link.connect); !connect.path.empty())
            homes.insert_or_assign(connect.path, connect.password);
    for (const auto& [path, password] : homes)
        paths.insert(path);
    homes_->attachAll(paths);
    for (const auto& [path, password] : homes)
        homes_->tryPassword(path, password);
}

bool FileCatalogue::followChangedLinks() {
    if (readOwnLinks() == links_) return false;
    followLinks();
    return true;
}

} // namespace jet
