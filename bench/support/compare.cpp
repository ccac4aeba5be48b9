#include "support/compare.h"

#include <stdexcept>

namespace bench {

std::vector<jet::ExprType> typesOf(const jet::Recordset& rows) {
    std::vector<jet::ExprType> types;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i)
        types.push_back(rows.FieldTypeAt(i));
    return types;
}

void requireSameRows(jet::Recordset& ours, const plain::Rows& plain) {
    bool same = static_cast<std::size_t>(ours.RecordCount()) == plain.count();
    for (std::size_t i = 0; same && i < plain.values.size(); ++i) {
        same = ours.At(i % plain.width) == plain.values[i];
        if (i % plain.width == plain.width - 1) ours.MoveNext();
    }
    if (!same) throw std::runtime_error("the two sides of a benchmark read different rows");
}

} // namespace bench
