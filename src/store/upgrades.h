#pragma once

#include "store/links.h"

#include <functional>
#include <string>
#include <string_view>

namespace store {

// Houses carry files of all ages and no version number: at every start each step looks whether its field or table is
// there and adds it if not. A file that has everything is left as it is, byte for byte.

/// Where the files lie. A step whose path is empty has nothing to do.
struct UpgradeFiles {
    std::string Beispiel; ///< the sample file
    std::string Zentral;  ///< the installation's own shared file
    std::string Pfad;     ///< its source file
    LinkPlaces Links;     ///< the link file that gets a link to each table added to the source file
};

/// The sample file is never changed by a call for the real ones, and the other way round.
enum class UpgradeTarget { Echt, Beispiel };

/// Asks the user what to do about a step that failed: true repeats it from its beginning, false leaves it.
using RetryQuestion = std::function<bool()>;
inline constexpr std::string_view kUpgradeFailed = "Das Anfügen von Tabellenfeldern ist fehlgeschlagen.";
inline constexpr std::string_view kUpgradeFailedTitle = "neue Tabellenfelder anlegen";

/// Block bookings, their categories, payment kinds, the late fields of tblParameter, and the payment kind of a stay: in
/// this order, each step with its question. Raises nothing. A table that is there without a link in the link file gets
/// its link too, for another workstation may have added it. An open database sees what was added at its next statement.
void upgradeTables(const jet::Workspace& workspace, const UpgradeFiles& files, UpgradeTarget target,
                   const RetryQuestion& retry);
/// The step of tblParameter alone.
void upgradeParameters(const jet::Workspace& workspace, const UpgradeFiles& files, UpgradeTarget target,
                       const RetryQuestion& retry);

// Older steps, which ask nothing: where one fails, its field stays absent.

/// The remark of an address, in the file that holds the addresses.
void addBemerkAdr(const jet::Workspace& workspace, const std::string& file);
/// tbKategorie in the sample file.
void BeispielBlockSicherung(const jet::Workspace& workspace, const std::string& beispiel);
/// Laundry and breakfast of a stay in `zentral`, guests and price of a room in `pfad`. Stays that were there before get
/// 6 and 3 days and breakfast. For the sample file both paths are its own; it is wanted there after a first run.
void CreateFieldWäscheHaupt(const jet::Workspace& workspace, const std::string& zentral, const std::string& pfad);

} // namespace store
