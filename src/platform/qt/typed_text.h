#pragma once

#include "platform/services/controls.h"

#include <QString>

namespace qt {

struct TypedText {
    QString text;
    qsizetype cursor = 0;

    bool operator==(const TypedText&) const = default;
};

/// What a box holds after the user has changed its text from `before` to `after`, which left the cursor there. Only
/// what came in is filtered and cut to the room that is left: a stored text may hold signs that the box does not take.
/// `maxLength` counts characters; 0: no limit.
[[nodiscard]] TypedText acceptTyped(const QString& before, const QString& after, qsizetype cursor,
                                    services::KeyFilter keys, int maxLength);

} // namespace qt
