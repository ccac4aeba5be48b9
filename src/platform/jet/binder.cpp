#include "platform/jet/binder_impl.h"

#include "platform/jet/overloaded.h"
#include "platform/jet/walk.h"

#include <algorithm>

namespace jet {

Binding bind(Parsed& parsed, const std::vector<LiteralValue>& literals, const Catalogue& catalogue) {
    Binder binder(literals, catalogue);
    binder.statement(parsed.statement);
    Binding binding = binder.take();
    binding.structural.insert(parsed.structuralLiterals.begin(), parsed.structuralLiterals.end());
    return binding;
}

void Binder::statement(ast::Statement& statement) {
    std::visit(Overloaded{[&](ast::Select& s) { (void)select(s, nullptr); }, [&](ast::Update& u) { update(u); },
                          [&](ast::Delete& d) { remove(d); }, [&](ast::Insert& i) { insert(i); },
                          [](auto&) { raise(ErrorNumber::StatementKind); }},
               statement);
}

std::vector<OutputColumn> Binder::select(ast::Select& select, const Scope* outer) {
    std::vector<OutputColumn> columns;
    for (ast::SelectCore& one : select.cores) {
        core(one, outer);
        const BoundCore& bound = binding_.core(&one);
        if (columns.empty()) {
            for (const BoundItem& item : bound.items)
                columns.push_back(item.output);
            continue;
        }
        if (bound.items.size() != columns.size()) raise(ErrorNumber::UnionColumns);
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].type = commonType(columns[i].type, bound.items[i].output.type);
    }
    orderBy(select, columns, outer);
    return columns;
}

void Binder::core(ast::SelectCore& core, const Scope* outer) {
    BoundCore& bound = binding_.cores[&core];
    bound = {}; // bound anew where an alias of the list stands for it
    if (core.from) source(*core.from, bound);
    Scope scope{&bound, outer, false, false, false, {}};
    if (core.from) joinConditions(*core.from, scope);
    if (core.where) condition(*core.where, scope);
    for (ast::ExprPtr& key : core.groupBy)
        (void)expr(*key, scope);
    scope.aggregatesAllowed = true;
    bound.aggregated = !core.groupBy.empty();
    items(core, scope);
    if (core.having) {
        bound.aggregated = true;
        scope.aliasesVisible = true;
        condition(*core.having, scope);
    }
}

void Binder::condition(ast::Expr& condition, Scope& scope) {
    if (expr(condition, scope) == ExprType::Text) raise(ErrorNumber::CriteriaTypes, described(condition));
}

void Binder::orderBy(ast::Select& select, const std::vector<OutputColumn>& columns, const Scope* outer) {
    BoundCore& first = binding_.cores.at(&select.cores.front());
    const bool isUnion = select.cores.size() > 1;
    Scope scope{&first, outer, true, false, true, {}};
    for (ast::OrderItem& item : select.orderBy) {
        if (!item.expr) {
            if (item.position < 1 || static_cast<std::size_t>(item.position) > columns.size())
                raise(ErrorNumber::Syntax, "ORDER BY " + std::to_string(item.position));
            continue;
        }
        auto* field = std::get_if<ast::FieldRef>(&item.expr->node);
        if (isUnion) {
            const auto named = std::find_if(columns.begin(), columns.end(), [&](const OutputColumn& column) {
                return field && (column.name == field->field || column.sourceField == field->field);
            });
            if (named == columns.end()) raise(ErrorNumber::Syntax, "ORDER BY in UNION: " + described(*item.expr));
            item.position = static_cast<int>(named - columns.begin()) + 1;
            item.expr.reset();
            continue;
        }
        // An alias of the list comes first; with its table before it, the name always means the field.
        if (field && field->table.empty() && resolveAlias(*field, scope))
            item.expr->type = first.items[static_cast<std::size_t>(field->aliasItem)].output.type;
        else
            (void)expr(*item.expr, scope);
    }
    for (ast::SelectCore& core : select.cores) {
        Scope grouped{&binding_.cores.at(&core), outer, true, false, true, {}};
        grouping(core, grouped);
    }
    if (isUnion) return;
    for (const ast::OrderItem& item : select.orderBy) {
        if (item.expr && first.aggregated) checkGrouped(*item.expr, select.cores.front());
        if (item.expr && select.cores.front().quantifier == ast::SelectCore::Quantifier::Distinct)
            requireShown(*item.expr, first);
    }
}

/// Rows that DISTINCT has made one have no single value of what the list does not show.
void Binder::requireShown(const ast::Expr& key, const BoundCore& core) {
    const auto* field = std::get_if<ast::FieldRef>(&key.node);
    if (field && field->aliasItem >= 0) return;
    const auto shows = [&](const BoundItem& item) {
        if (item.expr) return sameExpr(*item.expr, key, *binding_.literals);
        return field && field->scopeLevel == 0 && field->source == item.source && field->column == item.column;
    };
    const auto shown = std::find_if(core.items.begin(), core.items.end(), shows);
    if (shown == core.items.end()) raise(ErrorNumber::OrderByDistinct, described(key));
    keepLiterals(key);
    if (shown->expr) keepLiterals(*shown->expr);
}

void Binder::items(ast::SelectCore& core, Scope& scope) {
    BoundCore& bound = *scope.core;
    for (ast::SelectItem& item : core.items) {
        if (!item.expr) {
            star(item, bound);
            continue;
        }
        BoundItem entry;
        entry.expr = item.expr.get();
        entry.output.name = item.alias;
        bound.items.push_back(std::move(entry));
    }
    scope.aliasesVisible = true;
    std::size_t next = 0;
    for (ast::SelectItem& item : core.items) {
        if (!item.expr) continue;
        while (bound.items[next].expr != item.expr.get())
            ++next;
        scope.resolving = {item.expr.get()};
        const ExprType type = expr(*item.expr, scope);
        bound.items[next].output.type = type;
        nameItem(item, bound.items[next], next, bound);
    }
    scope.resolving.clear();

    // Two tables' fields of one name are told apart by their tables.
    const auto clash = [](const OutputColumn& a, const OutputColumn& b) {
        return a.sourceField == b.sourceField && !a.sourceField.empty() && a.name == a.sourceField &&
               b.name == b.sourceField && !(a.sourceAlias == b.sourceAlias);
    };
    std::vector<bool> clashes(bound.items.size(), false);
    std::unordered_map<std::string, std::size_t> firstOfName;
    for (std::size_t i = 0; i < bound.items.size(); ++i) {
        const auto [found, fresh] = firstOfName.emplace(bound.items[i].output.name.folded(), i);
        if (!fresh && clash(bound.items[found->second].output, bound.items[i].output))
            clashes[i] = clashes[found->second] = true;
    }
    for (std::size_t i = 0; i < bound.items.size(); ++i)
        if (OutputColumn& output = bound.items[i].output; clashes[i])
            output.name = SqlName(output.sourceAlias.text() + "." + output.sourceField.text());
}

namespace {

BoundItem fieldItem(const BoundSource& source, int sourceIndex, int column) {
    BoundItem item;
    item.source = sourceIndex;
    item.column = column;
    item.output.name = source.columnName(column);
    item.output.sourceAlias = source.alias;
    item.output.sourceField = item.output.name;
    item.output.type = source.columnType(column);
    item.output.source = source.table ? sourceIndex : -1;
    item.output.column = source.table ? column : -1;
    return item;
}

} // namespace

void Binder::star(const ast::SelectItem& item, BoundCore& bound) {
    bool found = false;
    for (std::size_t s = 0; s < bound.sources.size(); ++s) {
        const BoundSource& source = bound.sources[s];
        if (!item.starOfTable.empty() && !(source.alias == item.starOfTable)) continue;
        found = true;
        for (std::size_t c = 0; c < source.columnCount(); ++c)
            bound.items.push_back(fieldItem(source, static_cast<int>(s), static_cast<int>(c)));
    }
    if (!found) raise(ErrorNumber::UnknownTable, "'" + item.starOfTable.text() + "'");
}

void Binder::nameItem(const ast::SelectItem& item, BoundItem& bound, std::size_t position, const BoundCore& core) {
    const auto* field = std::get_if<ast::FieldRef>(&item.expr->node);
    if (field && field->scopeLevel == 0 && field->source >= 0) {
        OutputColumn plain =
            fieldItem(core.sources[static_cast<std::size_t>(field->source)], field->source, field->column).output;
        if (!item.alias.empty()) plain.name = item.alias;
        bound.output = std::move(plain);
    } else if (item.alias.empty()) {
        bound.output.name = field ? field->field : SqlName("Ausdr" + std::to_string(1000 + position));
    }
}

void Binder::grouping(ast::SelectCore& core, Scope& scope) {
    BoundCore& bound = *scope.core;
    if (!bound.aggregated) return;
    for (const BoundItem& item : bound.items) {
        if (!item.expr) raise(ErrorNumber::AggregateMisuse, "'*'");
        checkGrouped(*item.expr, core);
    }
    if (core.having) checkGrouped(*core.having, core);
}

/// A plan that stands on literals being the same in two places serves only statements with these.
void Binder::keepLiterals(const ast::Expr& expr) {
    if (const auto* literal = std::get_if<ast::Literal>(&expr.node)) binding_.structural.insert(literal->index);
    forEachOperand(expr, [&](const ast::Expr& operand) { keepLiterals(operand); });
}

/// Outside an aggregate only what is grouped by has one value for the whole group.
void Binder::checkGrouped(const ast::Expr& expr, const ast::SelectCore& core) {
    for (const ast::ExprPtr& key : core.groupBy)
        if (sameExpr(*key, expr, *binding_.literals)) {
            keepLiterals(*key);
            keepLiterals(expr);
            return;
        }
    if (const auto* call = std::get_if<ast::Call>(&expr.node); call && isAggregate(call->name)) return;
    if (const auto* field = std::get_if<ast::FieldRef>(&expr.node); field && field->scopeLevel == 0) {
        if (field->aliasItem < 0) raise(ErrorNumber::AggregateMisuse, described(expr));
        checkGrouped(*binding_.core(&core).items[static_cast<std::size_t>(field->aliasItem)].expr, core);
    }
    forEachOperand(expr, [&](const ast::Expr& operand) { checkGrouped(operand, core); });
}

void Binder::source(ast::Source& source, BoundCore& bound) {
    const auto add = [&](BoundSource entry) {
        for (const BoundSource& other : bound.sources)
            if (other.alias == entry.alias && !entry.alias.empty())
                raise(ErrorNumber::Syntax, "FROM: '" + entry.alias.text() + "' doppelt");
        entry.number = ++sourceCount_;
        bound.sources.push_back(std::move(entry));
        return static_cast<int>(bound.sources.size()) - 1;
    };
    std::visit(Overloaded{[&](ast::TableSource& t) {
                              t.index = add({t.alias, table(t.table), {}, 0});
                          },
                          [&](ast::DerivedSource& d) {
                              // A derived table sees nothing of the select around it.
                              d.index = add({d.alias, nullptr, select(*d.select, nullptr), 0});
                          },
                          [&](ast::JoinSource& j) {
                              this->source(*j.left, bound);
                              this->source(*j.right, bound);
                          }},
               source.node);
}

/// `first` is the place of the source's first table; gives the place behind its last one.
int Binder::joinConditions(ast::Source& source, Scope& scope, int first) {
    auto* join = std::get_if<ast::JoinSource>(&source.node);
    if (!join) return first + 1;
    const int last = joinConditions(*join->right, scope, joinConditions(*join->left, scope, first));
    scope.firstSource = first;
    scope.lastSource = last;
    if (join->on) condition(*join->on, scope);
    scope.firstSource = -1;
    return last;
}

} // namespace jet
