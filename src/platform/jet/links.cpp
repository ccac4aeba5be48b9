#include "platform/jet/links.h"

#include "platform/basic/text.h"
#include "platform/jet/data_file.h"
#include "platform/jet/properties.h"
#include "platform/jet/storage.h"

#include <array>

namespace jet {

namespace {

void readConnectPart(std::string_view part, ConnectText& result) {
    const auto equals = part.find('=');
    if (equals == std::string_view::npos) return;
    const std::string key = basic::foldCase(part.substr(0, equals));
    const std::string value(part.substr(equals + 1));
    if (key == "database" && !value.empty()) result.path = absolutePath(value);
    if (key == "pwd") result.password = value;
}

} // namespace

ConnectText readConnect(std::string_view connect) {
    ConnectText result;
    while (!connect.empty()) {
        const auto end = connect.find(';');
        readConnectPart(connect.substr(0, end), result);
        connect = end == std::string_view::npos ? std::string_view() : connect.substr(end + 1);
    }
    return result;
}

std::vector<Link> readLinks(sqlite3* storage) {
    const StatementHandle statement = prepareStatement(storage, "SELECT Name, Connect, SourceTableName FROM main." +
                                                                    quoted(linksTable) + " ORDER BY rowid");
    std::vector<Link> links;
    while (stepRow(statement.get()))
        links.push_back(
            {SqlName(columnText(statement.get(), 0)), columnText(statement.get(), 1), columnText(statement.get(), 2)});
    return links;
}

void storeLink(sqlite3* storage, const Link& link) {
    const std::array texts{link.name.text(), link.connect, link.sourceTable};
    run(storage,
        "INSERT INTO main." + quoted(linksTable) +
            " (Name, Connect, SourceTableName) VALUES (?1, ?2, ?3) ON CONFLICT (Name) DO UPDATE SET Connect = "
            "excluded.Connect, SourceTableName = excluded.SourceTableName",
        texts);
}

void storeLinks(sqlite3* storage, const std::vector<Link>& links) {
    run(storage, "SAVEPOINT links");
    try {
        for (const Link& link : links)
            storeLink(storage, link);
        run(storage, "RELEASE links");
    } catch (const Error&) {
        sqlite3_exec(storage, "ROLLBACK TO links; RELEASE links", nullptr, nullptr, nullptr);
        throw;
    }
}

void dropLink(sqlite3* storage, const SqlName& name) {
    run(storage, "DELETE FROM main." + quoted(linksTable) + " WHERE Name = ?1", std::array{name.text()});
}

} // namespace jet
