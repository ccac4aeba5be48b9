#include "platform/jet/emitter_impl.h"

#include "platform/jet/functions.h"
#include "platform/jet/overloaded.h"
#include "platform/jet/sql_functions.h"

#include <algorithm>

namespace jet {

namespace {

/// A date written as text, which is to be read once in a run of the statement and not once in each of its rows.
bool isDateText(const Function& function, const ast::Expr& argument, std::size_t position) {
    return function.name == "DateDiff" && (position == 1 || position == 2) && argument.type == ExprType::Text &&
           std::holds_alternative<ast::Literal>(argument.node);
}

constexpr const char* collate = " COLLATE DE";

const char* symbolOf(ast::Binary::Op op) {
    switch (op) {
    case ast::Binary::Op::Add:
        return "+";
    case ast::Binary::Op::Subtract:
        return "-";
    case ast::Binary::Op::Multiply:
        return "*";
    case ast::Binary::Op::Equal:
        return "=";
    case ast::Binary::Op::NotEqual:
        return "<>";
    case ast::Binary::Op::Less:
        return "<";
    case ast::Binary::Op::LessEqual:
        return "<=";
    case ast::Binary::Op::Greater:
        return ">";
    case ast::Binary::Op::GreaterEqual:
        return ">=";
    default:
        return nullptr;
    }
}

const char* functionOf(ast::Binary::Op op) {
    switch (op) {
    case ast::Binary::Op::Add:
        return "j_add";
    case ast::Binary::Op::Subtract:
        return "j_subtract";
    case ast::Binary::Op::Multiply:
        return "j_multiply";
    case ast::Binary::Op::Divide:
        return "j_divide";
    case ast::Binary::Op::IntegerDivide:
        return "j_intdivide";
    case ast::Binary::Op::Modulo:
        return "j_modulo";
    case ast::Binary::Op::Power:
        return "j_power";
    default:
        return "j_concat";
    }
}

bool isNativeNumber(ExprType type) { return isNumeric(type) || type == ExprType::Date; }

// The storage's parser goes less than a hundred brackets deep, so what is read from left to right anyway is written
// without the brackets of its left side.

bool isBinary(const ast::Expr& expr, std::initializer_list<ast::Binary::Op> ops) {
    const auto* binary = std::get_if<ast::Binary>(&expr.node);
    return binary && std::find(ops.begin(), ops.end(), binary->op) != ops.end();
}

std::string inner(const std::string& bracketed) { return bracketed.substr(1, bracketed.size() - 2); }

bool isNative(const ast::Binary& binary) {
    return symbolOf(binary.op) && isNativeNumber(binary.left->type) && isNativeNumber(binary.right->type);
}

/// Sums and differences on the left of a sum, products on the left of a product.
bool continues(const ast::Expr& left, ast::Binary::Op op) {
    using Op = ast::Binary::Op;
    const bool same = op == Op::Multiply ? isBinary(left, {op}) : isBinary(left, {Op::Add, Op::Subtract});
    return same && isNative(std::get<ast::Binary>(left.node));
}

/// The operands of a chain of &, at most as many as a function of the storage takes.
std::vector<const ast::Expr*> concatenated(const ast::Binary& binary) {
    constexpr std::size_t most = 100;
    std::vector<const ast::Expr*> operands{binary.right.get()};
    const ast::Expr* left = binary.left.get();
    while (isBinary(*left, {ast::Binary::Op::Concat}) && operands.size() + 1 < most) {
        const auto& further = std::get<ast::Binary>(left->node);
        operands.push_back(further.right.get());
        left = further.left.get();
    }
    operands.push_back(left);
    std::reverse(operands.begin(), operands.end());
    return operands;
}

bool isNullLiteral(const ast::Expr& expr) {
    const auto* constant = std::get_if<ast::Constant>(&expr.node);
    return constant && constant->kind == ast::Constant::Kind::Null;
}

} // namespace

char typeLetter(ExprType type) {
    switch (type) {
    case ExprType::Boolean:
        return 'b';
    case ExprType::Integer:
    case ExprType::Long:
        return 'i';
    case ExprType::Double:
        return 'd';
    case ExprType::Date:
        return 't';
    case ExprType::Text:
        return 's';
    case ExprType::Any:
        break;
    }
    return 'v';
}

std::string Emitter::slot(Slot wanted) {
    const auto found = std::find_if(slots_.begin(), slots_.end(), [&](const Slot& s) {
        return s.kind == wanted.kind && s.literal == wanted.literal;
    });
    const auto index = found - slots_.begin();
    if (found == slots_.end()) slots_.push_back(wanted);
    return "?" + std::to_string(index + 1);
}

std::string Emitter::literal(const ast::Literal& literal) { return slot({Slot::Kind::Literal, literal.index}); }

std::string Emitter::clock(const ast::ClockValue& clock) {
    switch (clock.kind) {
    case ast::ClockValue::Kind::Date:
        return slot({Slot::Kind::Today});
    case ast::ClockValue::Kind::Now:
        return slot({Slot::Kind::Now});
    case ast::ClockValue::Kind::Time:
        break;
    }
    return slot({Slot::Kind::Time});
}

std::string Emitter::field(const BoundSource& source, int column) const {
    const std::string alias = "t" + std::to_string(source.number) + ".";
    if (!source.table) return alias + "c" + std::to_string(column + 1);
    return alias + quoted(source.table->columns[static_cast<std::size_t>(column)].name.text());
}

const BoundCore& Emitter::coreOf(const ast::FieldRef& field) const {
    return *scopes_[scopes_.size() - 1 - static_cast<std::size_t>(field.scopeLevel)];
}

std::string Emitter::fieldRef(const ast::FieldRef& ref) {
    const BoundCore& core = coreOf(ref);
    if (ref.aliasItem >= 0) {
        if (++aliasesWritten_ > mostAliasesFollowed) raise(ErrorNumber::TooComplex);
        return "(" + value(*core.items[static_cast<std::size_t>(ref.aliasItem)].expr) + ")";
    }
    return field(core.sources[static_cast<std::size_t>(ref.source)], ref.column);
}

bool Emitter::isPlainField(const ast::Expr& expr) {
    const auto* ref = std::get_if<ast::FieldRef>(&expr.node);
    return ref && ref->aliasItem < 0;
}

/// Is its value in the storage's SQL a truth value (0, 1, NULL) rather than a number of the dialect (0, -1)?
bool Emitter::isCondition(const ast::Expr& expr) {
    return std::visit(Overloaded{[](const ast::Unary& u) { return u.op == ast::Unary::Op::Not; },
                                 [](const ast::Binary& b) { return b.op >= ast::Binary::Op::Equal; },
                                 [](const ast::Like&) { return true; }, [](const ast::Between&) { return true; },
                                 [](const ast::IsNull&) { return true; }, [](const ast::In&) { return true; },
                                 [](const ast::Exists&) { return true; }, [](const auto&) { return false; }},
                      expr.node);
}

/// A field of a table, not one that a derived table has computed.
bool Emitter::isStoredField(const ast::Expr& expr) const {
    if (!isPlainField(expr)) return false;
    const auto& ref = std::get<ast::FieldRef>(expr.node);
    return coreOf(ref).sources[static_cast<std::size_t>(ref.source)].table != nullptr;
}

/// Text other than a stored field carries the German order with it; a stored field has it from its table.
std::string Emitter::comparable(const ast::Expr& expr) {
    const std::string sql = value(expr);
    return expr.type == ExprType::Text && !isStoredField(expr) ? sql + collate : sql;
}

std::string Emitter::condition(const ast::Expr& expr) {
    return std::visit(
        Overloaded{
            [&](const ast::Unary& u) {
                return u.op == ast::Unary::Op::Not ? "(NOT " + condition(*u.operand) + ")"
                                                   : "(" + value(expr) + " <> 0)";
            },
            [&](const ast::Binary& b) {
                if (b.op >= ast::Binary::Op::And) return logical(b);
                const char* symbol = symbolOf(b.op);
                return b.op >= ast::Binary::Op::Equal ? comparison(b, symbol) : "(" + value(expr) + " <> 0)";
            },
            [&](const ast::Like& l) { return like(l); },
            [&](const ast::Between& b) {
                return "(" + comparable(*b.operand) + (b.negated ? " NOT" : "") + " BETWEEN " + value(*b.low) +
                       " AND " + value(*b.high) + ")";
            },
            [&](const ast::IsNull& n) { return "(" + value(*n.operand) + (n.negated ? " IS NOT NULL)" : " IS NULL)"); },
            [&](const ast::In& i) { return in(i); },
            [&](const ast::Exists& e) { return "(EXISTS (" + select(*e.select, Order::Any, nullptr) + "))"; },
            [&](const ast::Constant& c) -> std::string {
                if (c.kind == ast::Constant::Kind::Null) return "NULL";
                return c.kind == ast::Constant::Kind::True ? "1" : "0";
            },
            [&](const ast::FieldRef&) {
                // A YESNO holds -1 or 0 only; written so, an index over the marked rows serves it.
                const bool flag = expr.type == ExprType::Boolean && isPlainField(expr);
                return "(" + value(expr) + (flag ? " = -1)" : " <> 0)");
            },
            [&](const auto&) { return "(" + value(expr) + " <> 0)"; }},
        expr.node);
}

std::string Emitter::logical(const ast::Binary& binary) {
    const bool chained = binary.op == ast::Binary::Op::And || binary.op == ast::Binary::Op::Or;
    const std::string a =
        chained && isBinary(*binary.left, {binary.op}) ? inner(condition(*binary.left)) : condition(*binary.left);
    const std::string b = condition(*binary.right);
    switch (binary.op) {
    case ast::Binary::Op::And:
        return "(" + a + " AND " + b + ")";
    case ast::Binary::Op::Or:
        return "(" + a + " OR " + b + ")";
    case ast::Binary::Op::Xor:
        return "(" + a + " <> " + b + ")";
    case ast::Binary::Op::Eqv:
        return "(" + a + " = " + b + ")";
    default:
        return "((NOT " + a + ") OR " + b + ")";
    }
}

std::string Emitter::comparison(const ast::Binary& binary, const char* symbol) {
    // The engine's own oddity, kept because statements of the house ask "x <> NULL": with the word on the right it
    // means "is there". "x = NULL" stays what it says and is never true.
    if (binary.op == ast::Binary::Op::NotEqual && isNullLiteral(*binary.right))
        return "(" + value(*binary.left) + " IS NOT NULL)";
    const bool text = binary.left->type == ExprType::Text || binary.right->type == ExprType::Text;
    return "(" + value(*binary.left) + " " + symbol + " " + value(*binary.right) + (text ? collate : "") + ")";
}

std::string Emitter::like(const ast::Like& like) {
    const auto* pattern = std::get_if<ast::Literal>(&like.pattern->node);
    const bool equality = pattern && pattern->kind == ast::Literal::Kind::Text && like.operand->type == ExprType::Text;
    // Without a wildcard Like is equality without case, which an index can serve.
    const std::string test = equality ? "(" + value(*like.operand) + " = " + value(*like.pattern) + collate + ")"
                                      : function("j_like", {like.operand.get(), like.pattern.get()});
    return like.negated ? "(NOT " + test + ")" : test;
}

std::string Emitter::in(const ast::In& in) {
    std::string list;
    if (in.select) {
        list = select(*in.select, Order::Any, nullptr);
    } else {
        for (const ast::ExprPtr& one : in.values)
            list += (list.empty() ? "" : ", ") + value(*one);
    }
    return "(" + comparable(*in.operand) + (in.negated ? " NOT IN (" : " IN (") + list + "))";
}

std::string Emitter::textValue(const ast::Expr& expr) {
    return expr.type == ExprType::Text ? value(expr) : function("j_text", {&expr});
}

std::string Emitter::valueAs(const ast::Expr& expr, ExprType type) {
    return type == ExprType::Text && !isNullLiteral(expr) ? textValue(expr) : value(expr);
}

std::string Emitter::value(const ast::Expr& expr) {
    if (isCondition(expr)) return "(-" + condition(expr) + ")";
    return std::visit(
        Overloaded{[&](const ast::Literal& l) { return literal(l); },
                   [&](const ast::Constant& c) -> std::string {
                       if (c.kind == ast::Constant::Kind::Null) return "NULL";
                       return c.kind == ast::Constant::Kind::True ? "(-1)"
                                                                  : "0"; // a bare -1 behind a minus would be a comment
                   },
                   [&](const ast::ClockValue& c) { return clock(c); },
                   [&](const ast::FieldRef& f) { return fieldRef(f); },
                   [&](const ast::Unary& u) {
                       if (u.op == ast::Unary::Op::Plus) return value(*u.operand);
                       return isNativeNumber(u.operand->type) ? "(-" + value(*u.operand) + ")"
                                                              : function("j_negate", {u.operand.get()});
                   },
                   [&](const ast::Binary& b) { return arithmetic(b, expr); },
                   [&](const ast::Call& c) { return call(c); }, [&](const ast::Scalar& s) { return scalar(s); },
                   [](const auto&) -> std::string { raise(ErrorNumber::Internal); }},
        expr.node);
}

std::string Emitter::arithmetic(const ast::Binary& binary, const ast::Expr&) {
    if (isNative(binary)) {
        const std::string left = value(*binary.left);
        return "(" + (continues(*binary.left, binary.op) ? inner(left) : left) + " " + symbolOf(binary.op) + " " +
               value(*binary.right) + ")";
    }
    if (binary.op == ast::Binary::Op::Concat) return function(functionOf(binary.op), concatenated(binary));
    return function(functionOf(binary.op), {binary.left.get(), binary.right.get()});
}

std::string Emitter::function(const char* name, const std::vector<const ast::Expr*>& arguments) {
    std::string types;
    std::string values;
    for (const ast::Expr* argument : arguments) {
        types += typeLetter(argument->type);
        values += ", " + value(*argument);
    }
    return std::string(name) + "('" + types + "'" + values + ")";
}

std::string Emitter::call(const ast::Call& call) {
    if (isAggregate(call.name)) return aggregate(call);
    if (call.name.folded() == "iif") {
        const ExprType type = commonType(call.arguments[1]->type, call.arguments[2]->type);
        return "(CASE WHEN " + condition(*call.arguments[0]) + " THEN " + valueAs(*call.arguments[1], type) + " ELSE " +
               valueAs(*call.arguments[2], type) + " END)";
    }
    std::string types;
    std::string values;
    const Function* known = findFunction(call.name);
    ExprType common = ExprType::Any;
    if (known->result == Function::Result::CommonOfAll)
        for (const ast::ExprPtr& argument : call.arguments)
            common = commonType(common, argument->type);
    for (std::size_t position = 0; position < call.arguments.size(); ++position) {
        const ast::ExprPtr& argument = call.arguments[position];
        if (isDateText(*known, *argument, position)) {
            types += typeLetter(ExprType::Date);
            values += ", " + function("j_cvdate", {argument.get()});
            continue;
        }
        const ExprType type = common == ExprType::Text ? ExprType::Text : argument->type;
        types += typeLetter(type);
        values += ", " + valueAs(*argument, common == ExprType::Text ? ExprType::Text : ExprType::Any);
    }
    return sqlFunctionName(*known) + "('" + types + "'" + values + ")";
}

std::string Emitter::aggregate(const ast::Call& call) {
    const std::string& name = call.name.folded();
    if (call.star) return "count(*)";
    const ast::Expr& argument = *call.arguments.front();
    const bool own = name != "count" && name != "sum" && name != "avg" && name != "min" && name != "max";
    return (own ? "j_" : "") + name + "(" + comparable(argument) + ")";
}

std::string Emitter::scalar(const ast::Scalar& scalar) {
    // More than one row is an error, not the first row: an aggregate of our own counts them.
    return "(SELECT j_single(c1) FROM (" + select(*scalar.select, Order::Any, nullptr) + "))";
}

} // namespace jet
