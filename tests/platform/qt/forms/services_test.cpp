#include "platform/qt/dialogs.h"
#include "platform/qt/look.h"
#include "platform/qt/settings.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <fstream>

namespace qt {
namespace {

using services::MsgResult;
using services::MsgStyle;

void keepSettingsIn(const std::string& folder) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(folder));
}

TEST(IniSettings, KeepsTextsAsTheyAreAndDeletesOneSection) {
    const support::TempFolder folder;
    keepSettingsIn(folder.file("conf"));
    const std::string path = "/häuser/a, b; c=\"d\"/%20\\Pfad.mdb";
    {
        IniSettings settings;
        settings.SaveSetting("Logiswerk", "Startup", "Pfad", path);
        settings.SaveSetting("Logiswerk", "Anderes", "Pfad", "bleibt");
    }
    IniSettings again;
    EXPECT_EQ(again.GetSetting("Logiswerk", "Startup", "Pfad"), path);
    EXPECT_EQ(again.GetSetting("Logiswerk", "Startup", "Zentral"), "");
    again.DeleteSetting("Logiswerk", "Startup");
    EXPECT_EQ(again.GetSetting("Logiswerk", "Startup", "Pfad"), "");
    EXPECT_EQ(again.GetSetting("Logiswerk", "Anderes", "Pfad"), "bleibt");
}

TEST(IniSettings, WhatCannotBeWrittenHoldsForTheRun) {
    const support::TempFolder folder;
    std::ofstream(folder.file("conf")) << "eine Datei, wo der Ordner stehen müsste";
    keepSettingsIn(folder.file("conf"));
    IniSettings settings;
    settings.SaveSetting("Logiswerk", "Startup", "Pfad", "/daten/Herbergo.mdb");
    EXPECT_EQ(settings.GetSetting("Logiswerk", "Startup", "Pfad"), "/daten/Herbergo.mdb");
    settings.DeleteSetting("Logiswerk", "Startup");
    EXPECT_EQ(settings.GetSetting("Logiswerk", "Startup", "Pfad"), "");
}

/// Presses a key in the message box that is about to open, and tells how the box looked.
struct Pressed {
    QString buttons;
    QString standard;
    MsgResult result;
};

Pressed press(Qt::Key key, MsgStyle style) {
    Pressed seen{{}, {}, MsgResult::OK};
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (const auto* button : box->buttons())
            seen.buttons += button->text().remove(u'&') + u' ';
        seen.standard = box->defaultButton()->text().remove(u'&');
        QTest::keyClick(box, key);
        if (box->isVisible()) box->done(0); // a key that no button answers to
    });
    seen.result = QtDialogs().MsgBox("<b>Text</b>", style, "Titel");
    return seen;
}

TEST(QtDialogs, MessageBoxHasItsButtonsAndDefault) {
    speakGerman(*qApp);
    struct Case {
        int flags;
        Qt::Key key;
        const char* standard;
        MsgResult result;
    };
    for (const Case& c : {Case{321, Qt::Key_Return, "Abbrechen", MsgResult::Cancel},
                          {35, Qt::Key_Return, "Ja", MsgResult::Yes},
                          {35, Qt::Key_Escape, "Ja", MsgResult::Cancel},
                          {0, Qt::Key_Escape, "OK", MsgResult::OK},
                          {4 + 256, Qt::Key_Return, "Nein", MsgResult::No},
                          {5, Qt::Key_Escape, "Wiederholen", MsgResult::Cancel}}) {
        const Pressed seen = press(c.key, MsgStyle::fromFlags(c.flags));
        EXPECT_EQ(seen.result, c.result) << c.flags;
        EXPECT_EQ(seen.standard.toStdString(), c.standard) << c.flags;
        EXPECT_TRUE(seen.buttons.contains(QString::fromUtf8(c.standard)));
    }
}

} // namespace
} // namespace qt
