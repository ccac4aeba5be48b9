#include "platform/jet/printer.h"

#include "platform/jet/operators.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <utility>

namespace jet {

namespace {

using Literals = std::vector<LiteralValue>;

std::string_view spellingOf(ast::Binary::Op op) {
    using Op = ast::Binary::Op;
    switch (op) {
    case Op::Add:
        return " + ";
    case Op::Subtract:
        return " - ";
    case Op::Multiply:
        return " * ";
    case Op::Divide:
        return " / ";
    case Op::IntegerDivide:
        return " \\ ";
    case Op::Modulo:
        return " MOD ";
    case Op::Power:
        return " ^ ";
    case Op::Concat:
        return " & ";
    case Op::Equal:
        return " = ";
    case Op::NotEqual:
        return " <> ";
    case Op::Less:
        return " < ";
    case Op::LessEqual:
        return " <= ";
    case Op::Greater:
        return " > ";
    case Op::GreaterEqual:
        return " >= ";
    case Op::And:
        return " AND ";
    case Op::Or:
        return " OR ";
    case Op::Xor:
        return " XOR ";
    case Op::Eqv:
        return " EQV ";
    case Op::Imp:
        return " IMP ";
    }
    return {};
}

/// How tightly a node binds its operands; 0 for those that stand for themselves.
int bindingOf(const ast::Expr& expr) {
    if (const auto* binary = std::get_if<ast::Binary>(&expr.node)) return binding::of(binary->op);
    const bool predicate = std::holds_alternative<ast::Like>(expr.node) ||
                           std::holds_alternative<ast::Between>(expr.node) ||
                           std::holds_alternative<ast::IsNull>(expr.node) || std::holds_alternative<ast::In>(expr.node);
    return predicate ? binding::comparison : 0;
}

std::string doubleText(double number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    std::string text(buffer.data(), end);
    if (text.find_first_of(".e") == std::string::npos) text += ".0"; // else it would read as Integer
    return text;
}

std::string dateText(Date date) {
    const basic::DateParts p = basic::partsOf(date);
    std::array<char, 48> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "#%02d-%02d-%04d", p.month, p.day, p.year);
    std::string text = buffer.data();
    if (date.secondOfDay() != 0) {
        std::snprintf(buffer.data(), buffer.size(), " %02d:%02d:%02d", p.hour, p.minute, p.second);
        text += buffer.data();
    }
    return text += '#';
}

std::string quotedText(std::string_view text) {
    std::string result = "'";
    for (const char c : text)
        result.append(c == '\'' ? 2 : 1, c);
    return result += '\'';
}

std::string_view typeName(const ast::ColumnDef& column) {
    switch (column.type) {
    case FieldType::Boolean:
        return "YESNO";
    case FieldType::Integer:
        return "SHORT";
    case FieldType::Long:
        return column.counter ? "COUNTER" : "LONG";
    case FieldType::Double:
        return "DOUBLE";
    case FieldType::Date:
        return "DATETIME";
    case FieldType::Text:
        return "TEXT";
    case FieldType::Memo:
        return "MEMO";
    }
    return {};
}

/// Writes a tree behind what is there already. A chain of operators that bind alike stands in one pair of brackets, as
/// it is read from left to right anyway; so the text nests no deeper than the tree does.
struct Writer {
    const Literals& literals;
    std::string out;

    Writer& text(std::string_view part) {
        out += part;
        return *this;
    }

    /// A bracket cannot be quoted inside brackets.
    void name(const SqlName& name) {
        const bool bracket = name.text().find(']') != std::string::npos;
        text(bracket ? "`" : "[").text(name.text()).text(bracket ? "`" : "]");
    }

    template <typename T, typename Write>
    void list(const std::vector<T>& entries, Write write) {
        bool first = true;
        for (const T& entry : entries) {
            if (!std::exchange(first, false)) text(", ");
            write(entry);
        }
    }

    void names(const std::vector<SqlName>& entries) {
        text("(");
        list(entries, [this](const SqlName& entry) { name(entry); });
        text(")");
    }

    void expressions(const std::vector<ast::ExprPtr>& entries) {
        list(entries, [this](const ast::ExprPtr& entry) { expr(*entry); });
    }

    void expr(const ast::Expr& e) {
        if (bindingOf(e) == 0) return bare(e);
        text("(");
        bare(e);
        text(")");
    }

    void bare(const ast::Expr& e) {
        std::visit([this](const auto& node) { write(node); }, e.node);
    }

    void leftOperand(const ast::Expr& left, int binding) {
        if (bindingOf(left) == binding)
            bare(left);
        else
            expr(left);
    }

    void negation(bool negated) { text(negated ? " NOT " : " "); }

    void write(const ast::Literal& literal) {
        const Value& value = literals.at(literal.index).value;
        switch (literal.kind) {
        case ast::Literal::Kind::Integer:
            text(std::to_string(value.longOr()));
            break;
        case ast::Literal::Kind::Double:
            text(doubleText(value.doubleOr()));
            break;
        case ast::Literal::Kind::Date:
            text(dateText(value.dateOr()));
            break;
        case ast::Literal::Kind::Text:
        case ast::Literal::Kind::WildcardText:
            text(quotedText(value.text()));
            break;
        }
    }

    void write(const ast::Constant& constant) {
        using Kind = ast::Constant::Kind;
        text(constant.kind == Kind::Null ? "NULL" : constant.kind == Kind::True ? "TRUE" : "FALSE");
    }

    void write(const ast::ClockValue& clock) {
        using Kind = ast::ClockValue::Kind;
        text(clock.kind == Kind::Date ? "Date()" : clock.kind == Kind::Now ? "Now()" : "Time()");
    }

    void write(const ast::FieldRef& field) {
        if (!field.table.empty()) {
            name(field.table);
            text(".");
        }
        name(field.field);
    }

    void write(const ast::Unary& unary) {
        using Op = ast::Unary::Op;
        text(unary.op == Op::Not ? "(NOT " : unary.op == Op::Minus ? "(-" : "(+");
        expr(*unary.operand);
        text(")");
    }

    void write(const ast::Binary& binary) {
        leftOperand(*binary.left, binding::of(binary.op));
        text(spellingOf(binary.op));
        expr(*binary.right);
    }

    void write(const ast::Like& like) {
        leftOperand(*like.operand, binding::comparison);
        negation(like.negated);
        text("LIKE ");
        expr(*like.pattern);
    }

    void write(const ast::Between& between) {
        leftOperand(*between.operand, binding::comparison);
        negation(between.negated);
        text("BETWEEN ");
        expr(*between.low);
        text(" AND ");
        expr(*between.high);
    }

    void write(const ast::IsNull& isNull) {
        leftOperand(*isNull.operand, binding::comparison);
        text(isNull.negated ? " IS NOT NULL" : " IS NULL");
    }

    void write(const ast::In& in) {
        leftOperand(*in.operand, binding::comparison);
        negation(in.negated);
        text("IN (");
        if (in.select)
            select(*in.select);
        else
            expressions(in.values);
        text(")");
    }

    void write(const ast::Exists& exists) {
        text("EXISTS ");
        bracketed(*exists.select);
    }

    void write(const ast::Scalar& scalar) { bracketed(*scalar.select); }

    void write(const ast::Call& call) {
        text(call.name.text()).text("(");
        if (call.star) text("*");
        expressions(call.arguments);
        text(")");
    }

    void bracketed(const ast::Select& nested) {
        text("(");
        select(nested);
        text(")");
    }

    void clause(std::string_view keyword, const ast::ExprPtr& condition) {
        if (!condition) return;
        text(keyword);
        expr(*condition);
    }

    void select(const ast::Select& s) {
        for (std::size_t i = 0; i < s.cores.size(); ++i) {
            if (i > 0) text(s.unionAll[i - 1] ? " UNION ALL " : " UNION ");
            core(s.cores[i]);
        }
        if (s.orderBy.empty()) return;
        text(" ORDER BY ");
        list(s.orderBy, [this](const ast::OrderItem& entry) { order(entry); });
    }

    void core(const ast::SelectCore& c) {
        using Quantifier = ast::SelectCore::Quantifier;
        text("SELECT ");
        if (c.quantifier == Quantifier::Distinct) text("DISTINCT ");
        if (c.quantifier == Quantifier::DistinctRow) text("DISTINCTROW ");
        if (c.top) text("TOP ").text(std::to_string(c.top->count)).text(c.top->percent ? " PERCENT " : " ");
        list(c.items, [this](const ast::SelectItem& entry) { item(entry); });
        if (c.from) {
            text(" FROM ");
            source(*c.from);
        }
        clause(" WHERE ", c.where);
        if (!c.groupBy.empty()) {
            text(" GROUP BY ");
            expressions(c.groupBy);
        }
        clause(" HAVING ", c.having);
    }

    void item(const ast::SelectItem& entry) {
        if (!entry.expr) {
            if (!entry.starOfTable.empty()) {
                name(entry.starOfTable);
                text(".");
            }
            text("*");
            return;
        }
        expr(*entry.expr);
        alias(entry.alias);
    }

    void alias(const SqlName& given) {
        if (given.empty()) return;
        text(" AS ");
        name(given);
    }

    void order(const ast::OrderItem& entry) {
        if (entry.expr)
            expr(*entry.expr);
        else
            text(std::to_string(entry.position));
        if (entry.descending) text(" DESC");
    }

    void source(const ast::Source& s) {
        std::visit([this](const auto& node) { write(node); }, s.node);
    }

    void write(const ast::TableSource& table) {
        name(table.table);
        if (table.alias.text() != table.table.text()) alias(table.alias);
    }

    void write(const ast::DerivedSource& derived) {
        bracketed(*derived.select);
        alias(derived.alias);
    }

    void write(const ast::JoinSource& join) {
        using Kind = ast::JoinSource::Kind;
        source(*join.left);
        switch (join.kind) {
        case Kind::Cross:
            text(", ");
            source(*join.right);
            return;
        case Kind::Inner:
            text(" INNER JOIN ");
            break;
        case Kind::Left:
            text(" LEFT JOIN ");
            break;
        case Kind::Right:
            text(" RIGHT JOIN ");
            break;
        }
        rightSource(*join.right);
        clause(" ON ", join.on);
    }

    void rightSource(const ast::Source& right) {
        const bool join = std::holds_alternative<ast::JoinSource>(right.node);
        text(join ? "(" : "");
        source(right);
        text(join ? ")" : "");
    }

    void write(const ast::Select& s) { select(s); }

    void write(const ast::Update& update) {
        text("UPDATE ");
        source(*update.from);
        text(" SET ");
        list(update.assignments, [this](const ast::Assignment& assignment) {
            write(assignment.target);
            text(" = ");
            expr(*assignment.value);
        });
        clause(" WHERE ", update.where);
    }

    void write(const ast::Delete& statement) {
        text("DELETE ");
        list(statement.items, [this](const ast::DeleteItem& entry) { deleteItem(entry); });
        text(statement.items.empty() ? "FROM " : " FROM ");
        source(*statement.from);
        clause(" WHERE ", statement.where);
    }

    void deleteItem(const ast::DeleteItem& entry) {
        if (!entry.table.empty()) {
            name(entry.table);
            text(".");
        }
        if (entry.field.empty())
            text("*");
        else
            name(entry.field);
    }

    void write(const ast::Insert& insert) {
        text("INSERT INTO ");
        name(insert.table);
        text(" ");
        if (!insert.fields.empty()) {
            names(insert.fields);
            text(" ");
        }
        if (insert.select) return select(*insert.select);
        text("VALUES (");
        expressions(insert.values);
        text(")");
    }

    void column(const ast::ColumnDef& c) {
        name(c.name);
        text(" ").text(typeName(c));
        if (c.type == FieldType::Text) text("(").text(std::to_string(c.size)).text(")");
        if (c.notNull) text(" NOT NULL");
        if (c.primaryKey) text(" PRIMARY KEY");
        if (c.unique) text(" UNIQUE");
    }

    void write(const ast::CreateTable& create) {
        text("CREATE TABLE ");
        name(create.table);
        text(" (");
        list(create.columns, [this](const ast::ColumnDef& entry) { column(entry); });
        if (!create.primaryKey.empty()) {
            text(create.columns.empty() ? "PRIMARY KEY " : ", PRIMARY KEY ");
            names(create.primaryKey);
        }
        text(")");
    }

    void write(const ast::CreateIndex& create) {
        text(create.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ");
        name(create.index);
        text(" ON ");
        name(create.table);
        text(" ");
        names(create.columns);
        if (create.primary) text(" WITH PRIMARY");
    }

    void write(const ast::DropTable& drop) {
        text("DROP TABLE ");
        name(drop.table);
    }

    void write(const ast::DropIndex& drop) {
        text("DROP INDEX ");
        name(drop.index);
        text(" ON ");
        name(drop.table);
    }

    void write(const ast::AddColumn& add) {
        text("ALTER TABLE ");
        name(add.table);
        text(" ADD COLUMN ");
        column(add.column);
    }
};

} // namespace

std::string print(const ast::Statement& statement, const Literals& literals) {
    Writer writer{literals, {}};
    std::visit([&writer](const auto& node) { writer.write(node); }, statement);
    return std::move(writer.out);
}

std::string print(const ast::Expr& expr, const Literals& literals) {
    Writer writer{literals, {}};
    writer.expr(expr);
    return std::move(writer.out);
}

} // namespace jet
