#pragma once

#include "platform/jet/workspace.h"

#include <string>
#include <string_view>
#include <vector>

namespace addresses {

/// A row of tbPLZ in the file of holidays and postal codes.
struct Ort {
    std::string PLZ;
    std::string Name;

    bool operator==(const Ort&) const = default;
};

/// The places whose postal code begins with the text, in the order of their names. Empty for an empty text and when the
/// file is missing. The text is searched as it stands, without wildcards.
[[nodiscard]] std::vector<Ort> OrteZurPLZ(const jet::Workspace& ws, const std::string& datei, std::string_view anfang);

} // namespace addresses
