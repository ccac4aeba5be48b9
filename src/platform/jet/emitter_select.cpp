#include "platform/jet/emitter_impl.h"

#include "platform/jet/overloaded.h"
#include "platform/jet/walk.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

/// No field can be called so: names have no points.
constexpr const char* hiddenIdentity = "\"j.id\"";

const ast::JoinSource* asJoin(const ast::Source& source) { return std::get_if<ast::JoinSource>(&source.node); }

/// Is each row of the result a row of the tables, in which a key can order it?
bool isSimple(const ast::SelectCore& core, const BoundCore& bound) {
    return !bound.aggregated && core.quantifier != ast::SelectCore::Quantifier::Distinct;
}

/// Which tables the list shows something of; all where a derived table is among them, whose rows cannot be told apart.
std::vector<bool> shownSources(const BoundCore& bound) {
    const bool derived =
        std::any_of(bound.sources.begin(), bound.sources.end(), [](const BoundSource& s) { return !s.table; });
    std::vector<bool> shown(bound.sources.size(), derived);
    for (const BoundItem& item : bound.items) {
        if (!item.expr)
            shown[static_cast<std::size_t>(item.source)] = true;
        else
            forEachField(*item.expr, [&](const ast::FieldRef& field) {
                if (field.scopeLevel == 0 && field.source >= 0) shown[static_cast<std::size_t>(field.source)] = true;
            });
    }
    return shown;
}

bool isUpdatable(const ast::Select& select, const BoundCore& bound) {
    const auto canIdentify = [](const BoundSource& source) {
        return source.table && !rowIdName(*source.table).empty();
    };
    return select.cores.size() == 1 && isSimple(select.cores.front(), bound) && !bound.sources.empty() &&
           std::all_of(bound.sources.begin(), bound.sources.end(), canIdentify);
}

/// Is the order by the first table's key one whole number?
bool hasNumberKey(const Table& table) {
    if (table.keyColumns.empty()) return true;
    const FieldType type = table.columns[static_cast<std::size_t>(table.keyColumns.front())].type;
    return table.keyColumns.size() == 1 && (type == FieldType::Long || type == FieldType::Integer);
}

std::string joined(const std::vector<std::string>& parts) {
    std::string all;
    for (const std::string& part : parts)
        all += (all.empty() ? "" : ", ") + part;
    return all;
}

std::string numbered(const char* letter, std::size_t count) {
    std::string all;
    for (std::size_t i = 1; i <= count; ++i)
        all += (i == 1 ? "" : ", ") + (letter + std::to_string(i));
    return all;
}

} // namespace

std::string rowIdName(const Table& table) {
    static constexpr std::array<const char*, 3> names{"rowid", "_rowid_", "oid"};
    for (const char* name : names)
        if (!table.columnIndex(SqlName(name))) return name;
    return {};
}

Compiled Emitter::rows(const ast::Select& query, bool includeIdentities) {
    Compiled plan;
    plan.kind = Compiled::Kind::Rows;
    const BoundCore& first = binding_.core(&query.cores.front());
    plan.updatable = isUpdatable(query, first);
    for (std::size_t i = 0; i < first.items.size(); ++i) {
        plan.columns.push_back(first.items[i].output);
        plan.columns.back().type = columnType(query, i);
    }
    if (query.cores.size() == 1)
        for (const BoundSource& source : first.sources)
            plan.sources.push_back({source.alias, source.table, -1});
    if (includeIdentities && plan.updatable)
        for (std::size_t i = 0; i < plan.sources.size(); ++i)
            plan.sources[i].rowIdColumn = static_cast<int>(plan.columns.size() + i);
    plan.sql = select(query, Order::Reader, &plan);
    plan.slots = slots_;
    return plan;
}

ExprType Emitter::columnType(const ast::Select& select, std::size_t column) const {
    ExprType type = ExprType::Any;
    for (const ast::SelectCore& core : select.cores)
        type = commonType(type, binding_.core(&core).items[column].output.type);
    return type;
}

std::string Emitter::select(const ast::Select& query, Order order, Compiled* plan) {
    if (query.cores.size() == 1) return core(query, 0, order, plan);
    std::string sql;
    for (std::size_t i = 0; i < query.cores.size(); ++i) {
        if (i > 0) sql += query.unionAll[i - 1] ? " UNION ALL " : " UNION ";
        sql += core(query, i, Order::Any, nullptr);
    }
    return sql + orderBy(query, {});
}

std::string Emitter::core(const ast::Select& query, std::size_t index, Order order, Compiled* plan) {
    const ast::SelectCore& core = query.cores[index];
    const BoundCore& bound = binding_.core(&core);
    scopes_.push_back(&bound);
    if (core.from) findBracketed(*core.from, bound, false);
    const bool isUnion = query.cores.size() > 1;
    const std::vector<std::string> key =
        isSimple(core, bound) && order != Order::Any ? keyOf(bound) : std::vector<std::string>{};
    // A whole table comes in key order by itself; where a condition picks rows by another index, sorting numbers
    // afterwards is cheaper than sorting rows here.
    const bool sortedByReader = order == Order::Reader && plan && !key.empty() && query.orderBy.empty() && !core.top &&
                                (core.where || asJoin(*core.from)) && hasNumberKey(*bound.sources.front().table);

    std::string sql = core.quantifier == ast::SelectCore::Quantifier::Distinct ? "SELECT DISTINCT " : "SELECT ";
    sql += columnList(query, index);
    if (plan) sql += hiddenColumns(bound, *plan);
    if (sortedByReader) {
        std::size_t hidden = plan->columns.size();
        for (const BoundSource& source : bound.sources)
            hidden += plan->sources.front().rowIdColumn >= 0 && source.table ? 1U : 0U;
        plan->sortColumn = static_cast<int>(hidden);
        sql += ", " + key.front() + " AS s";
    }
    if (core.top)
        sql =
            topOf(query, core, sql,
                  plan && !plan->sources.empty() && plan->sources.front().rowIdColumn >= 0 ? plan->sources.size() : 0);
    else
        sql += tail(core);
    if (!core.top && !isUnion) sql += orderBy(query, sortedByReader ? std::vector<std::string>{} : key);
    scopes_.pop_back();
    return sql;
}

std::string Emitter::columnList(const ast::Select& query, std::size_t index) {
    const ast::SelectCore& core = query.cores[index];
    const BoundCore& bound = *scopes_.back();
    const bool compares = query.cores.size() > 1 || core.quantifier == ast::SelectCore::Quantifier::Distinct;
    std::string list;
    for (std::size_t i = 0; i < bound.items.size(); ++i) {
        const BoundItem& item = bound.items[i];
        const ExprType type = columnType(query, i);
        std::string sql = item.expr ? valueAs(*item.expr, type) : starField(bound, item, type);
        // The storage takes HAVING without GROUP BY only where the list itself has an aggregate.
        if (i == 0 && core.having && core.groupBy.empty()) sql = "iif(count(*) >= 0, " + sql + ", NULL)";
        if (compares && type == ExprType::Text) sql += " COLLATE DE";
        list += (list.empty() ? "" : ", ") + sql + " AS c" + std::to_string(i + 1);
    }
    return list;
}

/// A field that a star gives, as text where another select of the union makes it one.
std::string Emitter::starField(const BoundCore& bound, const BoundItem& item, ExprType type) const {
    std::string sql = field(bound.sources[static_cast<std::size_t>(item.source)], item.column);
    if (type != ExprType::Text || item.output.type == ExprType::Text) return sql;
    return "j_text('" + std::string(1, typeLetter(item.output.type)) + "', " + sql + ")";
}

std::string Emitter::hiddenColumns(const BoundCore& bound, Compiled& plan) const {
    std::string sql;
    if (!plan.updatable || plan.sources.empty() || plan.sources.front().rowIdColumn < 0) return sql;
    for (std::size_t i = 0; i < bound.sources.size(); ++i)
        sql += ", " + identity(bound.sources[i]) + " AS h" + std::to_string(i + 1);
    return sql;
}

std::string Emitter::tail(const ast::SelectCore& core) {
    std::string sql;
    if (core.from) sql += " FROM " + source(*core.from);
    if (core.where) sql += " WHERE " + condition(*core.where);
    return sql + grouping(core);
}

std::string Emitter::grouping(const ast::SelectCore& core) {
    const BoundCore& bound = *scopes_.back();
    std::vector<std::string> keys;
    for (const ast::ExprPtr& key : core.groupBy)
        keys.push_back(comparable(*key));
    if (core.quantifier == ast::SelectCore::Quantifier::DistinctRow && !bound.aggregated) {
        // DISTINCTROW drops rows that differ only in tables of which nothing is shown.
        const std::vector<bool> shown = shownSources(bound);
        const bool all = std::all_of(shown.begin(), shown.end(), [](bool s) { return s; });
        for (std::size_t i = 0; i < shown.size() && !all; ++i)
            if (shown[i]) keys.push_back(identity(bound.sources[i]));
    }
    std::string sql = keys.empty() ? "" : " GROUP BY " + joined(keys);
    if (core.having) sql += " HAVING " + condition(*core.having);
    return sql;
}

std::string Emitter::orderKey(const ast::OrderItem& item, const ast::Select& query) {
    int position = item.position;
    if (item.expr) {
        const auto* ref = std::get_if<ast::FieldRef>(&item.expr->node);
        if (!ref || ref->aliasItem < 0) return comparable(*item.expr);
        position = ref->aliasItem + 1;
    }
    const auto index = static_cast<std::size_t>(position - 1);
    if (query.cores.size() == 1 && query.cores.front().top) {
        const BoundCore& bound = *scopes_.back();
        const BoundItem& chosen = bound.items[index];
        if (chosen.expr) return comparable(*chosen.expr);
        const bool text = chosen.output.type == ExprType::Text;
        return starField(bound, chosen, ExprType::Any) + (text ? " COLLATE DE" : "");
    }
    const std::string place = std::to_string(position);
    return columnType(query, index) == ExprType::Text ? place + " COLLATE DE" : place;
}

/// Rows that the statement's own keys leave equal come in the order of the first table's key.
std::string Emitter::orderBy(const ast::Select& query, const std::vector<std::string>& key) {
    std::vector<std::string> keys;
    for (const ast::OrderItem& item : query.orderBy)
        keys.push_back(orderKey(item, query) + (item.descending ? " DESC" : ""));
    keys.insert(keys.end(), key.begin(), key.end());
    return keys.empty() ? "" : " ORDER BY " + joined(keys);
}

/// TOP takes the rows up to the n-th and all that its ORDER BY leaves equal to that one. `list` is the select so far,
/// with `hidden` columns behind the visible ones.
std::string Emitter::topOf(const ast::Select& query, const ast::SelectCore& core, const std::string& list,
                           std::size_t hidden) {
    const BoundCore& bound = *scopes_.back();
    const std::vector<std::string> rowKey = isSimple(core, bound) ? keyOf(bound) : std::vector<std::string>{};
    const std::string count = std::to_string(core.top->count);
    if (query.cores.size() > 1 || query.orderBy.empty()) {
        const std::string body = list + tail(core) + (rowKey.empty() ? "" : " ORDER BY " + joined(rowKey));
        const std::string limit =
            core.top->percent ? "(SELECT (count(*) * " + count + " + 99) / 100 FROM (" + body + "))" : count;
        return "SELECT * FROM (" + body + " LIMIT " + limit + ")";
    }
    std::string keys;
    std::string order;
    for (std::size_t k = 0; k < query.orderBy.size(); ++k) {
        const std::string name = "k" + std::to_string(k + 1);
        keys += ", " + orderKey(query.orderBy[k], query) + " AS " + name;
        order += (k == 0 ? "" : ", ") + name + (query.orderBy[k].descending ? " DESC" : "");
    }
    std::string places = "place";
    for (std::size_t k = 0; k < rowKey.size(); ++k) {
        keys += ", " + rowKey[k] + " AS o" + std::to_string(k + 1);
        places += ", o" + std::to_string(k + 1);
    }
    const std::string wanted = core.top->percent ? "(total * " + count + " + 99) / 100" : count;
    std::string columns = numbered("c", bound.items.size());
    if (hidden > 0) columns += ", " + numbered("h", hidden);
    return "SELECT " + columns + " FROM (SELECT *, rank() OVER (ORDER BY " + order +
           ") AS place, count(*) OVER () AS total FROM (" + list + keys + tail(core) + ")) WHERE place <= " + wanted +
           " ORDER BY " + places;
}

/// The key of the first table in the storage's SQL; its identity where it has no key. Nothing for a derived table.
std::vector<std::string> Emitter::keyOf(const BoundCore& bound) const {
    if (bound.sources.empty() || !bound.sources.front().table) return {};
    const BoundSource& first = bound.sources.front();
    if (first.table->keyColumns.empty()) {
        if (rowIdName(*first.table).empty()) return {};
        return {identity(first)};
    }
    std::vector<std::string> key;
    for (const int column : first.table->keyColumns)
        key.push_back(field(first, column));
    return key;
}

/// What tells the rows of a table apart. Inside brackets of a join the storage hides a table's identity, so there it is
/// asked for by the counter, or given a name of its own by source().
std::string Emitter::identity(const BoundSource& source) const {
    const std::vector<Column>& columns = source.table->columns;
    const auto counter = std::find_if(columns.begin(), columns.end(), [](const Column& c) { return c.counter; });
    if (counter != columns.end()) return field(source, static_cast<int>(counter - columns.begin()));
    const bool hidden = std::find(bracketed_.begin(), bracketed_.end(), source.number) != bracketed_.end();
    return "t" + std::to_string(source.number) + "." + (hidden ? hiddenIdentity : rowIdName(*source.table));
}

namespace {

/// A join's left side may be a join of its own without brackets, so the side that is one goes left; RIGHT becomes LEFT
/// with the sides changed.
struct JoinSides {
    const ast::Source& left;
    const ast::Source& right;
    bool inner;
};

JoinSides sidesOf(const ast::JoinSource& join) {
    using Kind = ast::JoinSource::Kind;
    const bool inner = join.kind == Kind::Inner || join.kind == Kind::Cross;
    const bool swap = join.kind == Kind::Right || (inner && asJoin(*join.right) && !asJoin(*join.left));
    return swap ? JoinSides{*join.right, *join.left, inner} : JoinSides{*join.left, *join.right, inner};
}

} // namespace

void Emitter::findBracketed(const ast::Source& source, const BoundCore& bound, bool inside) {
    if (const auto* table = std::get_if<ast::TableSource>(&source.node)) {
        if (inside) bracketed_.push_back(bound.sources[static_cast<std::size_t>(table->index)].number);
    } else if (const ast::JoinSource* join = asJoin(source)) {
        const JoinSides sides = sidesOf(*join);
        findBracketed(sides.left, bound, inside);
        findBracketed(sides.right, bound, inside || asJoin(sides.right));
    }
}

std::string Emitter::tableSource(const BoundSource& source) const {
    const std::string name = " AS t" + std::to_string(source.number);
    const bool counted = std::any_of(source.table->columns.begin(), source.table->columns.end(),
                                     [](const Column& column) { return column.counter; });
    const bool hidden = std::find(bracketed_.begin(), bracketed_.end(), source.number) != bracketed_.end();
    if (hidden && !counted)
        return "(SELECT *, " + rowIdName(*source.table) + " AS " + hiddenIdentity + " FROM " +
               source.table->qualifiedName() + ")" + name;
    return source.table->qualifiedName() + name;
}

std::string Emitter::source(const ast::Source& source) {
    const std::vector<BoundSource>& sources = scopes_.back()->sources;
    return std::visit(
        Overloaded{[&](const ast::TableSource& t) { return tableSource(sources[static_cast<std::size_t>(t.index)]); },
                   [&](const ast::DerivedSource& d) {
                       const int number = sources[static_cast<std::size_t>(d.index)].number;
                       return "(" + select(*d.select, Order::Any, nullptr) + ") AS t" + std::to_string(number);
                   },
                   [&](const ast::JoinSource& j) { return join(j); }},
        source.node);
}

std::string Emitter::joinOperand(const ast::Source& operand) {
    return asJoin(operand) ? "(" + source(operand) + ")" : source(operand);
}

std::string Emitter::join(const ast::JoinSource& join) {
    const JoinSides sides = sidesOf(join);
    std::string sql = source(sides.left) + (sides.inner ? " INNER JOIN " : " LEFT JOIN ") + joinOperand(sides.right);
    if (join.on) sql += " ON " + condition(*join.on);
    return sql;
}

} // namespace jet
