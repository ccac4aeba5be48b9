#pragma once

#include "platform/jet/ast.h"
#include "platform/jet/overloaded.h"

namespace jet {

/// Calls visit for each direct operand; subqueries are closed.
void forEachOperand(const ast::Expr& expr, const auto& visit) {
    std::visit(Overloaded{[&](const ast::Unary& u) { visit(*u.operand); },
                          [&](const ast::Binary& b) {
                              visit(*b.left);
                              visit(*b.right);
                          },
                          [&](const ast::Like& l) {
                              visit(*l.operand);
                              visit(*l.pattern);
                          },
                          [&](const ast::Between& b) {
                              visit(*b.operand);
                              visit(*b.low);
                              visit(*b.high);
                          },
                          [&](const ast::IsNull& n) { visit(*n.operand); },
                          [&](const ast::In& in) {
                              visit(*in.operand);
                              for (const ast::ExprPtr& value : in.values)
                                  visit(*value);
                          },
                          [&](const ast::Call& c) {
                              for (const ast::ExprPtr& argument : c.arguments)
                                  visit(*argument);
                          },
                          [](const auto&) {}},
               expr.node);
}

/// Calls visit for each field of the expression outside its subqueries.
void forEachField(const ast::Expr& expr, const auto& visit) {
    if (const auto* field = std::get_if<ast::FieldRef>(&expr.node)) visit(*field);
    forEachOperand(expr, [&](const ast::Expr& operand) { forEachField(operand, visit); });
}

} // namespace jet
