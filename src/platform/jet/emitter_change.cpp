#include "platform/jet/emitter_impl.h"

#include "platform/jet/overloaded.h"
#include "platform/jet/walk.h"

#include <algorithm>

namespace jet {

Compiled emit(const ast::Statement& statement, const Binding& binding, bool includeIdentities) {
    Emitter emitter(binding);
    Compiled plan = std::visit(Overloaded{[&](const ast::Select& s) { return emitter.rows(s, includeIdentities); },
                                          [&](const ast::Update& u) { return emitter.change(u); },
                                          [&](const ast::Delete& d) { return emitter.change(d); },
                                          [&](const ast::Insert& i) { return emitter.change(i); },
                                          [](const auto&) -> Compiled { raise(ErrorNumber::StatementKind); }},
                               statement);
    plan.structuralLiterals.assign(binding.structural.begin(), binding.structural.end());
    return plan;
}

Compiled Emitter::planOfChange() const {
    Compiled plan;
    plan.kind = Compiled::Kind::Change;
    plan.target = binding_.target;
    return plan;
}

/// The value converted to the field's type and checked against its width.
std::string Emitter::stored(int column, const std::string& value, ExprType type, Use use) const {
    const Column& field = binding_.target->columns[static_cast<std::size_t>(column)];
    std::string name = "'";
    for (const char c : field.name.text())
        name += c == '\'' ? "''" : std::string(1, c);
    // Null asks for the next number only where a row begins.
    const bool given = field.counter && use == Use::NewRow;
    const bool required = field.required || (field.counter && !given);
    const int flags = (given ? 1 : 0) | (required ? 2 : 0) | (field.allowZeroLength ? 4 : 0);
    return "j_store('" + std::string(1, typeLetter(type)) + "', " + value + ", " +
           std::to_string(static_cast<int>(field.type)) + ", " + std::to_string(field.size) + ", " +
           std::to_string(flags) + ", " + name + "')";
}

namespace {

bool holdsSubquery(const ast::Expr& expr) {
    if (std::holds_alternative<ast::Scalar>(expr.node) || std::holds_alternative<ast::Exists>(expr.node)) return true;
    if (const auto* in = std::get_if<ast::In>(&expr.node); in && in->select) return true;
    bool found = false;
    forEachOperand(expr, [&](const ast::Expr& operand) { found = found || holdsSubquery(operand); });
    return found;
}

bool readsRows(const std::vector<ast::Assignment>& assignments) {
    return std::any_of(assignments.begin(), assignments.end(),
                       [](const ast::Assignment& assignment) { return holdsSubquery(*assignment.value); });
}

} // namespace

Compiled Emitter::change(const ast::Update& update) {
    Compiled plan = planOfChange();
    const BoundCore& bound = binding_.core(&update);
    scopes_.push_back(&bound);
    findBracketed(*update.from, bound, false);
    const BoundSource& target = bound.sources[static_cast<std::size_t>(binding_.targetSource)];
    // Values that read other rows are all read before the first is written, as those of a join are.
    const bool joins = bound.sources.size() > 1 || readsRows(update.assignments);
    std::string set;
    std::string values;
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        const int column = binding_.targetColumns[i];
        const ast::Expr& expr = *update.assignments[i].value;
        const std::string value = stored(column, this->value(expr), expr.type, Use::Change);
        const std::string name = "v" + std::to_string(i + 1);
        values += ", " + value + " AS " + name;
        set += (set.empty() ? "" : ", ") + quoted(target.table->columns[static_cast<std::size_t>(column)].name.text()) +
               " = " + (joins ? "s." + name : value);
    }
    const std::string where = update.where ? " WHERE " + condition(*update.where) : "";
    const std::string alias = "t" + std::to_string(target.number);
    plan.sql = "UPDATE OR IGNORE " + target.table->qualifiedName() + " AS ";
    if (joins)
        plan.sql += "u SET " + set + " FROM (SELECT " + identity(target) + " AS r" + values + " FROM " +
                    source(*update.from) + where + ") AS s WHERE u." + rowIdName(*target.table) + " = s.r";
    else
        plan.sql += alias + " SET " + set + where;
    scopes_.pop_back();
    plan.slots = slots_;
    return plan;
}

Compiled Emitter::change(const ast::Delete& remove) {
    Compiled plan = planOfChange();
    const BoundCore& bound = binding_.core(&remove);
    scopes_.push_back(&bound);
    findBracketed(*remove.from, bound, false);
    const BoundSource& target = bound.sources[static_cast<std::size_t>(binding_.targetSource)];
    const std::string where = remove.where ? " WHERE " + condition(*remove.where) : "";
    const std::string alias = "t" + std::to_string(target.number);
    const std::string rowId = rowIdName(*target.table);
    plan.sql = "DELETE FROM " + target.table->qualifiedName();
    if (bound.sources.size() > 1)
        plan.sql +=
            " WHERE " + rowId + " IN (SELECT " + identity(target) + " FROM " + source(*remove.from) + where + ")";
    else
        plan.sql += " AS " + alias + where;
    scopes_.pop_back();
    plan.slots = slots_;
    return plan;
}

Compiled Emitter::change(const ast::Insert& insert) {
    Compiled plan = planOfChange();
    const BoundCore& bound = binding_.core(&insert);
    scopes_.push_back(&bound);
    std::string names;
    std::string values;
    for (std::size_t i = 0; i < binding_.targetColumns.size(); ++i) {
        const int column = binding_.targetColumns[i];
        const bool select = insert.select != nullptr;
        const ExprType type = select ? columnType(*insert.select, i) : insert.values[i]->type;
        const std::string value = select ? "c" + std::to_string(i + 1) : this->value(*insert.values[i]);
        const char* comma = i == 0 ? "" : ", ";
        names += comma + quoted(plan.target->columns[static_cast<std::size_t>(column)].name.text());
        values += comma + stored(column, value, type, Use::NewRow);
    }
    plan.sql = "INSERT OR IGNORE INTO " + plan.target->qualifiedName() + " (" + names + ")";
    if (insert.select)
        plan.sql += " SELECT " + values + " FROM (" + select(*insert.select, Order::Stored, nullptr) + ")";
    else
        plan.sql += " VALUES (" + values + ")";
    scopes_.pop_back();
    plan.slots = slots_;
    return plan;
}

} // namespace jet
