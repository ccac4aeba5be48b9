#include "platform/jet/catalogue.h"

namespace jet {

std::optional<int> Table::columnIndex(const SqlName& column) const {
    const auto found = columnByName.find(column.folded());
    if (found == columnByName.end()) return std::nullopt;
    return found->second;
}

std::string Table::qualifiedName() const { return quoted(schema) + "." + quoted(storedName); }

} // namespace jet
