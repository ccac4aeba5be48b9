#pragma once

#include "platform/qt/form_parts.h"
#include "reservations/reservation_form.h"

class QLayout;
class QWidget;

namespace reservations {

// The groups of the reservation form's window, each with its fields tied to the model.

/// The guest and his address.
[[nodiscard]] QWidget* guestGroup(qt::FormParts& parts, frmReservierung& form);
/// Short name and remark.
[[nodiscard]] QWidget* noteGroup(qt::FormParts& parts, frmReservierung& form);
/// Room, days, type and number of guests, with the warning of an overlap.
[[nodiscard]] QWidget* stayGroup(qt::FormParts& parts, frmReservierung& form);
[[nodiscard]] QWidget* priceGroup(qt::FormParts& parts, frmReservierung& form);
/// Whether the guest is in the house, has been billed, has paid.
[[nodiscard]] QWidget* stateGroup(qt::FormParts& parts, frmReservierung& form);

/// What only the large form shows: three groups below each other.
[[nodiscard]] QWidget* extrasFrame(qt::FormParts& parts, frmReservierung& form);

/// Documents, the waiting row and the deletion.
[[nodiscard]] QLayout* documentButtons(qt::FormParts& parts, frmReservierung& form);
/// Walking through the waiting row, the size, storing and closing.
[[nodiscard]] QLayout* closingButtons(qt::FormParts& parts, frmReservierung& form);

/// What a plain text box of the stay does.
[[nodiscard]] qt::TextEvents plainEvents(frmReservierung& form, services::TextBox& control);
/// What a plain text box of the address does.
[[nodiscard]] qt::TextEvents plainAddressEvents(frmReservierung& form, services::TextBox& control);

} // namespace reservations
