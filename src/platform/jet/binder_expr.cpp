#include "platform/jet/binder_impl.h"

#include "platform/jet/functions.h"
#include "platform/jet/overloaded.h"
#include "platform/jet/walk.h"

#include <algorithm>

namespace jet {

namespace {

ExprType arithmeticType(ExprType a, ExprType b) {
    if (a == ExprType::Any || b == ExprType::Any) return ExprType::Any;
    const bool whole = isNumeric(a) && isNumeric(b) && a != ExprType::Double && b != ExprType::Double;
    return whole ? ExprType::Long : ExprType::Double;
}

ExprType addType(ast::Binary::Op op, ExprType a, ExprType b) {
    if (a == ExprType::Text && b == ExprType::Text)
        return op == ast::Binary::Op::Add ? ExprType::Text : ExprType::Double;
    if (a == ExprType::Date && b == ExprType::Date)
        return op == ast::Binary::Op::Add ? ExprType::Date : ExprType::Double;
    if ((a == ExprType::Date && isNumeric(b)) || (op == ast::Binary::Op::Add && isNumeric(a) && b == ExprType::Date))
        return ExprType::Date;
    return arithmeticType(a, b);
}

bool isComparison(ast::Binary::Op op) { return op >= ast::Binary::Op::Equal && op <= ast::Binary::Op::GreaterEqual; }

bool isLogical(ast::Binary::Op op) { return op >= ast::Binary::Op::And; }

} // namespace

std::string described(const ast::Expr& expr) {
    if (const auto* field = std::get_if<ast::FieldRef>(&expr.node))
        return "'" + (field->table.empty() ? "" : field->table.text() + ".") + field->field.text() + "'";
    if (const auto* call = std::get_if<ast::Call>(&expr.node)) return "'" + call->name.text() + "(...)'";
    return {};
}

void requireComparable(const ast::Expr& a, const ast::Expr& b) {
    if (a.type == ExprType::Any || b.type == ExprType::Any || (a.type == ExprType::Text) == (b.type == ExprType::Text))
        return;
    const std::string name = described(a);
    raise(ErrorNumber::CriteriaTypes, name.empty() ? described(b) : name);
}

ExprType Binder::expr(ast::Expr& expr, Scope& scope) {
    expr.type = std::visit([&](auto& n) { return node(n, expr, scope); }, expr.node);
    return expr.type;
}

ExprType Binder::node(ast::Literal& literal, ast::Expr&, Scope&) {
    switch (literal.kind) {
    case ast::Literal::Kind::Integer:
        return ExprType::Long;
    case ast::Literal::Kind::Double:
        return ExprType::Double;
    case ast::Literal::Kind::Date:
        return ExprType::Date;
    case ast::Literal::Kind::Text:
    case ast::Literal::Kind::WildcardText:
        return ExprType::Text;
    }
    return ExprType::Any;
}

ExprType Binder::node(ast::Constant& constant, ast::Expr&, Scope&) {
    return constant.kind == ast::Constant::Kind::Null ? ExprType::Any : ExprType::Boolean;
}

ExprType Binder::node(ast::ClockValue&, ast::Expr&, Scope&) { return ExprType::Date; }

bool Binder::resolveHere(ast::FieldRef& field, const BoundCore& core, int level) {
    bool found = false;
    for (std::size_t s = 0; s < core.sources.size(); ++s) {
        if (!field.table.empty() && !(core.sources[s].alias == field.table)) continue;
        const std::optional<int> column = core.sources[s].columnIndex(field.field);
        if (!column) continue;
        if (found) raise(ErrorNumber::AmbiguousField, "'" + field.field.text() + "'");
        found = true;
        field.scopeLevel = level;
        field.source = static_cast<int>(s);
        field.column = *column;
    }
    return found;
}

bool Binder::resolveAlias(ast::FieldRef& field, Scope& scope) {
    BoundCore& core = *scope.core;
    for (std::size_t i = 0; i < core.items.size(); ++i) {
        const BoundItem& item = core.items[i];
        if (!item.expr || !(item.output.name == field.field)) continue;
        if (std::find(scope.resolving.begin(), scope.resolving.end(), item.expr) != scope.resolving.end()) continue;
        field.aliasItem = static_cast<int>(i);
        return true;
    }
    return false;
}

ExprType Binder::node(ast::FieldRef& field, ast::Expr&, Scope& scope) {
    int level = 0;
    for (const Scope* s = &scope; s; s = s->outer, ++level) {
        if (resolveHere(field, *s->core, level)) {
            if (!s->sees(field.source)) raise(ErrorNumber::JoinField, "'" + field.field.text() + "'");
            return s->core->sources[static_cast<std::size_t>(field.source)].columnType(field.column);
        }
        if (level == 0 && scope.aliasesVisible && field.table.empty() && resolveAlias(field, scope)) {
            BoundItem& item = scope.core->items[static_cast<std::size_t>(field.aliasItem)];
            if (scope.resolving.empty() && !scope.insideAggregate) return item.output.type;
            if (++aliasesFollowed_ > mostAliasesFollowed) raise(ErrorNumber::TooComplex);
            scope.resolving.push_back(item.expr);
            const ExprType type = expr(*item.expr, scope);
            scope.resolving.pop_back();
            return type;
        }
    }
    const std::string name = (field.table.empty() ? "" : field.table.text() + ".") + field.field.text();
    raise(ErrorNumber::TooFewParameters, "'" + name + "'");
}

ExprType Binder::node(ast::Unary& unary, ast::Expr&, Scope& scope) {
    const ExprType type = expr(*unary.operand, scope);
    if (unary.op == ast::Unary::Op::Not) {
        if (type == ExprType::Text) raise(ErrorNumber::CriteriaTypes, described(*unary.operand));
        return ExprType::Boolean;
    }
    if (unary.op == ast::Unary::Op::Plus || type == ExprType::Any) return type;
    if (type == ExprType::Boolean || type == ExprType::Integer) return ExprType::Long;
    return type == ExprType::Text || type == ExprType::Date ? ExprType::Double : type;
}

ExprType Binder::node(ast::Binary& binary, ast::Expr&, Scope& scope) {
    const ExprType a = expr(*binary.left, scope);
    const ExprType b = expr(*binary.right, scope);
    if (isComparison(binary.op)) {
        requireComparable(*binary.left, *binary.right);
        return ExprType::Boolean;
    }
    if (isLogical(binary.op)) {
        if (a == ExprType::Text || b == ExprType::Text)
            raise(ErrorNumber::CriteriaTypes, described(a == ExprType::Text ? *binary.left : *binary.right));
        return ExprType::Boolean;
    }
    switch (binary.op) {
    case ast::Binary::Op::Concat:
        return ExprType::Text;
    case ast::Binary::Op::Add:
    case ast::Binary::Op::Subtract:
        return addType(binary.op, a, b);
    case ast::Binary::Op::Multiply:
        return arithmeticType(a, b);
    case ast::Binary::Op::IntegerDivide:
    case ast::Binary::Op::Modulo:
        return ExprType::Long;
    default:
        return ExprType::Double;
    }
}

ExprType Binder::node(ast::Like& like, ast::Expr&, Scope& scope) {
    (void)expr(*like.operand, scope);
    (void)expr(*like.pattern, scope);
    return ExprType::Boolean;
}

ExprType Binder::node(ast::Between& between, ast::Expr&, Scope& scope) {
    (void)expr(*between.operand, scope);
    (void)expr(*between.low, scope);
    (void)expr(*between.high, scope);
    requireComparable(*between.operand, *between.low);
    requireComparable(*between.operand, *between.high);
    return ExprType::Boolean;
}

ExprType Binder::node(ast::IsNull& isNull, ast::Expr&, Scope& scope) {
    (void)expr(*isNull.operand, scope);
    return ExprType::Boolean;
}

namespace {

/// An expression of the given type, for comparing with the values of a subquery.
ast::Expr ofType(ExprType type) { return {{}, ast::Constant{ast::Constant::Kind::Null}, type}; }

} // namespace

ExprType Binder::node(ast::In& in, ast::Expr&, Scope& scope) {
    (void)expr(*in.operand, scope);
    for (ast::ExprPtr& value : in.values) {
        (void)expr(*value, scope);
        requireComparable(*in.operand, *value);
    }
    if (in.select) {
        const std::vector<OutputColumn> columns = select(*in.select, &scope);
        if (columns.size() != 1) raise(ErrorNumber::SubqueryColumns);
        requireComparable(*in.operand, ofType(columns.front().type));
    }
    return ExprType::Boolean;
}

ExprType Binder::node(ast::Exists& exists, ast::Expr&, Scope& scope) {
    (void)select(*exists.select, &scope);
    return ExprType::Boolean;
}

ExprType Binder::node(ast::Scalar& scalar, ast::Expr&, Scope& scope) {
    const std::vector<OutputColumn> columns = select(*scalar.select, &scope);
    if (columns.size() != 1) raise(ErrorNumber::SubqueryColumns);
    return columns.front().type;
}

namespace {

/// An aggregate over fields of the select around it only would group that one.
void requireOwnField(const ast::Call& call, const ast::Expr& argument) {
    bool own = false;
    bool outer = false;
    forEachField(argument, [&](const ast::FieldRef& field) { (field.scopeLevel == 0 ? own : outer) = true; });
    if (outer && !own) raise(ErrorNumber::AggregateMisuse, "'" + call.name.text() + "'");
}

} // namespace

ExprType Binder::aggregate(ast::Call& call, Scope& scope) {
    if (scope.insideAggregate || !scope.aggregatesAllowed)
        raise(ErrorNumber::AggregateMisuse, "'" + call.name.text() + "'");
    if (call.arguments.size() != (call.star ? 0U : 1U)) raise(ErrorNumber::Syntax, "'" + call.name.text() + "'");
    scope.core->aggregated = true;
    const std::string& name = call.name.folded();
    if (call.star) return ExprType::Long;
    scope.insideAggregate = true;
    const ExprType type = expr(*call.arguments.front(), scope);
    scope.insideAggregate = false;
    requireOwnField(call, *call.arguments.front());
    if (name == "count") return ExprType::Long;
    if (name == "min" || name == "max" || name == "first" || name == "last") return type;
    if (type == ExprType::Text) raise(ErrorNumber::CriteriaTypes, described(*call.arguments.front()));
    return name == "sum" && isNumeric(type) && type != ExprType::Double ? ExprType::Long : ExprType::Double;
}

ExprType Binder::node(ast::Call& call, ast::Expr&, Scope& scope) {
    if (isAggregate(call.name)) return aggregate(call, scope);
    for (ast::ExprPtr& argument : call.arguments)
        (void)expr(*argument, scope);
    const std::size_t count = call.arguments.size();
    if (call.name.folded() == "iif") {
        if (count != 3) raise(ErrorNumber::Syntax, "'IIf'");
        if (call.arguments[0]->type == ExprType::Text) raise(ErrorNumber::CriteriaTypes, described(*call.arguments[0]));
        return commonType(call.arguments[1]->type, call.arguments[2]->type);
    }
    const Function* function = findFunction(call.name);
    if (!function || call.star) raise(ErrorNumber::UnknownFunction, "'" + call.name.text() + "'");
    if (count < static_cast<std::size_t>(function->minArguments) ||
        count > static_cast<std::size_t>(function->maxArguments))
        raise(ErrorNumber::Syntax, "'" + call.name.text() + "': Anzahl der Argumente");
    if (function->result == Function::Result::Fixed) return function->type;
    ExprType type = call.arguments.front()->type;
    if (function->result == Function::Result::CommonOfAll)
        for (const ast::ExprPtr& argument : call.arguments)
            type = commonType(type, argument->type);
    return type;
}

bool sameExpr(const ast::Expr& a, const ast::Expr& b, const std::vector<LiteralValue>& literals) {
    if (a.node.index() != b.node.index()) return false;
    const auto same = [&](const ast::ExprPtr& x, const ast::ExprPtr& y) { return sameExpr(*x, *y, literals); };
    return std::visit(
        Overloaded{[&](const ast::Literal& x, const ast::Literal& y) {
                       return literals[x.index].value == literals[y.index].value;
                   },
                   [](const ast::Constant& x, const ast::Constant& y) { return x.kind == y.kind; },
                   [](const ast::ClockValue& x, const ast::ClockValue& y) { return x.kind == y.kind; },
                   [](const ast::FieldRef& x, const ast::FieldRef& y) {
                       return x.scopeLevel == y.scopeLevel && x.source == y.source && x.column == y.column &&
                              x.aliasItem == y.aliasItem;
                   },
                   [&](const ast::Unary& x, const ast::Unary& y) { return x.op == y.op && same(x.operand, y.operand); },
                   [&](const ast::Binary& x, const ast::Binary& y) {
                       return x.op == y.op && same(x.left, y.left) && same(x.right, y.right);
                   },
                   [&](const ast::IsNull& x, const ast::IsNull& y) {
                       return x.negated == y.negated && same(x.operand, y.operand);
                   },
                   [&](const ast::Call& x, const ast::Call& y) {
                       return x.name == y.name && x.star == y.star &&
                              std::equal(x.arguments.begin(), x.arguments.end(), y.arguments.begin(), y.arguments.end(),
                                         same);
                   },
                   [](const auto&, const auto&) { return false; }},
        a.node, b.node);
}

} // namespace jet
