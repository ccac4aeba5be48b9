#include "start/forms/progress_window.h"

#include "platform/qt/text.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace start {

ProgressWindow::ProgressWindow(const frmMaskeAufbauen& form, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmMaskeAufbauen"));
    setWindowTitle(qt::text(frmMaskeAufbauen::Caption));
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(28, 24, 28, 24);
    column->setSpacing(14);
    for (const auto& [name, label] : {std::pair{"lblText", &form.lblText}, {"lblStand", &form.lblStand}}) {
        auto* line = new QLabel(qt::text(label->Caption), this);
        line->setObjectName(qt::text(name));
        line->setAlignment(Qt::AlignCenter);
        column->addWidget(line);
    }
}

void ProgressWindow::appear() {
    show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    repaint();
}

} // namespace start
