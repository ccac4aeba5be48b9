#pragma once

#include "start/global_state.h"

namespace start {

// Files of older houses get the tables and fields that came later. Home files that cannot be reached are left alone;
// where a step fails, the user is asked whether to repeat it.

/// The sample file's.
void beispielAktualisieren(const GlobalState& g);
/// The fields of tblParameter of the real data.
void parameterAktualisieren(const GlobalState& g);
/// All of the real data; after a first run what the sample file needs for it, too.
void datenAktualisieren(const GlobalState& g);

} // namespace start
