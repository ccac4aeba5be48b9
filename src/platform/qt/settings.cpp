#include "platform/qt/settings.h"

#include "platform/qt/text.h"

#include <QSettings>

namespace qt {

namespace {

QString place(const std::string& section, const std::string& key) { return text(section) + u'/' + text(key); }

/// A value with an unquoted comma, typed by hand, is read as a list.
std::string joined(const QVariant& value) { return value.toStringList().join(QStringLiteral(", ")).toStdString(); }

struct IniFile {
    explicit IniFile(const std::string& application)
        : file(QSettings::IniFormat, QSettings::UserScope, text(application)) {
        file.setFallbacksEnabled(false);
    }
    /// False when the file did not take what was set.
    [[nodiscard]] bool written() {
        file.sync();
        return file.isWritable() && file.status() == QSettings::NoError;
    }
    QSettings file;
};

} // namespace

std::string IniSettings::GetSetting(const std::string& application, const std::string& section,
                                    const std::string& key) const {
    const std::string unsaved = unsaved_.GetSetting(application, section, key);
    return unsaved.empty() ? joined(IniFile(application).file.value(place(section, key))) : unsaved;
}

void IniSettings::SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                              const std::string& value) {
    IniFile ini(application);
    ini.file.setValue(place(section, key), text(value));
    unsaved_.SaveSetting(application, section, key, ini.written() ? std::string() : value);
}

void IniSettings::DeleteSetting(const std::string& application, const std::string& section) {
    IniFile ini(application);
    ini.file.remove(text(section));
    (void)ini.written();
    unsaved_.DeleteSetting(application, section);
}

} // namespace qt
