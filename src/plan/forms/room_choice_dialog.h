#pragma once

#include "plan/room_choice.h"

#include <QDialog>

class QListWidget;

namespace plan {

/// The choice among the stays that share a cell.
class RoomChoiceDialog : public QDialog {
public:
    /// The model must outlive the dialog.
    RoomChoiceDialog(frmZimmerauswahl& form, const QString& title, QWidget* parent);

private:
    void choose();

    frmZimmerauswahl& form_;
    QListWidget* list_;
};

} // namespace plan
