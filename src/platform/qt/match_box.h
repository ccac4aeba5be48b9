#pragma once

#include "platform/services/controls.h"

#include <QObject>

#include <functional>
#include <vector>

class QCompleter;
class QLineEdit;
class QStringListModel;

namespace qt {

/// The list below a box that completes while typing. It holds no more entries than are offered at once, however long
/// the list behind it is.
class MatchPopup : public QObject {
public:
    using Choose = std::function<void(const services::Match&)>;

    static constexpr std::size_t offeredAtOnce = 30;

    /// Lives with the box.
    MatchPopup(QLineEdit& box, const services::MatchBox& control, Choose choose);

    /// Offers what matches the text of the box, or closes the list where nothing does.
    void offer();
    void close();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QLineEdit& box_;
    const services::MatchBox& control_;
    Choose choose_;
    QStringListModel* lines_;
    QCompleter* completer_;
    std::vector<services::Match> offered_;
};

} // namespace qt
