#pragma once

#include "platform/jet/workspace.h"

#include <string>
#include <string_view>
#include <vector>

namespace store {

/// What decides where a link leads.
struct LinkPlaces {
    std::string LokalDB;    ///< path of the link file; empty: nothing is linked
    std::string Zentral;    ///< the main program's shared file, whatever instance runs
    int Instanz = 0;        ///< 0 is the main program
    bool AdrAusBel = false; ///< the instance uses the addresses of the main program
};

/// Is there a table or link of this name in the link file?
[[nodiscard]] bool tableIsLinked(const jet::Database& linkFile, std::string_view table);
/// A link to the table of the same name in the file that `connect` tells.
[[nodiscard]] jet::TableDef linkDef(std::string_view connect, std::string_view table);
/// 3010 when the name is taken.
void createLink(jet::Database& linkFile, std::string_view connect, std::string_view table);
/// Does nothing when there is no such link. 3024 when the file is missing, 3011 when the table is.
void refreshLink(jet::Database& linkFile, std::string_view connect, std::string_view table);

/// Links `table` to the file `homePath`, as a new link or by pointing the one that is there to it. Does nothing when
/// one of the paths is empty. An instance that shares addresses gets the table Address from the main program's file
/// instead.
void linkOrRefresh(const jet::Workspace& workspace, const LinkPlaces& places, bool create, std::string_view table,
                   const std::string& homePath);

/// Points every link of the link file to the new paths. Which of the two it is, the name of the file tells that the
/// link led to so far: "Zentra" in it (a folder's name does not count) means the shared one. Links that cannot be set
/// stay as they were, the others are set all the same; gives the names of those that stayed.
[[nodiscard]] std::vector<std::string> relinkAll(const jet::Workspace& workspace, const LinkPlaces& places,
                                                 const std::string& sharedPath, const std::string& sourcePath);

} // namespace store
