#pragma once

#include "platform/services/controls.h"

namespace start {

/// The small window that stands while the plan window loads.
struct frmMaskeAufbauen {
    static constexpr auto Caption = "Daten laden";

    services::Label lblText{"Bitte haben Sie etwas Geduld. Die Daten werden gelesen."};
    services::Label lblStand{"Initialisierung"};
};

} // namespace start
