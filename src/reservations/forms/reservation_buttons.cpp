#include "reservations/forms/reservation_groups.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace reservations {

QLayout* documentButtons(qt::FormParts& parts, frmReservierung& form) {
    auto* preview = parts.button("cmdBestVorschau", form.cmdBestVorschau, {});
    auto* invoice = parts.button("cmdRechnung", form.cmdRechnung, {});
    auto* registration = parts.button("cmdAnmeldung", form.cmdAnmeldung, {});
    auto* block = parts.button("cmdBlockbuchung", form.cmdBlockbuchung, {});
    auto* wait = parts.button("cmdWarten", form.cmdWarten, [&form] { form.cmdWarten_Click(); });
    auto* remove = parts.button("cmdL_schen", form.cmdL_schen, [&form] { form.cmdL_schen_Click(); });
    return qt::inRow({preview, invoice, registration, block, nullptr, wait, remove});
}

QLayout* closingButtons(qt::FormParts& parts, frmReservierung& form) {
    auto* first = parts.button("cmdErster", form.cmdErster, [&form] { form.cmdErster_Click(); });
    auto* previous = parts.button("cmdVoriger", form.cmdVoriger, [&form] { form.cmdVoriger_Click(); });
    auto* next = parts.button("cmdN_chster", form.cmdN_chster, [&form] { form.cmdN_chster_Click(); });
    auto* last = parts.button("cmdLetzter", form.cmdLetzter, [&form] { form.cmdLetzter_Click(); });
    auto* larger = parts.button("cmdGroesser", form.cmdGroesser, [&form] { form.cmdGroesser_Click(); });
    auto* smaller = parts.button("cmdKleiner", form.cmdKleiner, [&form] { form.cmdKleiner_Click(); });
    for (auto* size : {larger, smaller})
        size->setFocusPolicy(Qt::NoFocus); // the one that was pressed vanishes, the user stays where he was
    auto* store = parts.button("cmdReservieren", form.cmdReservieren, [&form] { form.cmdReservieren_Click(); });
    auto* storeAndClose = parts.button("cmdZu", form.cmdZu, [&form] { form.cmdZu_Click(); });
    storeAndClose->setProperty("primary", true);
    auto* cancel = parts.button("cmdAbbrechen", form.cmdAbbrechen, [&form] { form.cmdAbbrechen_Click(); });
    return qt::inRow({first, previous, next, last, larger, smaller, nullptr, store, storeAndClose, cancel});
}

} // namespace reservations
