#pragma once

#include "platform/services/controls.h"

#include <QPoint>

#include <functional>
#include <string>

class QWidget;

namespace plan {

/// Opens a context menu at a place on the screen. Its entries carry their names as object names; `chosen` is told the
/// name of the entry that the user chooses.
void openContextMenu(QWidget& parent, const services::Menu& menu, QPoint place,
                     const std::function<void(const std::string& name)>& chosen);

} // namespace plan
