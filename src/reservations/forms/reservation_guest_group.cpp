#include "reservations/forms/reservation_groups.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace reservations {

using services::Key;

namespace {

constexpr int postalCodeWidth = 80;

void addName(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto& address = form.adresse;
    auto* name = parts.matches("cboAdresse", address.cboAdresse,
                               {.change = [&address] { address.cboAdresse_Change(); },
                                .choose = [&address](std::int64_t id) { address.cboAdresse_Click(id); },
                                .leave = [&form] { return form.Text_LostFocus(form.adresse.cboAdresse); },
                                .key = [&address](Key key) { return address.cboAdresse_KeyDown(key); }});
    name->setPlaceholderText(QStringLiteral("Name eingeben oder aus der Liste wählen"));
    addField(card, 0, 0, QStringLiteral("Nachname"), name, 3);
    addField(card, 1, 0, QStringLiteral("Vorname"),
             parts.text("txtVorname", address.txtVorname, plainAddressEvents(form, address.txtVorname)));
    addField(
        card, 1, 2, QStringLiteral("Anrede"),
        parts.combo("cboAnrede", address.cboAnrede,
                    {.change = [&address] { address.Feld_Change(); }, .click = [&address] { address.Feld_Change(); }}));
    addField(card, 2, 0, QStringLiteral("Name 2 / Firma"),
             parts.text("txtName2", address.txtName2, plainAddressEvents(form, address.txtName2)), 3);
}

void addTown(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto& address = form.adresse;
    addField(card, 3, 0, QStringLiteral("Straße"),
             parts.text("txtStrasse", address.txtStrasse, plainAddressEvents(form, address.txtStrasse)), 3);
    auto* code = parts.text(
        "txtPLZ", address.txtPLZ,
        {.change = [&address] { address.Feld_Change(); }, .leave = [&address] { return address.txtPLZ_LostFocus(); }});
    code->setFixedWidth(postalCodeWidth);
    auto* town =
        parts.combo("cboOrt", address.cboOrt,
                    {.change = [&address] { address.Feld_Change(); }, .click = [&address] { address.cboOrt_Click(); }});
    auto* line = qt::inRow({code, town});
    line->setStretch(1, 1);
    addCaption(card, 4, 0, QStringLiteral("PLZ, Ort"), code);
    card.grid->addLayout(line, 4, 1, 1, 3);
    addField(card, 5, 0, QStringLiteral("Land"),
             parts.combo("cboLand", address.cboLand,
                         {.change = [&address] { address.Feld_Change(); },
                          .click = [&address] { address.Feld_Change(); },
                          .leave = [&address] { return address.cboLand_LostFocus(); },
                          .key = [&address](Key key) { return address.cboLand_KeyDown(key); }}),
             3);
}

void addContact(const qt::Card& card, qt::FormParts& parts, frmReservierung& form) {
    auto& address = form.adresse;
    addField(card, 6, 0, QStringLiteral("Telefon"),
             parts.text("txtTelefon", address.txtTelefon, plainAddressEvents(form, address.txtTelefon)));
    addField(card, 6, 2, QStringLiteral("Fax"),
             parts.text("txtFax", address.txtFax, plainAddressEvents(form, address.txtFax)));
    addField(card, 7, 0, QStringLiteral("E-Mail"),
             parts.text("txtEMail", address.txtEMail, plainAddressEvents(form, address.txtEMail)), 3);
}

} // namespace

qt::TextEvents plainAddressEvents(frmReservierung& form, services::TextBox& control) {
    return {.change = [&form] { form.adresse.Feld_Change(); },
            .leave = [&form, &control] { return form.Text_LostFocus(control); }};
}

QWidget* guestGroup(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Gast"), &parts.window());
    auto& address = form.adresse;
    addName(card, parts, form);
    addTown(card, parts, form);
    addContact(card, parts, form);
    auto* regular = parts.check(
        "chStammkunde", address.chStammkunde, [&address] { address.Feld_Change(); },
        [&address](Key key) { return address.chStammkunde_KeyDown(key); });
    auto* another = parts.button("cmdNeuAdress", address.cmdNeuAdress, [&address] { address.cmdNeuAdress_Click(); });
    auto* store =
        parts.button("cmdAdresseSpeichern", address.cmdAdresseSpeichern, [&form] { form.cmdAdresseSpeichern_Click(); });
    card.grid->addLayout(qt::inRow({regular, nullptr, another, store}), 8, 0, 1, 4);
    for (const int column : {1, 3})
        card.grid->setColumnStretch(column, 1);
    return card.frame;
}

QWidget* noteGroup(qt::FormParts& parts, frmReservierung& form) {
    const qt::Card card = qt::makeCard(QStringLiteral("Auf dem Plan"), &parts.window());
    addField(card, 0, 0, QStringLiteral("Kurzinfo"),
             parts.text("fldK_rzel", form.fldK_rzel,
                        {.change = [&form] { form.fldK_rzel_Change(); },
                         .leave = [&form] { return form.Text_LostFocus(form.fldK_rzel); }}));
    addField(card, 1, 0, QStringLiteral("Bemerkung"),
             parts.lines("fldInfo", form.fldInfo, plainEvents(form, form.fldInfo)));
    card.grid->setColumnStretch(1, 1);
    letGrow(card);
    return card.frame;
}

} // namespace reservations
