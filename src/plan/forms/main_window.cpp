#include "plan/forms/main_window.h"

#include "plan/forms/context_menu.h"
#include "plan/forms/flow_layout.h"
#include "plan/forms/plan_painter.h"
#include "plan/forms/plan_widget.h"
#include "plan/forms/status_line.h"
#include "plan/forms/type_frame.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>
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

QLabel* plainLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* heading(const char* name, int pixels) {
    auto* label = plainLabel(name);
    auto font = label->font();
    font.setPixelSize(pixels);
    font.setBold(true);
    label->setFont(font);
    return label;
}

void writeIn(QLabel& label, const QColor& ink) { label.setStyleSheet(QStringLiteral("color: %1;").arg(ink.name())); }

/// "Heute" begins the second half of the buttons, those that lead forward.
std::size_t forwardButtons() {
    std::size_t index = 0;
    while (index < Navigationsleiste.size() && Navigationsleiste[index].art != Navigation::Art::Heute)
        ++index;
    return index;
}

} // namespace

MainWindow::MainWindow(frmMain& form)
    : form_(form), period_(heading("lblZeitraum", 18)), sample_(heading("lblBeispieldaten", 13)),
      error_(plainLabel("lblFehler")), new_(new QPushButton),
      types_(new TypeFrame(form.optBelArt, [this](int index) { run([=, this] { form_.optBelArt_Click(index); }); })),
      status_(new StatusLine(form)), plan_(new PlanWidget(form.Raster())), scrollColumn_(new QWidget),
      scrollBar_(new QScrollBar(Qt::Vertical)),
      menu_(std::make_unique<qt::MenuView>(form.Menü,
                                           [this](const std::string& name) { run([&] { form_.Menu_Click(name); }); })) {
    setObjectName(QStringLiteral("frmMain"));
    writeIn(*error_, qt::look::alert);
    writeIn(*sample_, colour(form.lblBeispieldaten.ForeColor.value_or(Schwarz)));
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(14, 10, 14, 10);
    all->setSpacing(8);
    all->setMenuBar(menu_->bar());
    all->addLayout(periodRow());
    all->addLayout(typeRow());
    all->addLayout(planWithScrollBar(), 1);
    all->addWidget(error_);
    all->addWidget(status_);
    connectPlan();
    startTimer();
    refresh();
    resize(sizeHint().boundedTo(screen()->availableSize())); // of itself a window opens at two thirds of the screen
    plan_->setFocus();
}

MainWindow::~MainWindow() {
    plan_->onLost = nullptr; // its focus goes after the parts that would show the loss
}

void MainWindow::run(const std::function<void()>& event) {
    event();
    refresh();
    if (form_.Endegewünscht()) close();
}

void MainWindow::connectPlan() {
    plan_->onWheel = [this](int rows) { scrollBar_->setValue(scrollBar_->value() + rows); };
    plan_->onWheelDays = [this](int days) { run([&] { form_.subZeigeDatum(form_.Raster().PlanStart() + days); }); };
    plan_->onKey = [this](Plantaste taste, Umschalt shift) { return key(taste, shift); };
    plan_->onToolTip = [this](int line, int column) { return form_.ToolTip(line, column); };
    auto* cursor = new QShortcut(QKeySequence(Qt::Key_F6), this);
    connect(cursor, &QShortcut::activated, this, [this] {
        plan_->setFocus();
        (void)key(Plantaste::F6, Umschalt::Los);
    });
    connectMouse();
    connectFrame();
}

void MainWindow::connectMouse() {
    plan_->onMove = [this](int line, int column, Maustaste held) { apply(form_.MouseMove(line, column, held)); };
    plan_->onPress = [this](int line, int column) { apply(form_.MouseDown(line, column)); };
    plan_->onHold = [this] {
        apply(form_.MouseHold());
        return form_.AuswahlAktiv();
    };
    plan_->onRelease = [this] { apply(form_.MouseUp()); };
    plan_->onLost = [this] { apply(form_.MouseLost()); };
    plan_->onRest = [this] {
        form_.MouseRest();
        refreshStatus();
    };
    plan_->onRoom = [this](int line) { run([=, this] { form_.Zimmer_Click(line); }); };
    plan_->onContext = [this](const PlanHit& hit, QPoint global) { rightButton(hit, global); };
}

void MainWindow::connectFrame() {
    types_->onHeading = [this] { run([this] { form_.Beschriftung_Ändern(Planbeschriftung::Belegungsrahmen); }); };
    types_->onContext = [this](QPoint global) {
        form_.Kontext_Öffnen(Kontext::KONTEXTBelArt);
        openContextMenuAt(global);
    };
}

void MainWindow::startTimer() {
    auto* timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("TimerAktualisieren"));
    timer->setInterval(60000);
    connect(timer, &QTimer::timeout, this, [this] { run([this] { form_.TimerAktualisieren_Timer(); }); });
    timer->start();
}

void MainWindow::apply(Wirkung wirkung) {
    if (wirkung == Wirkung::Nichts) return;
    if (wirkung == Wirkung::Plan) return refresh();
    if (wirkung == Wirkung::Auswahl) plan_->refreshSelection(form_.Auswahlplatz());
    refreshStatus();
}

void MainWindow::rightButton(const PlanHit& hit, QPoint global) {
    using Part = PlanHit::Part;
    switch (hit.part) {
    case Part::Cell:
        run([&] { form_.RechteTaste(hit.line, hit.column); });
        break;
    case Part::RoomHeading:
        return run([this] { form_.Beschriftung_Ändern(Planbeschriftung::Zimmerspalte); });
    case Part::Room:
    case Part::RoomColumn:
        form_.Kontext_Öffnen(Kontext::KontextZimmer);
        break;
    case Part::Extras:
        form_.Kontext_Öffnen(Kontext::kontextZusätze);
        break;
    case Part::Days:
        form_.Kontext_Öffnen(Kontext::KontextDatum);
        break;
    case Part::None:
        return;
    }
    openContextMenuAt(global);
}

void MainWindow::openContextMenuAt(QPoint global) {
    if (form_.Kontextmenü.Entries.empty()) return;
    openContextMenu(*this, form_.Kontextmenü, global,
                    [this](const std::string& name) { run([&] { form_.Kontext_Click(name); }); });
}

bool MainWindow::key(Plantaste key, Umschalt shift) {
    bool taken = false;
    run([&] { taken = form_.KeyDown(key, shift); });
    if (taken && key == Plantaste::Menü) openContextMenuAt(plan_->mapToGlobal(plan_->cursorRect().bottomLeft()));
    return taken;
}

QLayout* MainWindow::periodRow() {
    const auto forward = forwardButtons();
    auto* row = new FlowLayout(6);
    row->addWidget(period_);
    row->addRight(navigation(0, forward));
    row->addRight(navigation(forward, Navigationsleiste.size()));
    return row;
}

QLayout* MainWindow::typeRow() {
    new_->setObjectName(QStringLiteral("cmdNeu"));
    connect(new_, &QPushButton::clicked, this, [this] { run([this] { form_.cmdNeu_Click(); }); });
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(types_, 1);
    row->addWidget(sample_);
    row->addWidget(new_);
    return row;
}

QWidget* MainWindow::navigation(std::size_t first, std::size_t end) {
    auto* group = new QWidget;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    for (auto index = first; index < end; ++index)
        row->addWidget(navigationButton(Navigationsleiste[index]));
    return group;
}

QPushButton* MainWindow::navigationButton(const Navigation& button) {
    auto* widget = new QPushButton(qt::text(button.Caption));
    widget->setObjectName(qt::text(button.Name));
    widget->setToolTip(qt::text(button.ToolTipText));
    connect(widget, &QPushButton::clicked, this, [this, &button] {
        run([&] { form_.Navigation_Click(button); });
        plan_->setFocus();
    });
    return widget;
}

QBoxLayout* MainWindow::planWithScrollBar() {
    auto* middle = new QHBoxLayout;
    middle->setSpacing(4);
    middle->addWidget(plan_, 1);
    scrollColumn_->setLayout(scrollColumn());
    middle->addWidget(scrollColumn_);
    return middle;
}

QBoxLayout* MainWindow::scrollColumn() {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, PlanGeometry::headerHeight, 0, PlanGeometry::lowerDayHeight);
    column->setSpacing(2);
    auto* first = stepButton("cmdErster", Qt::UpArrow, tr("Zum ersten Zimmer"));
    auto* last = stepButton("cmdLetzter", Qt::DownArrow, tr("Zum letzten Zimmer"));
    scrollBar_->setObjectName(QStringLiteral("scrollBar"));
    scrollBar_->setFocusPolicy(Qt::StrongFocus);
    auto* shortcut = new QShortcut(QKeySequence::mnemonic(QStringLiteral("&Scrollbar")), this);
    shortcut->setObjectName(QStringLiteral("cmdScrollBar"));
    connect(shortcut, &QShortcut::activated, scrollBar_, [this] { scrollBar_->setFocus(Qt::ShortcutFocusReason); });
    connect(first, &QToolButton::clicked, this, [this] { run([this] { form_.cmdErster_Click(); }); });
    connect(last, &QToolButton::clicked, this, [this] { run([this] { form_.cmdLetzter_Click(); }); });
    connect(scrollBar_, &QScrollBar::valueChanged, this,
            [this](int value) { run([=, this] { form_.ScrollBar_Change(value); }); });
    column->addWidget(first);
    column->addWidget(scrollBar_, 1);
    column->addWidget(last);
    return column;
}

void MainWindow::refresh() {
    setWindowTitle(qt::text(form_.Caption()));
    period_->setText(qt::text(form_.Zeitraum()));
    sample_->setText(qt::text(form_.lblBeispieldaten.Caption));
    sample_->setVisible(form_.lblBeispieldaten.Visible);
    error_->setText(qt::text(form_.Fehler()));
    error_->setVisible(!form_.Fehler().empty());
    new_->setText(qt::text(form_.cmdNeu.Caption));
    new_->setToolTip(qt::text(form_.cmdNeu.ToolTipText));
    new_->setEnabled(form_.cmdNeu.Enabled);
    menu_->refresh(form_.Menü);
    types_->refresh(form_.optBelArt);
    scrollColumn_->setVisible(form_.ScrollBarVisible());
    const QSignalBlocker blocked(scrollBar_);
    scrollBar_->setRange(0, form_.ScrollBarMax());
    scrollBar_->setPageStep(form_.Raster().Zimmerzeilen());
    scrollBar_->setValue(form_.ScrollBarValue());
    plan_->refresh();
    plan_->refreshSelection(form_.Auswahlplatz());
    plan_->showCursor(form_.Cursor());
    refreshStatus();
}

void MainWindow::refreshStatus() {
    status_->refresh(form_);
    if (form_.lblKürzel.Visible)
        plan_->showShortName(qt::text(form_.lblKürzel.Caption), form_.KürzelPlatz.Zeile, form_.KürzelPlatz.VonSpalte);
    else
        plan_->hideShortName();
}

} // namespace plan
