#include "plan/forms/status_line.h"

#include "plan/forms/plan_painter.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QHBoxLayout>
#include <QLabel>

namespace plan {

namespace {

QString fieldStyle(const QColor& back) {
    return QStringLiteral("QLabel { background: %1; border: 1px solid %2; border-radius: 4px; padding: 2px 6px; }")
        .arg(back.name(), qt::look::border.name());
}

QLabel* field(const char* name, int width) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(width);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(fieldStyle(qt::look::surface));
    return label;
}

} // namespace

StatusLine::StatusLine(const frmMain& form)
    : date_(field("fldDatum", 72)), weekday_(field("fldWochentag", 36)), holiday_(field("txtFeiertag", 0)),
      paid_(field("cmdBezahlt", 72)), help_(new QLabel) {
    help_->setObjectName(QStringLiteral("lblHilfe"));
    help_->setTextFormat(Qt::PlainText);
    help_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    for (auto* label : {date_, weekday_, holiday_, paid_})
        row->addWidget(label);
    row->addWidget(help_, 1);
    refresh(form);
}

void StatusLine::refresh(const frmMain& form) {
    date_->setText(qt::text(form.fldDatum.Text));
    weekday_->setText(qt::text(form.fldWochentag.Text));
    holiday_->setText(qt::text(form.txtFeiertag.Text));
    holiday_->setVisible(form.txtFeiertag.Visible);
    paid_->setText(qt::text(form.cmdBezahlt.Caption));
    const auto style = fieldStyle(form.cmdBezahlt.BackColor ? colour(*form.cmdBezahlt.BackColor) : qt::look::surface);
    if (paid_->styleSheet() != style) paid_->setStyleSheet(style);
    paid_->setToolTip(qt::text(form.cmdBezahlt.ToolTipText));
    help_->setText(qt::text(form.lblHilfe.Caption));
}

} // namespace plan
