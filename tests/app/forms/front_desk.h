#pragma once

#include "app/forms/hand.h"
#include "app/plan_window.h"
#include "app/windows.h"
#include "plan/forms/plan_widget.h"
#include "support/test_house.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QWidget>

#include <memory>

namespace app {

template <typename T>
T& find(QWidget& window, const char* name) {
    auto* widget = window.findChild<T*>(QString::fromUtf8(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
}

/// The program without its `main`, on the files of a house. It is Monday, 15.06.2026; the plan's first column is the
/// Saturday before.
class FrontDesk {
    services::MemorySettings settings_;
    support::NoShell shell_;
    support::OneUser user_;
    support::TestHouse& house_;

public:
    FrontDesk(support::TestHouse& house, services::Dialogs& dialogs);

    /// Opens the plan on the house's files at once, without the start and its questions.
    void open();
    void show(std::unique_ptr<PlanWindow> loaded);

    // The plan

    [[nodiscard]] plan::PlanWidget& widget() const {
        return static_cast<plan::PlanWidget&>(find<QWidget>(plan->window(), "plan"));
    }
    [[nodiscard]] QPoint at(int line, int dayOfJune) const;
    [[nodiscard]] QImage picture(int line, int dayOfJune) const;
    /// ID of the stay in the cell; 0 when it is free.
    [[nodiscard]] int stay(int line, int dayOfJune) const;
    [[nodiscard]] const plan::Zellbild& look(int line, int dayOfJune) const;

    // The user

    void chooseType(const char* button) const;
    /// Presses on the first day and goes to the last one, with the button held.
    void draw(int line, int from, int to) const;
    void release(int line, int dayOfJune) const { hand::release(widget(), at(line, dayOfJune)); }
    /// The right button on a cell, then the entry with this text.
    void chooseOn(int line, int dayOfJune, const char* text) const;
    /// The timer of the plan comes due this often.
    void minutes(int count) const;

    QtWindows windows;
    start::GlobalState g;
    std::unique_ptr<PlanWindow> plan;

private:
    [[nodiscard]] int cell(int line, int dayOfJune) const;
};

} // namespace app
