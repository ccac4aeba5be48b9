#pragma once

#include "plan/main_form.h"

#include <QWidget>

class QLabel;

namespace plan {

/// What the plan tells about the place under the pointer.
class StatusLine : public QWidget {
public:
    explicit StatusLine(const frmMain& form);

    void refresh(const frmMain& form);

private:
    QLabel* date_;
    QLabel* weekday_;
    QLabel* holiday_;
    QLabel* paid_;
    QLabel* help_;
};

} // namespace plan
