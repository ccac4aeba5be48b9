#include "plan/forms/main_window.h"

#include "plan/forms/plan_widget.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace plan {

namespace {

QToolButton* stepButton(const char* name, Qt::ArrowType arrow, const QString& toolTip) {
    auto* button = new QToolButton;
    button->setObjectName(QString::fromLatin1(name));
    button->setArrowType(arrow);
    button->setToolTip(toolTip);
    button->setAutoRaise(true);
    button->setFixedSize(20, 20);
    return button;
}

QLabel* heading() {
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("lblZeitraum"));
    auto font = label->font();
    font.setPixelSize(18);
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

MainWindow::MainWindow(frmMain& form)
    : form_(form), period_(heading()), error_(new QLabel), plan_(new PlanWidget(form.Raster())),
      scrollColumn_(new QWidget), scrollBar_(new QScrollBar(Qt::Vertical)) {
    setObjectName(QStringLiteral("frmMain"));
    error_->setObjectName(QStringLiteral("lblFehler"));
    error_->setStyleSheet(QStringLiteral("color: %1;").arg(qt::look::alert.name()));
    plan_->onWheel = [this](int rows) { scrollBar_->setValue(scrollBar_->value() + rows); };
    auto* middle = new QHBoxLayout;
    middle->setSpacing(4);
    middle->addWidget(plan_, 1);
    scrollColumn_->setLayout(scrollColumn());
    middle->addWidget(scrollColumn_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(14, 12, 14, 12);
    all->setSpacing(10);
    all->addLayout(navigationBar());
    all->addLayout(middle, 1);
    all->addWidget(error_);
    refresh();
}

QBoxLayout* MainWindow::navigationBar() {
    auto* bar = new QHBoxLayout;
    bar->setSpacing(6);
    bar->addWidget(period_);
    bar->addStretch(1);
    for (const auto& button : Navigationsleiste)
        addNavigation(*bar, button);
    return bar;
}

void MainWindow::addNavigation(QBoxLayout& bar, const Navigation& button) {
    auto* widget = new QPushButton(qt::text(button.Caption));
    widget->setObjectName(qt::text(button.Name));
    widget->setToolTip(qt::text(button.ToolTipText));
    connect(widget, &QPushButton::clicked, this, [this, &button] {
        form_.Navigation_Click(button);
        refresh();
        plan_->setFocus();
    });
    bar.addWidget(widget);
}

QBoxLayout* MainWindow::scrollColumn() {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, PlanGeometry::headerHeight, 0, PlanGeometry::lowerDayHeight);
    column->setSpacing(2);
    auto* first = stepButton("cmdErster", Qt::UpArrow, tr("Zum ersten Zimmer"));
    auto* last = stepButton("cmdLetzter", Qt::DownArrow, tr("Zum letzten Zimmer"));
    scrollBar_->setObjectName(QStringLiteral("scrollBar"));
    const auto after = [this](auto event) {
        return [this, event] {
            event();
            refresh();
        };
    };
    connect(first, &QToolButton::clicked, this, after([this] { form_.cmdErster_Click(); }));
    connect(last, &QToolButton::clicked, this, after([this] { form_.cmdLetzter_Click(); }));
    connect(scrollBar_, &QScrollBar::valueChanged, this, [this](int value) {
        form_.ScrollBar_Change(value);
        refresh();
    });
    column->addWidget(first);
    column->addWidget(scrollBar_, 1);
    column->addWidget(last);
    return column;
}

void MainWindow::refresh() {
    setWindowTitle(qt::text(form_.Caption()));
    period_->setText(qt::text(form_.Zeitraum()));
    error_->setText(qt::text(form_.Fehler()));
    error_->setVisible(!form_.Fehler().empty());
    scrollColumn_->setVisible(form_.ScrollBarVisible());
    const QSignalBlocker blocked(scrollBar_);
    scrollBar_->setRange(0, form_.ScrollBarMax());
    scrollBar_->setPageStep(form_.Raster().Zimmerzeilen());
    scrollBar_->setValue(form_.ScrollBarValue());
    plan_->refresh();
}

} // namespace plan
