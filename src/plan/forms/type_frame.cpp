#include "plan/forms/type_frame.h"

#include "plan/forms/flow_layout.h"
#include "plan/forms/plan_painter.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QLabel>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>

namespace plan {

namespace {

QString face(Farbe back) {
    const auto writing = Schriftfarbe(back);
    return QStringLiteral("QRadioButton { background: %1; color: %2; border: 1px solid %3; border-radius: 5px;"
                          " padding: 4px 9px 4px 5px; }"
                          "QRadioButton:checked { border: 2px solid %4; padding: 3px 8px 3px 4px; font-weight: bold; }"
                          "QRadioButton:focus { border-color: %4; }"
                          "QRadioButton::indicator { width: 9px; height: 9px; border: 1px solid %2; border-radius: 5px;"
                          " background: %1; }"
                          "QRadioButton::indicator:checked { background: %2; }")
        .arg(colour(back).name(), colour(writing).name(), colour(abgesetzt(back, 25)).name(), qt::look::text.name());
}

QRadioButton* typeButton(const services::OptionButton& type, int index) {
    auto* button = new QRadioButton(qt::text(type.Caption).replace(u'&', QStringLiteral("&&")));
    button->setObjectName(QStringLiteral("optBelArt%1").arg(index + 1));
    button->setStyleSheet(face(type.BackColor.value_or(Weiß)));
    return button;
}

} // namespace

TypeFrame::TypeFrame(const services::OptionGroup& types, const std::function<void(int)>& chosen)
    : heading_(new QLabel) {
    setObjectName(QStringLiteral("frmBelegungsart"));
    heading_->setObjectName(QStringLiteral("lblBelegungsart"));
    heading_->setTextFormat(Qt::PlainText);
    auto* row = new FlowLayout(6);
    setLayout(row);
    row->addWidget(heading_);
    for (const auto& type : types.Buttons) {
        const int index = static_cast<int>(buttons_.size());
        buttons_.push_back(typeButton(type, index));
        connect(buttons_.back(), &QRadioButton::clicked, this, [chosen, index] { chosen(index); });
        row->addWidget(buttons_.back());
    }
    connectRightButton();
    refresh(types);
}

void TypeFrame::connectRightButton() {
    heading_->setContextMenuPolicy(Qt::CustomContextMenu);
    setContextMenuPolicy(Qt::CustomContextMenu);
    const auto rename = [this] {
        if (onHeading) onHeading();
    };
    connect(heading_, &QLabel::customContextMenuRequested, this, rename);
    connect(this, &QWidget::customContextMenuRequested, this, [this](QPoint at) {
        if (onContext) onContext(mapToGlobal(at));
    });
    auto* key = new QShortcut(QKeySequence(Qt::Key_F2), this);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(key, &QShortcut::activated, this, rename);
}

void TypeFrame::refresh(const services::OptionGroup& types) {
    heading_->setText(qt::text(types.Caption));
    for (std::size_t i = 0; i < buttons_.size() && i < types.Buttons.size(); ++i) {
        const QSignalBlocker blocked(buttons_[i]);
        buttons_[i]->setChecked(static_cast<int>(i) == types.Value);
    }
}

} // namespace plan
