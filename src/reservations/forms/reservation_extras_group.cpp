#include "reservations/forms/reservation_groups.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace reservations {

namespace {

constexpr int frameWidth = 370;

qt::Card billing(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Rechnung und Nummer"), &parts.window());
    auto* payer = parts.matches("cboAdrRechnung", form.cboAdrRechnung,
                                {.change = [&form] { form.cboAdrRechnung_Change(); },
                                 .choose = [&form](std::int64_t id) { form.cboAdrRechnung_Click(id); },
                                 .leave = [&form] { return form.cboAdrRechnung_LostFocus(); }});
    payer->setPlaceholderText(QStringLiteral("wie Gast"));
    addField(card, 0, 0, QStringLiteral("Rechnung an"), payer, 3);
    addField(card, 1, 0, QStringLiteral("Nummer"),
             parts.text("txtBeNummer_eigen", form.txtBeNummer_eigen,
                        {.change = [&form] { form.txtBeNummer_eigen_Change(); },
                         .leave = [&form] { return form.txtBeNummer_eigen_LostFocus(); },
                         .doubleClick = [&form] { form.txtBeNummer_eigen_DblClick(); }}));
    addField(card, 1, 2, QStringLiteral("Reserviert am"),
             parts.text("txtResDatum", form.txtResDatum, plainEvents(form, form.txtResDatum)));
    addField(card, 2, 0, QStringLiteral("Erfasst von"), parts.text("txtWE", form.txtWE, plainEvents(form, form.txtWE)));
    addField(card, 2, 2, QStringLiteral("geändert von"),
             parts.text("txtWG", form.txtWG, plainEvents(form, form.txtWG)));
    return card;
}

void addLaundry(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto* first = parts.text("fldW_sche1", form.fldW_sche1, plainEvents(form, form.fldW_sche1));
    auto* second = parts.text("fldW_sche2", form.fldW_sche2, plainEvents(form, form.fldW_sche2));
    card.grid->addWidget(parts.label("lbW_sche1", form.lbW_sche1, first), 3, 0);
    card.grid->addWidget(first, 3, 1);
    card.grid->addWidget(parts.label("lbW_sche2", form.lbW_sche2, second), 3, 2);
    card.grid->addWidget(second, 3, 3);
}

qt::Card meals(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Verpflegung, Wäsche, Kinder"), &parts.window());
    const auto change = [&form] { form.Feld_Change(); };
    auto* breakfast = parts.check("chFr_hst_ck", form.chFr_hst_ck, change);
    auto* lunch = parts.check("chMittag", form.chMittag, change);
    auto* dinner = parts.check("chAbendessen", form.chAbendessen, change);
    card.grid->addLayout(qt::inRow({breakfast, lunch, dinner, nullptr}), 0, 0, 1, 4);
    card.grid->addWidget(parts.check("chNichtAnlegen", form.chNichtAnlegen, change), 1, 0, 1, 4);
    addField(card, 2, 0, QStringLiteral("Artikel"),
             parts.combo("cboArtikel", form.cboArtikel, {.change = change, .click = change}), 3);
    addLaundry(card, parts, form);
    addField(card, 4, 0, QStringLiteral("Alter der Kinder"),
             parts.text("txtAlter_Kinder", form.txtAlter_Kinder, plainEvents(form, form.txtAlter_Kinder)), 3);
    return card;
}

qt::Card guest(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Weitere Angaben zum Gast"), &parts.window());
    auto& address = form.adresse;
    const auto change = [&address] { address.Feld_Change(); };
    addField(card, 0, 0, QStringLiteral("Raucher"),
             parts.combo("cboRaucher", address.cboRaucher, {.change = change, .click = change}), 3);
    addField(card, 1, 0, QStringLiteral("Bemerkung"),
             parts.lines("txtBemerkAdr", address.txtBemerkAdr, plainAddressEvents(form, address.txtBemerkAdr)), 3);
    const auto plain = [&](const char* name, services::TextBox& control) {
        return parts.text(name, control, plainAddressEvents(form, control));
    };
    addField(card, 2, 0, QStringLiteral("Angelegt von"), plain("txtAdrWE", address.txtAdrWE));
    addField(card, 2, 2, QStringLiteral("am"), plain("txtAdrWannErstellt", address.txtAdrWannErstellt));
    addField(card, 3, 0, QStringLiteral("Geändert von"), plain("txtAdrWG", address.txtAdrWG));
    addField(card, 3, 2, QStringLiteral("am"), plain("txtAdrWannGeändert", address.txtAdrWannGeändert));
    letGrow(card);
    return card;
}

} // namespace

QWidget* extrasFrame(qt::FormParts& parts, frmReservierung& form) {
    auto* frame = new QWidget(&parts.window());
    frame->setObjectName(QStringLiteral("frZusatz"));
    frame->setFixedWidth(frameWidth);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    for (const qt::Card& card : {billing(parts, form), meals(parts, form), guest(parts, form)}) {
        for (const int field : {1, 3})
            card.grid->setColumnStretch(field, 1);
        column->addWidget(card.frame);
    }
    return frame;
}

} // namespace reservations
