#include "platform/qt/desktop.h"

#include "platform/qt/text.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace qt {

bool DesktopShell::open(const std::string& target) {
    const QString name = text(target);
    const bool isFile = QFileInfo::exists(name);
    if (!isFile && !name.contains(QStringLiteral("://"))) return false;
    return QDesktopServices::openUrl(isFile ? QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath()) : QUrl(name));
}

bool DesktopShell::start(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << text(argument);
    return QProcess::startDetached(text(program), list);
}

std::string LogonUser::NameDesUsers() const {
    if (const passwd* entry = getpwuid(geteuid()); entry != nullptr && entry->pw_name != nullptr) return entry->pw_name;
    const char* name = std::getenv("USER");
    return name == nullptr ? std::string() : name;
}

} // namespace qt
