#include "platform/qt/typed_text.h"

#include "platform/qt/text.h"

#include <algorithm>

namespace qt {

namespace {

/// Characters, where the text counts a rare one twice.
qsizetype characters(const QString& text) { return text.toUcs4().size(); }

QString firstCharacters(const QString& text, qsizetype count) {
    const auto all = text.toUcs4();
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(all.constData()),
                             std::clamp(count, qsizetype{0}, all.size()));
}

/// Length of what both begin with, no rare character cut in two.
qsizetype commonStart(const QString& a, const QString& b, qsizetype limit) {
    qsizetype length = 0;
    while (length < limit && a[length] == b[length])
        ++length;
    return length > 0 && a[length - 1].isHighSurrogate() ? length - 1 : length;
}

} // namespace

TypedText acceptTyped(const QString& before, const QString& after, qsizetype cursor, services::KeyFilter keys,
                      int maxLength) {
    // What came in stands right before the cursor; behind it is what stood there before.
    const QString behind = before.endsWith(after.mid(cursor)) ? after.mid(cursor) : QString();
    const auto end = after.size() - behind.size();
    const auto start = commonStart(before, after, std::min(before.size() - behind.size(), end));
    const QString kept = after.first(start);

    keys.NoLeadingBlank = keys.NoLeadingBlank && kept.isEmpty();
    QString come = text(keys.filtered(after.mid(start, end - start).toStdString()));
    if (maxLength > 0) come = firstCharacters(come, maxLength - characters(kept) - characters(behind));
    return {.text = kept + come + behind, .cursor = start + come.size()};
}

} // namespace qt
