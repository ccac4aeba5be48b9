#pragma once

#include "platform/jet/catalogue.h"
#include "platform/jet/lexer.h"

#include <string>
#include <vector>

namespace jet {

/// What the storage's SQL wants bound as its parameters ?1, ?2, ... in this order.
struct Slot {
    enum class Kind { Literal, Now, Today, Time };
    Kind kind;
    std::size_t literal = 0; ///< index, with kind Literal
};

/// A column of a row-returning statement.
struct OutputColumn {
    SqlName name; ///< "ID"; "tblBelegung.ID" where two tables give the same name; "Ausdr1000" for a nameless expression
    SqlName sourceAlias; ///< table alias for a plain field, else empty
    SqlName sourceField; ///< field's name in that table, else empty
    ExprType type = ExprType::Any;
    int source = -1; ///< index into Compiled::sources for a plain field of a base table, else -1
    int column = -1; ///< index into that table's columns
};

/// A base table of the outermost FROM.
struct BaseSource {
    SqlName alias;
    TablePtr table;
    int rowIdColumn = -1; ///< result column (after the visible ones) with the row's identity; -1: not asked for
};

/// A statement of the dialect in the storage's SQL.
struct Compiled {
    enum class Kind { Rows, Change };
    Kind kind = Kind::Rows;
    std::string sql;
    std::vector<Slot> slots;
    std::vector<OutputColumn> columns; ///< of Rows; result columns behind them are identities
    std::vector<BaseSource> sources;   ///< of Rows, in the order of FROM
    /// Result column (behind the visible ones) with the whole number by which the rows are to be sorted once they are
    /// read: the first table's key, so that rows without an ORDER BY always come in one order. -1: they come sorted.
    int sortColumn = -1;
    bool updatable = false; ///< rows can be written through (no grouping, DISTINCT, UNION)
    TablePtr target;        ///< of Change: the table that is written
    /// Literals that the SQL has built in: the plan serves only statements with the same ones.
    std::vector<std::size_t> structuralLiterals;
};

} // namespace jet
