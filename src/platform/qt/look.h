#pragma once

#include <QColor>
#include <QString>

class QApplication;

namespace qt {

/// The program's own colours: they do not follow the desktop's theme, whose dark variant would make the plan's given
/// colours unreadable.
namespace look {
inline constexpr QColor window{0xF3, 0xF5, 0xF8};
inline constexpr QColor surface{0xFF, 0xFF, 0xFF};
inline constexpr QColor surfaceAlternate{0xF8, 0xFA, 0xFC};
inline constexpr QColor border{0xD3, 0xDA, 0xE3};
inline constexpr QColor borderStrong{0x9A, 0xA7, 0xB6};
inline constexpr QColor text{0x1D, 0x29, 0x39};
inline constexpr QColor textMuted{0x66, 0x73, 0x85};
inline constexpr QColor weekend{0xB0, 0x48, 0x2F};
inline constexpr QColor accent{0x1F, 0x6F, 0xB5};
inline constexpr QColor onAccent{0xFF, 0xFF, 0xFF};
inline constexpr QColor waiting{0xFF, 0xF4, 0xDC};
inline constexpr QColor alert{0xB4, 0x23, 0x18};
} // namespace look

/// Family of the program's type: the first one of a short list that is installed.
[[nodiscard]] QString fontFamily();

/// German texts on the toolkit's own buttons and dialogs. English ones where its translation is not installed.
void speakGerman(QApplication& application);

/// Style, palette and type of the whole program.
void applyLook(QApplication& application);

} // namespace qt
