#pragma once

#include "platform/jet/field_type.h"
#include "platform/jet/sql_name.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace jet {

/// A field of a stored table.
struct Column {
    SqlName name;
    FieldType type = FieldType::Text;
    int size = 0;         ///< characters, Text only (1 to 255)
    bool counter = false; ///< the engine gives the next number; never one twice
    bool required = false;
    bool allowZeroLength = true;
};

/// A table as a statement sees it; `schema` says which attached file it lies in.
struct Table {
    SqlName name;           ///< as the statement names it: for a link, the link's name
    std::string schema;     ///< of the storage's SQL: "main" or that of an attached file
    std::string storedName; ///< in its home file
    std::vector<Column> columns;
    std::vector<int> keyColumns;                       ///< in key order; empty: no key
    std::unordered_map<std::string, int> columnByName; ///< folded name to index

    [[nodiscard]] std::optional<int> columnIndex(const SqlName& column) const;
    /// "schema"."table"
    [[nodiscard]] std::string qualifiedName() const;
};

using TablePtr = std::shared_ptr<const Table>;

/// Finds the tables that a statement names: the file's own and its links.
class Catalogue {
public:
    virtual ~Catalogue() = default;
    /// Null when there is none. A link whose home file cannot be reached raises that file's error.
    [[nodiscard]] virtual TablePtr find(const SqlName& table) const = 0;
};

} // namespace jet
