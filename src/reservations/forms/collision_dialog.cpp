#include "reservations/forms/collision_dialog.h"

#include "platform/qt/form_parts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace reservations {

namespace {

constexpr int kRoomColumn = 3;

template <typename Widget>
Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(qt::text(name));
    return widget;
}

template <typename Widget>
Widget* named(Widget* widget, const char* name, int index) {
    widget->setObjectName(qt::text(name) + QString::number(index));
    return widget;
}

QLabel* heading(const QString& text = {}) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, qt::look::textMuted);
    label->setPalette(colours);
    return label;
}

QLabel* title(const QString& text = {}) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QFrame* panel() {
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("panel"));
    frame->setStyleSheet(QStringLiteral("QFrame#panel { background: %1; border: 1px solid %2; border-radius: 6px; }")
                             .arg(qt::look::surface.name(), qt::look::border.name()));
    return frame;
}

/// The default button and the scroll bar stand out; %1 accent, %2 text on it, %3 ground, %4 handle.
constexpr auto kStyle = R"(
QPushButton:default { background: %1; border-color: %1; color: %2; }
QPushButton:default:hover { color: %2; }
QScrollBar:vertical { background: %3; border: none; border-radius: 5px; width: 10px; }
QScrollBar::handle:vertical { background: %4; border-radius: 5px; min-height: 20px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; }
)";

/// The headings of both lists; that of the rooms is the model's.
QLabel* addHeadings(QGridLayout& grid) {
    grid.addWidget(heading(qt::text("Kurzinfo")), 0, 0);
    grid.addWidget(heading(qt::text("Von")), 0, 1);
    grid.addWidget(heading(qt::text("Bis")), 0, 2);
    auto* room = heading();
    grid.addWidget(room, 0, kRoomColumn);
    grid.setColumnStretch(0, 3);
    grid.setColumnStretch(kRoomColumn, 2);
    grid.setHorizontalSpacing(16);
    grid.setVerticalSpacing(6);
    return room;
}

} // namespace

CollisionDialog::CollisionDialog(frmCollision& form, QWidget* parent)
    : QDialog(parent), form_(&form), scrollBar_(new QScrollBar(Qt::Vertical)), binding_(*this) {
    setObjectName(QStringLiteral("frmCollision"));
    setWindowTitle(qt::text(frmCollision::Caption));
    setStyleSheet(QString::fromLatin1(kStyle).arg(qt::look::accent.name(), qt::look::onAccent.name(),
                                                  qt::look::window.name(), qt::look::borderStrong.name()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(8);
    auto* conflict = named(title(), "lblÜberschrift");
    binding_.bind(*conflict, form.lblÜberschrift);
    layout->addWidget(title(qt::text("Neue Reservierung")));
    layout->addWidget(newStay());
    layout->addSpacing(8);
    layout->addWidget(conflict);
    layout->addWidget(oldStays());
    layout->addStretch();
    layout->addSpacing(8);
    layout->addLayout(buttons());
    binding_.onRefresh([this] {
        showScrollBar();
        if (form_->Ergebnis()) accept();
    });
    binding_.refresh();
}

void CollisionDialog::reject() {
    binding_.run([this] { form_->cmdÄndern_Click(); });
}

void CollisionDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // Its message stands in front of the window, which has to be up for that.
    QMetaObject::invokeMethod(
        this, [this] { binding_.run([this] { form_->Form_Activate(); }); }, Qt::QueuedConnection);
}

void CollisionDialog::wheelEvent(QWheelEvent* event) {
    constexpr int notch = 120;
    wheel_ += event->angleDelta().y();
    scrollBar_->setValue(scrollBar_->value() - wheel_ / notch);
    wheel_ %= notch;
    event->accept();
}

QWidget* CollisionDialog::newStay() {
    QFrame* frame = panel();
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(16, 12, 16, 14);
    binding_.bind(*addHeadings(*grid), form_->lblBezeichnung);
    const auto add = [&](const char* name, services::TextBox& control, int column) {
        auto* edit = new QLineEdit;
        grid->addWidget(named(edit, name), 1, column);
        binding_.bind(*edit, control);
    };
    add("txtKürzel", form_->txtKürzel, 0);
    add("txtVon", form_->txtVon, 1);
    add("txtBis", form_->txtBis, 2);
    add("txtBezeichnungNeu", form_->txtBezeichnungNeu, kRoomColumn);
    return frame;
}

QWidget* CollisionDialog::oldStays() {
    QFrame* frame = panel();
    auto* line = new QHBoxLayout(frame);
    line->setContentsMargins(16, 12, 12, 14);
    auto* grid = new QGridLayout;
    QLabel* room = named(addHeadings(*grid), "lblBezeichnung");
    binding_.bind(*room, form_->lblBezeichnung);
    for (int row = 0; row < frmCollision::Zeilen; ++row)
        addRow(*grid, row);
    line->addLayout(grid, 1);
    connect(scrollBar_, &QScrollBar::valueChanged, this,
            [this](int position) { binding_.run([this, position] { form_->scrColli_Change(position); }); });
    line->addWidget(named(scrollBar_, "scrColli"));
    return frame;
}

void CollisionDialog::addRow(QGridLayout& grid, int line) {
    const auto place = static_cast<std::size_t>(line);
    const auto addText = [&](const char* name, services::Label& control, int column) {
        auto* label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        grid.addWidget(named(label, name, line), line + 1, column);
        binding_.bind(*label, control);
    };
    addText("lblKürzel", form_->lblKürzel[place], 0);
    addText("lblVon", form_->lblVon[place], 1);
    addText("lblBis", form_->lblBis[place], 2);
    auto* room = new QComboBox;
    auto* waits = new QCheckBox;
    grid.addWidget(named(room, "cboBez", line), line + 1, kRoomColumn);
    grid.addWidget(named(waits, "chkLöschen", line), line + 1, kRoomColumn + 1);
    binding_.bind(
        *room, form_->cboBez[place],
        {.change = [this, line] { form_->cboBez_Change(line); }, .click = [this, line] { form_->cboBez_Click(line); }});
    binding_.bind(*waits, form_->chkLöschen[place], [this, line] { form_->chkLöschen_Click(line); });
}

QBoxLayout* CollisionDialog::buttons() {
    auto* line = new QHBoxLayout;
    qt::FormParts parts(*this, binding_);
    parts.button(*line, "cmdOK", form_->cmdOK, [this] { form_->cmdOK_Click(); })->setDefault(true);
    line->addStretch();
    parts.button(*line, "cmdÄndern", form_->cmdÄndern, [this] { form_->cmdÄndern_Click(); });
    parts.button(*line, "cmdAbbrechen", form_->cmdAbbrechen, [this] { form_->cmdAbbrechen_Click(); });
    parts.button(*line, "cmdWarten", form_->cmdWarten, [this] { form_->cmdWarten_Click(); });
    return line;
}

void CollisionDialog::showScrollBar() {
    const QSignalBlocker silent(scrollBar_);
    scrollBar_->setRange(1, std::max(form_->scrColliMax, 1));
    scrollBar_->setPageStep(frmCollision::Zeilen);
    scrollBar_->setValue(form_->scrColli);
    scrollBar_->setVisible(form_->scrColliMax > 0);
}

} // namespace reservations
