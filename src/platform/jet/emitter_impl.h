#pragma once

#include "platform/jet/emitter.h"
#include "platform/jet/error.h"

namespace jet {

class Emitter {
public:
    explicit Emitter(const Binding& binding) : binding_(binding) {}

    Compiled rows(const ast::Select& select, bool includeIdentities);
    Compiled change(const ast::Update& update);
    Compiled change(const ast::Delete& remove);
    Compiled change(const ast::Insert& insert);

private:
    /// How rows come when the statement does not say: as it falls, in key order by the storage, or sorted by who reads
    /// them.
    enum class Order { Any, Stored, Reader };

    // emitter_select.cpp
    std::string select(const ast::Select& select, Order order, Compiled* plan);
    std::string core(const ast::Select& select, std::size_t index, Order order, Compiled* plan);
    std::string columnList(const ast::Select& select, std::size_t index);
    [[nodiscard]] std::string starField(const BoundCore& bound, const BoundItem& item, ExprType type) const;
    std::string hiddenColumns(const BoundCore& bound, Compiled& plan) const;
    std::string tail(const ast::SelectCore& core);
    std::string grouping(const ast::SelectCore& core);
    std::string orderBy(const ast::Select& select, const std::vector<std::string>& key);
    std::string orderKey(const ast::OrderItem& item, const ast::Select& select);
    std::string topOf(const ast::Select& select, const ast::SelectCore& core, const std::string& list,
                      std::size_t hidden);
    [[nodiscard]] std::vector<std::string> keyOf(const BoundCore& bound) const;
    void findBracketed(const ast::Source& source, const BoundCore& bound, bool inside);
    [[nodiscard]] std::string identity(const BoundSource& source) const;
    [[nodiscard]] std::string tableSource(const BoundSource& source) const;
    std::string source(const ast::Source& source);
    std::string join(const ast::JoinSource& join);
    std::string joinOperand(const ast::Source& source);
    [[nodiscard]] std::string field(const BoundSource& source, int column) const;
    [[nodiscard]] ExprType columnType(const ast::Select& select, std::size_t column) const;

    // emitter_change.cpp
    Compiled planOfChange() const;
    enum class Use { NewRow, Change };
    std::string stored(int column, const std::string& value, ExprType type, Use use) const;

    // emitter_expr.cpp
    std::string value(const ast::Expr& expr);
    std::string condition(const ast::Expr& expr);
    std::string textValue(const ast::Expr& expr);
    std::string valueAs(const ast::Expr& expr, ExprType type);
    std::string comparison(const ast::Binary& binary, const char* symbol);
    std::string logical(const ast::Binary& binary);
    std::string arithmetic(const ast::Binary& binary, const ast::Expr& expr);
    std::string function(const char* name, const std::vector<const ast::Expr*>& arguments);
    std::string call(const ast::Call& call);
    std::string aggregate(const ast::Call& call);
    std::string scalar(const ast::Scalar& scalar);
    std::string like(const ast::Like& like);
    std::string in(const ast::In& in);
    [[nodiscard]] const BoundCore& coreOf(const ast::FieldRef& field) const;
    std::string fieldRef(const ast::FieldRef& field);
    std::string literal(const ast::Literal& literal);
    std::string clock(const ast::ClockValue& clock);
    std::string slot(Slot slot);
    [[nodiscard]] static bool isCondition(const ast::Expr& expr);
    [[nodiscard]] static bool isPlainField(const ast::Expr& expr);
    [[nodiscard]] bool isStoredField(const ast::Expr& expr) const;
    std::string comparable(const ast::Expr& expr);

    const Binding& binding_;
    std::vector<const BoundCore*> scopes_;
    std::vector<Slot> slots_;
    std::vector<int> bracketed_; ///< numbers of the tables inside brackets of a join
    int aliasesWritten_ = 0;
};

/// The letter by which a registered function knows the type of an argument.
[[nodiscard]] char typeLetter(ExprType type);

} // namespace jet
