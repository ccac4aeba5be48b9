#include "platform/jet/explain.h"

#include "platform/jet/compiler.h"
#include "platform/jet/connection.h"
#include "platform/jet/storage.h"

namespace jet {

std::vector<std::string> explainedPlan(const Database& database, std::string_view sql) {
    Connection& connection = *database.connection();
    Shape shape;
    scanShape(sql, shape);
    Parsed parsed = parse(sql);
    const Compiled plan = compile(parsed, shape.literals, connection.catalogue(), Identities::Include);
    const StatementHandle statement = prepareStatement(connection.storage(), "EXPLAIN QUERY PLAN " + plan.sql);
    constexpr int detail = 3;
    std::vector<std::string> lines;
    while (stepRow(statement.get()))
        lines.push_back(columnText(statement.get(), detail));
    return lines;
}

} // namespace jet
