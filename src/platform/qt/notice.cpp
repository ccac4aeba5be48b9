#include "platform/qt/notice.h"

#include "platform/qt/text.h"

#include <QMessageBox>

namespace qt {

void showFailure(std::string_view title, std::string_view text) {
    QMessageBox::critical(nullptr, qt::text(title), qt::text(text));
}

} // namespace qt
