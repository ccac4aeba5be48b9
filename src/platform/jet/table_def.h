#pragma once

#include "platform/jet/catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// A field to be appended to a table, or one that is there.
struct FieldDef {
    std::string Name;
    FieldType Type = FieldType::Text;
    int Size = 0; ///< Text only; 0 means 255
    bool AllowZeroLength = false;
    bool Counter = false;
    bool Required = false;
};

struct IndexDef {
    std::string Name;
    std::vector<std::string> Fields;
    bool Unique = false;
    bool Primary = false;
    std::string Where; ///< dialect condition "field = True" for an index over some rows only; empty: all rows
};

/// A table's definition. For a link, Connect and SourceTableName are set and Fields are read from the home file when
/// asked for.
struct TableDef {
    std::string Name;
    std::string Connect;         ///< ";DATABASE=path;PWD=password" of a link, else empty
    std::string SourceTableName; ///< of a link
    std::vector<FieldDef> Fields;
    std::vector<IndexDef> Indexes;
};

[[nodiscard]] inline FieldDef CreateField(std::string name, FieldType type, int size = 0) {
    FieldDef field;
    field.Name = std::move(name);
    field.Type = type;
    field.Size = size;
    return field;
}

} // namespace jet
