#include "platform/qt/look.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>

#include <memory>

namespace qt {

namespace {

QPalette palette() {
    QPalette colours(look::window);
    colours.setColor(QPalette::Window, look::window);
    colours.setColor(QPalette::WindowText, look::text);
    colours.setColor(QPalette::Base, look::surface);
    colours.setColor(QPalette::AlternateBase, look::surfaceAlternate);
    colours.setColor(QPalette::Text, look::text);
    colours.setColor(QPalette::PlaceholderText, look::textMuted);
    colours.setColor(QPalette::Button, look::surface);
    colours.setColor(QPalette::ButtonText, look::text);
    colours.setColor(QPalette::Highlight, look::accent);
    colours.setColor(QPalette::HighlightedText, look::onAccent);
    colours.setColor(QPalette::ToolTipBase, look::surface);
    colours.setColor(QPalette::ToolTipText, look::text);
    // What is locked is still read.
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        colours.setColor(QPalette::Disabled, role, look::textMuted);
    colours.setColor(QPalette::Disabled, QPalette::Base, look::window);
    colours.setColor(QPalette::Disabled, QPalette::ButtonText, look::borderStrong);
    return colours;
}

constexpr auto styleSheet = R"(
QToolTip { color: #1D2939; background: #FFFFFF; border: 1px solid #D3DAE3; padding: 4px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { background: #FFFFFF; border: 1px solid #D3DAE3; border-radius: 5px; padding: 5px 10px; }
QPushButton:hover { border-color: #1F6FB5; color: #1F6FB5; }
QPushButton:pressed { background: #E6EFF8; }
QPushButton:focus { border-color: #1F6FB5; }
QPushButton[primary="true"] { background: #1F6FB5; border-color: #1F6FB5; color: #FFFFFF; }
QPushButton[primary="true"]:hover, QPushButton[primary="true"]:focus { background: #175A94; color: #FFFFFF; }
QPushButton:disabled, QPushButton[primary="true"]:disabled { color: #9AA7B6; background: #F3F5F8; border-color: #D3DAE3; }
)";

} // namespace

QString fontFamily() {
    const auto installed = QFontDatabase::families();
    for (const auto* family : {"Liberation Sans", "DejaVu Sans"})
        if (installed.contains(QString::fromLatin1(family))) return QString::fromLatin1(family);
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

void speakGerman(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return;
    translator->setParent(&application);
    QApplication::installTranslator(translator.release());
}

void applyLook(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette());
    QFont font(fontFamily());
    font.setPixelSize(13);
    QApplication::setFont(font);
    application.setStyleSheet(QString::fromLatin1(styleSheet));
}

} // namespace qt
