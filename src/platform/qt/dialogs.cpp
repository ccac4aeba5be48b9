#include "platform/qt/dialogs.h"

#include "platform/qt/text.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace qt {

namespace {

using services::MsgIcon;
using services::MsgResult;

QMessageBox::StandardButton buttonOf(MsgResult result) {
    switch (result) {
    case MsgResult::OK:
        return QMessageBox::Ok;
    case MsgResult::Cancel:
        return QMessageBox::Cancel;
    case MsgResult::Abort:
        return QMessageBox::Abort;
    case MsgResult::Retry:
        return QMessageBox::Retry;
    case MsgResult::Ignore:
        return QMessageBox::Ignore;
    case MsgResult::Yes:
        return QMessageBox::Yes;
    case MsgResult::No:
        return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon iconOf(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::None:
        return QMessageBox::NoIcon;
    case MsgIcon::Critical:
        return QMessageBox::Critical;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

void addButtons(QMessageBox& box, services::MsgStyle style) {
    for (const MsgResult result : services::resultsOf(style.buttons))
        box.addButton(buttonOf(result));
    box.setDefaultButton(buttonOf(services::defaultResult(style)));
    if (const auto cancel = services::cancelResult(style.buttons)) box.setEscapeButton(buttonOf(*cancel));
}

QString nameFilters(const std::string& filter) {
    QStringList filters;
    for (const services::FileFilter& entry : services::filtersOf(filter)) {
        const QString shown = text(entry.text);
        const QString pattern = QStringLiteral("(%1)").arg(text(entry.pattern));
        filters << (shown.endsWith(pattern) ? shown : shown + u' ' + pattern);
    }
    return filters.join(QStringLiteral(";;"));
}

std::optional<std::string> chosen(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    return path.toStdString();
}

} // namespace

MsgResult QtDialogs::MsgBox(const std::string& text, services::MsgStyle style, const std::string& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(qt::text(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(qt::text(text));
    box.setIcon(iconOf(style.icon));
    addButtons(box, style);
    const int pressed = box.exec();
    for (const MsgResult result : services::resultsOf(style.buttons))
        if (buttonOf(result) == pressed) return result;
    return services::cancelResult(style.buttons).value_or(services::defaultResult(style));
}

std::optional<std::string> QtDialogs::InputBox(const std::string& prompt, const std::string& title,
                                               const std::string& vorgabe) {
    bool accepted = false;
    const QString answer = QInputDialog::getText(QApplication::activeWindow(), text(title), text(prompt),
                                                 QLineEdit::Normal, text(vorgabe), &accepted);
    if (!accepted) return std::nullopt;
    return answer.toStdString();
}

std::optional<std::string> QtDialogs::chooseFile(const services::FileRequest& request) {
    return chosen(QFileDialog::getOpenFileName(QApplication::activeWindow(), text(request.title), text(request.start),
                                               nameFilters(request.filter)));
}

std::optional<std::string> QtDialogs::chooseFolder(const std::string& title, const std::string& start) {
    return chosen(QFileDialog::getExistingDirectory(QApplication::activeWindow(), text(title), text(start)));
}

std::optional<int> QtDialogs::chooseColour(int start) {
    const QColor answer = QColorDialog::getColor(colour(start), QApplication::activeWindow());
    if (!answer.isValid()) return std::nullopt;
    return bgrOf(answer);
}

} // namespace qt
