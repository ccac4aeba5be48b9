#pragma once

#include "start/global_state.h"
#include "store/links.h"

#include <string>

namespace start {

/// Makes the files that belong to this workstation alone where they are missing: the link file (without links yet), the
/// sample file and the file of holidays and postal codes. The home files are never made here: an empty house in the
/// place of one that cannot be reached would be worse than none. What cannot be made stays missing.
void arbeitsplatzdateienAnlegen(const GlobalState& g);

/// Where the links of this installation lead.
[[nodiscard]] store::LinkPlaces linkPlätze(const GlobalState& g);

/// Points every link to these home files, and adds the links that the link file lacks. False when the links do not work
/// afterwards.
[[nodiscard]] bool verknüpfen(const GlobalState& g, const std::string& zentral, const std::string& pfad);

} // namespace start
