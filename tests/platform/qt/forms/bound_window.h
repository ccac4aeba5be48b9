#pragma once

#include "platform/qt/bind.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

namespace qt {

/// A window with widgets below each other that has the focus.
struct Window : QWidget {
    Binding binding{*this};
    QVBoxLayout column{this};

    template <typename Widget, typename... Arguments>
    Widget& add(const Arguments&... arguments) {
        auto* widget = new Widget(arguments...);
        column.addWidget(widget);
        return *widget;
    }
    void open(QWidget& first) {
        binding.refresh();
        show();
        QApplication::setActiveWindow(this);
        first.setFocus();
        QTest::qWait(0);
    }
};

} // namespace qt
