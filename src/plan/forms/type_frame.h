#pragma once

#include "platform/services/controls.h"

#include <QFrame>

#include <functional>
#include <vector>

class QLabel;
class QRadioButton;

namespace plan {

/// The frame of occupancy types: a heading and a button in each type's colour.
class TypeFrame : public QFrame {
public:
    /// `chosen` is told the index of the pressed button.
    TypeFrame(const services::OptionGroup& types, const std::function<void(int index)>& chosen);

    void refresh(const services::OptionGroup& types);

    /// The right button on the heading, or F2.
    std::function<void()> onHeading;
    /// The right button on the frame, with the place on the screen.
    std::function<void(QPoint global)> onContext;

private:
    void connectRightButton();

    QLabel* heading_;
    std::vector<QRadioButton*> buttons_;
};

} // namespace plan
