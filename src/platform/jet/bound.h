#pragma once

#include "platform/jet/compiled.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

/// What the binder finds out about a statement beyond the marks it leaves in the tree; the emitter reads it.
namespace jet {

/// A table or derived table of one FROM. In the storage's SQL it is called t<number>, unique in the statement.
struct BoundSource {
    SqlName alias;
    TablePtr table;                    ///< null for a derived table
    std::vector<OutputColumn> derived; ///< columns of a derived table, called c1, c2, ...
    int number = 0;

    [[nodiscard]] std::optional<int> columnIndex(const SqlName& name) const;
    [[nodiscard]] std::size_t columnCount() const { return table ? table->columns.size() : derived.size(); }
    [[nodiscard]] ExprType columnType(int column) const;
    [[nodiscard]] const SqlName& columnName(int column) const;
};

/// One column of a select list, stars expanded.
struct BoundItem {
    ast::Expr* expr = nullptr; ///< null: the field itself (from a star)
    int source = -1;           ///< with expr null
    int column = -1;
    OutputColumn output;
};

/// One SELECT core, UPDATE or DELETE.
struct BoundCore {
    std::vector<BoundSource> sources; ///< in the order of the text
    std::vector<BoundItem> items;
    bool aggregated = false;
};

struct Binding {
    /// By the tree's node: ast::SelectCore, ast::Update, ast::Delete, ast::Insert.
    std::unordered_map<const void*, BoundCore> cores;
    const std::vector<LiteralValue>* literals = nullptr;
    std::unordered_set<std::size_t> structural;
    TablePtr target;                ///< of a change
    std::vector<int> targetColumns; ///< UPDATE: one for each assignment; INSERT: one for each value
    int targetSource = -1;          ///< UPDATE, DELETE: index among the sources

    [[nodiscard]] const BoundCore& core(const void* node) const { return cores.at(node); }
};

/// An alias stands for its whole expression, which may name further aliases: without a bound, a short statement would
/// grow past all memory.
inline constexpr int mostAliasesFollowed = 500;

/// The type that holds the values of both: Null takes any, numbers the wider one, text with anything else is text.
[[nodiscard]] ExprType commonType(ExprType a, ExprType b);
[[nodiscard]] bool isNumeric(ExprType type);
[[nodiscard]] bool isAggregate(const SqlName& name);

} // namespace jet
