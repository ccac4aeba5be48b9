#pragma once

#include "platform/jet/binder.h"
#include "platform/jet/error.h"

namespace jet {

/// The names that an expression can see: those of its own select, then those of the selects around it.
struct Scope {
    BoundCore* core;
    const Scope* outer;
    bool aliasesVisible = false;             ///< select list and ORDER BY may name an alias of the list
    bool insideAggregate = false;            ///< an aggregate within an aggregate is an error
    bool aggregatesAllowed = true;           ///< not in WHERE, ON, GROUP BY
    std::vector<const ast::Expr*> resolving; ///< alias expressions being followed, to find circles
    /// In a join's condition: its own tables, from the first to before the last. Negative: all.
    int firstSource = -1;
    int lastSource = -1;

    [[nodiscard]] bool sees(int source) const {
        return firstSource < 0 || (source >= firstSource && source < lastSource);
    }
};

class Binder {
public:
    Binder(const std::vector<LiteralValue>& literals, const Catalogue& catalogue) : catalogue_(catalogue) {
        binding_.literals = &literals;
    }

    void statement(ast::Statement& statement);
    [[nodiscard]] Binding take() { return std::move(binding_); }

private:
    // binder.cpp
    std::vector<OutputColumn> select(ast::Select& select, const Scope* outer);
    void core(ast::SelectCore& core, const Scope* outer);
    void orderBy(ast::Select& select, const std::vector<OutputColumn>& columns, const Scope* outer);
    void items(ast::SelectCore& core, Scope& scope);
    void star(const ast::SelectItem& item, BoundCore& bound);
    void nameItem(const ast::SelectItem& item, BoundItem& bound, std::size_t position, const BoundCore& core);
    void grouping(ast::SelectCore& core, Scope& scope);
    void checkGrouped(const ast::Expr& expr, const ast::SelectCore& core);
    void requireShown(const ast::Expr& key, const BoundCore& core);
    void keepLiterals(const ast::Expr& expr);
    void source(ast::Source& source, BoundCore& bound);
    int joinConditions(ast::Source& source, Scope& scope, int first = 0);
    void condition(ast::Expr& expr, Scope& scope);

    // binder_change.cpp
    void update(ast::Update& update);
    void remove(ast::Delete& remove);
    void insert(ast::Insert& insert);
    [[nodiscard]] TablePtr table(const SqlName& name) const;

    // binder_expr.cpp
    ExprType expr(ast::Expr& expr, Scope& scope);
    ExprType node(ast::Literal& literal, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Constant& constant, ast::Expr& expr, Scope& scope);
    ExprType node(ast::ClockValue& clock, ast::Expr& expr, Scope& scope);
    ExprType node(ast::FieldRef& field, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Unary& unary, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Binary& binary, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Like& like, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Between& between, ast::Expr& expr, Scope& scope);
    ExprType node(ast::IsNull& isNull, ast::Expr& expr, Scope& scope);
    ExprType node(ast::In& in, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Exists& exists, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Scalar& scalar, ast::Expr& expr, Scope& scope);
    ExprType node(ast::Call& call, ast::Expr& expr, Scope& scope);
    ExprType aggregate(ast::Call& call, Scope& scope);
    bool resolveHere(ast::FieldRef& field, const BoundCore& core, int level);
    bool resolveAlias(ast::FieldRef& field, Scope& scope);

    Binding binding_;
    const Catalogue& catalogue_;
    int sourceCount_ = 0;
    int aliasesFollowed_ = 0;
};

/// Text against a number or date can never be compared: 3464 naming the field where one is involved.
void requireComparable(const ast::Expr& a, const ast::Expr& b);
/// What an error text calls an expression: the field's name, or a word for its kind.
[[nodiscard]] std::string described(const ast::Expr& expr);
/// Do both name the same thing? Fields by what they were bound to, literals by value.
[[nodiscard]] bool sameExpr(const ast::Expr& a, const ast::Expr& b, const std::vector<LiteralValue>& literals);

} // namespace jet
