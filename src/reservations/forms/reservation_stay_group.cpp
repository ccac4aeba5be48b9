#include "reservations/forms/reservation_groups.h"

#include "platform/qt/date_box.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace reservations {

using services::Key;

namespace {

void addRoom(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto* room = parts.combo("fldZimmer", form.fldZimmer,
                             {.change = [&form] { form.fldZimmer_Click(); },
                              .click = [&form] { form.fldZimmer_Click(); },
                              .leave = [&form] { return form.fldZimmer_LostFocus(); }});
    card.grid->addWidget(parts.label("lbZimmer", form.lbZimmer, room), 0, 0);
    card.grid->addWidget(room, 0, 1, 1, 3);
    auto* which = parts.options(
        "OptZiAuswahl1", form.OptZiAuswahl1, [&form](int index) { form.OptZiAuswahl1_Click(index); },
        [&form](Key key) { return form.OptZiAuswahl1_KeyDown(key); });
    auto* again = parts.button("cmdAuswahl", form.cmdAuswahl, [&form] { form.cmdAuswahl_Click(); });
    card.grid->addLayout(qt::inRow({which, nullptr, again}), 1, 1, 1, 3);
}

void addDays(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto* arrival = parts.date("fldVon", form.fldVon,
                               {.change = [&form] { form.fldVon_Change(); },
                                .leave = [&form] { return form.fldVon_LostFocus(); },
                                .key = [&form](Key key) { return form.fldVon_KeyDown(key); }});
    auto* departure = parts.date("fldBis", form.fldBis,
                                 {.change = [&form] { form.fldBis_Change(); },
                                  .leave = [&form] { return form.fldBis_LostFocus(); },
                                  .key = [&form](Key key) { return form.fldBis_KeyDown(key); }});
    departure->comesAfter(*arrival);
    addField(card, 2, 0, QStringLiteral("Anreise"), arrival);
    addField(card, 2, 2, QStringLiteral("Abreise"), departure);
}

void addGuests(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto* type = parts.combo("cboArt", form.cboArt, {.click = [&form] { form.cboArt_Click(); }});
    card.grid->addWidget(parts.label("lbArt", form.lbArt, type), 3, 0);
    card.grid->addWidget(type, 3, 1);
    addField(card, 3, 2, QStringLiteral("Nächte"),
             parts.text("fldResTage", form.fldResTage, plainEvents(form, form.fldResTage)));
    addField(card, 4, 0, QStringLiteral("Erwachsene"),
             parts.text("fldAnzahlG_ste", form.fldAnzahlG_ste, plainEvents(form, form.fldAnzahlG_ste)));
    addField(card, 4, 2, QStringLiteral("Kinder"),
             parts.text("txtAnz_Kinder", form.txtAnz_Kinder, plainEvents(form, form.txtAnz_Kinder)));
}

/// The writing stands on the red label. Its place is kept while there is nothing to warn of.
void addWarning(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto* back = parts.label("lbWarnung", form.lbWarnung);
    auto* writing = parts.label("lbWarnungSchrift", form.lbWarnungSchrift);
    auto keepsPlace = back->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    auto bold = writing->font();
    bold.setBold(true);
    auto white = writing->palette();
    white.setColor(QPalette::WindowText, Qt::white);
    writing->setFont(bold);
    writing->setPalette(white);
    writing->setAlignment(Qt::AlignCenter);
    for (auto* label : {back, writing}) {
        label->setSizePolicy(keepsPlace);
        label->setMinimumHeight(26);
        card.grid->addWidget(label, 5, 0, 1, 4);
    }
    writing->raise();
}

} // namespace

qt::TextEvents plainEvents(frmReservierung& form, services::TextBox& control) {
    return {.change = [&form] { form.Feld_Change(); },
            .leave = [&form, &control] { return form.Text_LostFocus(control); }};
}

QWidget* stayGroup(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Aufenthalt"), &parts.window());
    addRoom(card, parts, form);
    addDays(card, parts, form);
    addGuests(card, parts, form);
    addWarning(card, parts, form);
    for (const int column : {1, 3})
        card.grid->setColumnStretch(column, 1);
    return card.frame;
}

QWidget* priceGroup(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Preis"), &parts.window());
    addField(card, 0, 0, QStringLiteral("Einzelpreis"),
             parts.combo("cboTarif", form.cboTarif,
                         {.change = [&form] { form.cboTarif_Change(); },
                          .click = [&form] { form.cboTarif_Change(); },
                          .leave = [&form] { return form.cboTarif_LostFocus(); },
                          .key = [&form](Key key) { return form.cboTarif_KeyDown(key); }}));
    auto* total = parts.text(
        "fldPreis", form.fldPreis,
        {.change = [&form] { form.fldPreis_Change(); }, .leave = [&form] { return form.fldPreis_LostFocus(); }});
    total->setAlignment(Qt::AlignRight);
    addField(card, 0, 2, QStringLiteral("Gesamtpreis"), total);
    auto* season = parts.button("cmdSaisonpreis", form.cmdSaisonpreis, [&form] { form.cmdSaisonpreis_Click(); });
    auto* fixed = parts.check("chFix", form.chFix, [&form] { form.chFix_Click(); });
    card.grid->addLayout(qt::inRow({season, nullptr, fixed}), 1, 1, 1, 3);
    for (const int column : {1, 3})
        card.grid->setColumnStretch(column, 1);
    return card.frame;
}

QWidget* stateGroup(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Stand"), &parts.window());
    auto* in = parts.button("lbChecked", form.lbChecked, [&form] { form.lbChecked_Click(); });
    auto* today = parts.button("cmdHeute", form.cmdHeute, [&form] { form.cmdHeute_Click(); });
    auto* block = parts.button("cmdBemBlock", form.cmdBemBlock, [&form] { form.cmdBemBlock_Click(); });
    auto* billed = parts.button("cmdAbgerechnet", form.cmdAbgerechnet, [&form] { form.cmdAbgerechnet_Click(); });
    auto* paid = parts.button("cmdBezahlt", form.cmdBezahlt, [&form] { form.cmdBezahlt_Click(); });
    auto* payments = parts.button("cmdZahlDetails", form.cmdZahlDetails, {});
    QPushButton* const buttons[2][3] = {{in, today, block}, {billed, paid, payments}};
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column) {
            card.grid->addWidget(buttons[row][column], row, column);
            card.grid->setColumnStretch(column, 1);
        }
    return card.frame;
}

} // namespace reservations
