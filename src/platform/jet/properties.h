#pragma once

#include <optional>
#include <string>
#include <string_view>

struct sqlite3;

namespace jet {

/// What a data file tells of itself besides its tables: rows of its own table "~properties". `table` and `field` are
/// empty for a property of the file.
struct PropertyName {
    std::string table;
    std::string field;
    std::string name;
};

inline constexpr const char* propertiesTable = "~properties";
inline constexpr const char* linksTable = "~links";

[[nodiscard]] std::optional<std::string> readProperty(sqlite3* storage, std::string_view schema,
                                                      const PropertyName& name);
void writeProperty(sqlite3* storage, std::string_view schema, const PropertyName& name, const std::string& value);
void dropProperty(sqlite3* storage, std::string_view schema, const PropertyName& name);
/// All properties of a table and its fields.
void dropTableProperties(sqlite3* storage, std::string_view schema, const std::string& table);

/// The file's password as one salted hash; an empty password leaves the file open to anyone.
void storePassword(sqlite3* storage, std::string_view schema, std::string_view password);
/// A file without a password opens with any.
[[nodiscard]] bool passwordFits(sqlite3* storage, std::string_view schema, std::string_view password);

} // namespace jet
