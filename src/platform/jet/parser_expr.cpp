#include "platform/jet/operators.h"
#include "platform/jet/parser_impl.h"

namespace jet {

namespace {

using Op = ast::Binary::Op;

/// Operators between two operands, without the predicates.
std::optional<Op> operatorOf(Word word) {
    switch (word) {
    case Word::Imp:
        return Op::Imp;
    case Word::Eqv:
        return Op::Eqv;
    case Word::Xor:
        return Op::Xor;
    case Word::Or:
        return Op::Or;
    case Word::And:
        return Op::And;
    case Word::Equal:
        return Op::Equal;
    case Word::NotEqual:
        return Op::NotEqual;
    case Word::Less:
        return Op::Less;
    case Word::LessEqual:
        return Op::LessEqual;
    case Word::Greater:
        return Op::Greater;
    case Word::GreaterEqual:
        return Op::GreaterEqual;
    case Word::Ampersand:
        return Op::Concat;
    case Word::Plus:
        return Op::Add;
    case Word::Minus:
        return Op::Subtract;
    case Word::Mod:
        return Op::Modulo;
    case Word::Backslash:
        return Op::IntegerDivide;
    case Word::Star:
        return Op::Multiply;
    case Word::Slash:
        return Op::Divide;
    case Word::Power:
        return Op::Power;
    default:
        return std::nullopt;
    }
}

bool beginsPredicate(Word word) {
    return word == Word::Like || word == Word::In || word == Word::Between || word == Word::Is;
}

} // namespace

ast::ExprPtr Parser::expression() { return chain(binding::loosest); }

std::vector<ast::ExprPtr> Parser::expressions() {
    std::vector<ast::ExprPtr> result;
    do
        result.push_back(expression());
    while (accept(Word::Comma));
    return result;
}

ast::ExprPtr Parser::chain(int minBinding) {
    const Measure measure(size_);
    ast::ExprPtr left = prefixed();
    int last = 0;
    for (int next = bindingAhead(); next >= minBinding && next != 0; next = bindingAhead()) {
        if (last != 0 && next != last) grow(1, 0); // what was read so far becomes an operand
        last = next;
        left = binary(std::move(left), next);
        grow(0, 1);
    }
    if (last != 0) grow(1, 0);
    return left;
}

int Parser::bindingAhead() const {
    const bool negated = ahead(Word::Not) && word(1) != Word::Is && beginsPredicate(word(1));
    if (negated || beginsPredicate(word())) return binding::comparison;
    const auto op = operatorOf(word());
    return op ? binding::of(*op) : 0;
}

ast::ExprPtr Parser::binary(ast::ExprPtr left, int binding) {
    const std::size_t offset = left->position.offset;
    const auto op = operatorOf(word());
    if (!op) return make(offset, predicate(std::move(left)));
    ++at_;
    return make(offset, ast::Binary{*op, std::move(left), chain(binding + 1)});
}

ast::Expr::Node Parser::predicate(ast::ExprPtr operand) {
    if (accept(Word::Is)) {
        const bool negated = accept(Word::Not);
        expect(Word::Null);
        return ast::IsNull{std::move(operand), negated};
    }
    const bool negated = accept(Word::Not);
    if (accept(Word::Like)) return ast::Like{std::move(operand), chain(binding::comparison + 1), negated};
    if (accept(Word::Between)) return between(std::move(operand), negated);
    expect(Word::In);
    return in(std::move(operand), negated);
}

ast::Expr::Node Parser::between(ast::ExprPtr operand, bool negated) {
    ast::ExprPtr low = chain(binding::comparison + 1);
    expect(Word::And);
    return ast::Between{std::move(operand), std::move(low), chain(binding::comparison + 1), negated};
}

ast::Expr::Node Parser::in(ast::ExprPtr operand, bool negated) {
    if (ahead(Word::Open) && queryAhead()) return ast::In{std::move(operand), {}, bracketedQuery(), negated};
    const Nested nested(*this);
    const Measure measure(size_);
    expect(Word::Open);
    ast::In result{std::move(operand), expressions(), nullptr, negated};
    expect(Word::Close);
    grow(1, 0);
    return result;
}

ast::ExprPtr Parser::prefixed() {
    using Unary = ast::Unary::Op;
    const bool isNot = ahead(Word::Not);
    if (!isNot && !ahead(Word::Minus) && !ahead(Word::Plus)) return primary();
    const Nested nested(*this);
    const std::size_t offset = token().offset;
    const Unary op = isNot ? Unary::Not : ahead(Word::Minus) ? Unary::Minus : Unary::Plus;
    ++at_;
    ast::ExprPtr operand = chain((isNot ? binding::negation : binding::sign) + 1);
    grow(2, 1); // printed with brackets around it
    return make(offset, ast::Unary{op, std::move(operand)});
}

ast::ExprPtr Parser::primary() {
    const Token& first = token();
    if (first.kind == TokenKind::Literal) {
        ++at_;
        return make(first.offset, ast::Literal{first.literalKind, first.literal});
    }
    if (ahead(Word::Open)) return bracketed();
    if (ahead(Word::Exists)) {
        ++at_;
        if (!ahead(Word::Open)) expect(Word::Open);
        return make(first.offset, ast::Exists{bracketedQuery()});
    }
    if (!nameAhead()) unexpected("ein Ausdruck");
    return make(first.offset, named());
}

ast::ExprPtr Parser::bracketed() {
    const std::size_t offset = token().offset;
    if (queryAhead()) return make(offset, ast::Scalar{bracketedQuery()});
    const Nested nested(*this);
    expect(Word::Open);
    ast::ExprPtr result = expression();
    expect(Word::Close);
    return result;
}

ast::Expr::Node Parser::named() {
    const Word next = word(1);
    if (next == Word::Dot || next == Word::Bang) return fieldRef();
    if (auto node = constantOrClock()) return std::move(*node);
    if (isReserved(word())) unexpected("ein Ausdruck");
    if (next == Word::Open && token().kind == TokenKind::Name) return call();
    return fieldRef();
}

std::optional<ast::Expr::Node> Parser::constantOrClock() {
    using Clock = ast::ClockValue::Kind;
    using Constant = ast::Constant::Kind;
    const Word found = word();
    const bool clock = found == Word::Date || found == Word::Now || found == Word::Time;
    if (!clock && found != Word::Null && found != Word::True && found != Word::False) return std::nullopt;
    ++at_;
    if (found == Word::Null) return ast::Constant{Constant::Null};
    if (!clock) return ast::Constant{found == Word::True ? Constant::True : Constant::False};
    if (accept(Word::Open)) expect(Word::Close);
    return ast::ClockValue{found == Word::Date ? Clock::Date : found == Word::Now ? Clock::Now : Clock::Time};
}

ast::Expr::Node Parser::call() {
    const Nested nested(*this);
    std::string_view text = token().text;
    if (text.ends_with('$')) text.remove_suffix(1);
    ast::Call result;
    result.name = SqlName(text);
    ++at_;
    expect(Word::Open);
    result.star = result.name == SqlName("Count") && accept(Word::Star);
    if (!result.star && !ahead(Word::Close)) result.arguments = expressions();
    expect(Word::Close);
    grow(1, 1);
    return result;
}

ast::FieldRef Parser::fieldRef() {
    ast::FieldRef result;
    SqlName first = unreservedName("ein Feldname");
    if (!accept(Word::Dot) && !accept(Word::Bang)) {
        result.field = std::move(first);
        return result;
    }
    result.table = std::move(first);
    result.field = name("ein Feldname");
    return result;
}

ast::ExprPtr Parser::make(std::size_t offset, ast::Expr::Node node) const {
    return std::make_unique<ast::Expr>(ast::Expr{{offset}, std::move(node)});
}

} // namespace jet
