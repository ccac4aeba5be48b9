#pragma once

#include "platform/jet/workspace.h"

#include <string>
#include <string_view>

namespace store {

/// The tables by which the two home files are told: a file that holds it is the right one.
inline constexpr std::string_view kSharedTestTable = "tblBelegung";
inline constexpr std::string_view kSourceTestTable = "tblTarife";

/// Opens the file with the password of the house and the table in it. Any error is False.
[[nodiscard]] bool fileHoldsTable(const jet::Workspace& workspace, const std::string& path, std::string_view table);

/// Do the links of this link file reach both home files? Any error is False.
[[nodiscard]] bool linksWork(const jet::Workspace& workspace, const std::string& localFile);

} // namespace store
