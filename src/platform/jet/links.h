#pragma once

#include "platform/jet/sql_name.h"

#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace jet {

/// A table of another file that this file knows by a name.
struct Link {
    SqlName name;
    std::string connect;     ///< as given: ";DATABASE=path;PWD=password"
    std::string sourceTable; ///< its name in the home file

    bool operator==(const Link&) const = default;
};

/// What a connect text says. Keys are read without regard to case; unknown ones are passed over.
struct ConnectText {
    std::string path; ///< absolute; empty when it names none
    std::string password;
};

[[nodiscard]] ConnectText readConnect(std::string_view connect);

[[nodiscard]] std::vector<Link> readLinks(sqlite3* storage);
void storeLink(sqlite3* storage, const Link& link);
/// All or none, with one flush.
void storeLinks(sqlite3* storage, const std::vector<Link>& links);
void dropLink(sqlite3* storage, const SqlName& name);

} // namespace jet
