#pragma once

#include "platform/jet/field_type.h"
#include "platform/jet/sql_name.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The tree of a statement as the parser builds it. The binder adds what it finds out about names and types (the
/// members marked so); nothing else changes a tree once it is built.
namespace jet::ast {

struct Select;
struct Expr;
using ExprPtr = std::unique_ptr<Expr>;
using SelectPtr = std::unique_ptr<Select>;

/// Where a node begins, for error texts: offset in bytes from the start of the statement.
struct Position {
    std::size_t offset = 0;
};

/// A number, text or date as it stood. `index` counts the statement's literals from 0 in the order of the text.
struct Literal {
    enum class Kind { Integer, Double, Text, WildcardText, Date };
    Kind kind;
    std::size_t index;
};

/// Null, True, False.
struct Constant {
    enum class Kind { Null, True, False };
    Kind kind;
};

/// Date, Now or Time, with or without brackets.
struct ClockValue {
    enum class Kind { Date, Now, Time };
    Kind kind;
};

/// field, table.field or table!field.
struct FieldRef {
    SqlName table; ///< empty when unqualified
    SqlName field;
    // set by the binder
    int scopeLevel = 0; ///< 0: this select, 1: the one around it, ...
    int source = -1;    ///< index among the sources of that select
    int column = -1;    ///< index in that source; -1: an output alias (see aliasItem)
    int aliasItem = -1; ///< an alias of the select list that ORDER BY names
};

struct Unary {
    enum class Op { Minus, Plus, Not };
    Op op;
    ExprPtr operand;
};

struct Binary {
    enum class Op {
        Add,
        Subtract,
        Multiply,
        Divide,
        IntegerDivide,
        Modulo,
        Power,
        Concat,
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        And,
        Or,
        Xor,
        Eqv,
        Imp
    };
    Op op;
    ExprPtr left;
    ExprPtr right;
};

struct Like {
    ExprPtr operand;
    ExprPtr pattern;
    bool negated;
};

struct Between {
    ExprPtr operand;
    ExprPtr low;
    ExprPtr high;
    bool negated;
};

struct IsNull {
    ExprPtr operand;
    bool negated;
};

/// In (values) or In (select).
struct In {
    ExprPtr operand;
    std::vector<ExprPtr> values;
    SelectPtr select; ///< set instead of values
    bool negated;
};

struct Exists {
    SelectPtr select;
};

/// (select) as a value.
struct Scalar {
    SelectPtr select;
};

/// A function of the run-time library, IIf, or an aggregate.
struct Call {
    SqlName name;
    std::vector<ExprPtr> arguments;
    bool star = false; ///< Count(*)
};

struct Expr {
    using Node = std::variant<Literal, Constant, ClockValue, FieldRef, Unary, Binary, Like, Between, IsNull, In, Exists,
                              Scalar, Call>;
    Position position;
    Node node;
    // set by the binder
    ExprType type = ExprType::Any;
};

/// A table with its alias, a derived table, or a bracketed join.
struct Source;
using SourcePtr = std::unique_ptr<Source>;

struct TableSource {
    SqlName table;
    SqlName alias;  ///< the table's name where none is given
    int index = -1; ///< set by the binder: index among the sources of its select
};

struct DerivedSource {
    SelectPtr select;
    SqlName alias;
    int index = -1; ///< set by the binder
};

struct JoinSource {
    enum class Kind { Inner, Left, Right, Cross };
    Kind kind; ///< Cross: a comma between sources, without a condition
    SourcePtr left;
    SourcePtr right;
    ExprPtr on;
};

struct Source {
    Position position;
    std::variant<TableSource, DerivedSource, JoinSource> node;
};

/// One entry of a select list: an expression, * or table.*.
struct SelectItem {
    Position position;
    ExprPtr expr;        ///< null for a star
    SqlName alias;       ///< empty where none is given
    SqlName starOfTable; ///< with a star: empty for all tables
};

struct OrderItem {
    ExprPtr expr;     ///< null when by position
    int position = 0; ///< 1-based, with expr null
    bool descending = false;
};

struct Top {
    long count;
    bool percent;
};

/// One SELECT between set operators.
struct SelectCore {
    Position position;
    enum class Quantifier { All, Distinct, DistinctRow };
    Quantifier quantifier = Quantifier::All;
    std::optional<Top> top;
    std::vector<SelectItem> items;
    SourcePtr from; ///< null: no FROM
    ExprPtr where;
    std::vector<ExprPtr> groupBy;
    ExprPtr having;
};

/// A whole select: one core, or several joined by UNION; a bracketed arm with its own ORDER BY is an error.
struct Select {
    std::vector<SelectCore> cores;
    std::vector<bool> unionAll; ///< between cores i and i + 1
    std::vector<OrderItem> orderBy;
};

struct Assignment {
    FieldRef target;
    Position position;
    ExprPtr value;
};

struct Update {
    SourcePtr from;
    std::vector<Assignment> assignments;
    ExprPtr where;
};

/// What stands between DELETE and FROM: only the table matters.
struct DeleteItem {
    SqlName table; ///< empty when unqualified
    SqlName field; ///< empty for a star
};

struct Delete {
    std::vector<DeleteItem> items;
    SourcePtr from;
    ExprPtr where;
};

struct Insert {
    SqlName table;
    Position position;
    std::vector<SqlName> fields; ///< empty: all in order
    std::vector<ExprPtr> values; ///< VALUES (...)
    SelectPtr select;            ///< or a select
};

struct ColumnDef {
    SqlName name;
    Position position;
    FieldType type;
    int size = 0; ///< characters, Text only
    bool counter = false;
    bool notNull = false;
    bool primaryKey = false;
    bool unique = false;
};

struct CreateTable {
    SqlName table;
    std::vector<ColumnDef> columns;
    std::vector<SqlName> primaryKey; ///< from a CONSTRAINT over several columns
};

struct CreateIndex {
    SqlName index;
    SqlName table;
    std::vector<SqlName> columns;
    bool unique = false;
    bool primary = false;
};

struct DropTable {
    SqlName table;
};

struct DropIndex {
    SqlName index;
    SqlName table;
};

/// ALTER TABLE t ADD [COLUMN] column definition.
struct AddColumn {
    SqlName table;
    ColumnDef column;
};

using Statement =
    std::variant<Select, Update, Delete, Insert, CreateTable, CreateIndex, DropTable, DropIndex, AddColumn>;

} // namespace jet::ast
