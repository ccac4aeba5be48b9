#include "platform/jet/parser_impl.h"

namespace jet {

namespace {

using Join = ast::JoinSource::Kind;

ast::SourcePtr makeSource(ast::Position position, auto node) {
    return std::make_unique<ast::Source>(ast::Source{position, std::move(node)});
}

constexpr int largestTop = 1'000'000'000;
constexpr int largestPosition = 255;

} // namespace

ast::Select Parser::query() {
    const Measure measure(size_);
    ast::Select result = arm();
    while (ahead(Word::Union))
        appendArm(result);
    if (ahead(Word::Order) && result.orderBy.empty()) result.orderBy = orderBy();
    return result;
}

ast::Select Parser::arm() {
    ast::Select result;
    if (ahead(Word::Open)) return std::move(*bracketedQuery());
    result.cores.push_back(core());
    return result;
}

void Parser::appendArm(ast::Select& select) {
    const std::size_t offset = token().offset;
    expect(Word::Union);
    if (!select.orderBy.empty()) fail(offset, "Ein Teil einer UNION kann nicht für sich sortiert werden");
    select.unionAll.push_back(accept(Word::All));
    const std::size_t begin = token().offset;
    ast::Select next = arm();
    if (!next.orderBy.empty()) fail(begin, "Ein Teil einer UNION kann nicht für sich sortiert werden");
    if (next.cores.size() > 1) fail(begin, "Eine UNION in Klammern kann nur am Anfang stehen");
    select.cores.push_back(std::move(next.cores.front()));
}

ast::SelectPtr Parser::bracketedQuery() {
    const Nested nested(*this);
    const Measure measure(size_);
    expect(Word::Open);
    auto result = std::make_unique<ast::Select>(query());
    accept(Word::Semicolon);
    expect(Word::Close);
    grow(1, 1);
    return result;
}

bool Parser::queryAhead() const {
    std::size_t at = at_ + 1;
    if (words_[at] == Word::Select) return true;
    const std::size_t farthest = at + maxLevels; // deeper is too complex anyway
    while (at < farthest && words_[at] == Word::Open && words_[at + 1] == Word::Open)
        ++at;
    if (words_[at] != Word::Open || words_[at + 1] != Word::Select) return false;
    const std::size_t behind = closing_[at] + 1;
    return behind < words_.size() && words_[behind] == Word::Union;
}

ast::SelectCore Parser::core() {
    ast::SelectCore result;
    result.position = position();
    expect(Word::Select);
    result.quantifier = quantifier();
    result.top = top();
    do
        result.items.push_back(item());
    while (accept(Word::Comma));
    if (accept(Word::From)) result.from = sources();
    result.where = where();
    result.groupBy = groupBy();
    if (accept(Word::Having)) result.having = expression();
    return result;
}

ast::SelectCore::Quantifier Parser::quantifier() {
    if (accept(Word::Distinct)) return ast::SelectCore::Quantifier::Distinct;
    if (accept(Word::DistinctRow)) return ast::SelectCore::Quantifier::DistinctRow;
    const Word next = word(1);
    const bool isField = next == Word::Comma || next == Word::From || next == Word::Dot || next == Word::As;
    if (ahead(Word::All) && !isField) accept(Word::All);
    return ast::SelectCore::Quantifier::All;
}

std::optional<ast::Top> Parser::top() {
    if (!ahead(Word::Top) || token(1).kind != TokenKind::Literal) return std::nullopt;
    expect(Word::Top);
    const std::size_t number = at_;
    const int count = structuralNumber("eine Anzahl", 1, largestTop);
    const bool percent = accept(Word::Percent);
    if (percent && count > 100) fail(tokens_[number].offset, "Mehr als 100 Prozent gibt es nicht");
    return ast::Top{count, percent};
}

ast::SelectItem Parser::item() {
    ast::SelectItem result;
    result.position = position();
    if (accept(Word::Star)) return result;
    if (nameAhead() && word(1) == Word::Dot && word(2) == Word::Star) {
        result.starOfTable = unreservedName("ein Tabellenname");
        at_ += 2;
        return result;
    }
    result.expr = expression();
    result.alias = alias();
    return result;
}

SqlName Parser::alias() {
    if (accept(Word::As)) return unreservedName("ein Name");
    if (!nameAhead() || endsAlias(word())) return {};
    return name("ein Name");
}

ast::ExprPtr Parser::where() { return accept(Word::Where) ? expression() : nullptr; }

std::vector<ast::ExprPtr> Parser::groupBy() {
    if (!accept(Word::Group)) return {};
    expect(Word::By);
    return expressions();
}

std::vector<ast::OrderItem> Parser::orderBy() {
    std::vector<ast::OrderItem> result;
    expect(Word::Order);
    expect(Word::By);
    do
        result.push_back(orderItem());
    while (accept(Word::Comma));
    return result;
}

ast::OrderItem Parser::orderItem() {
    ast::OrderItem result;
    const std::size_t begin = at_;
    result.expr = expression();
    const auto* literal = std::get_if<ast::Literal>(&result.expr->node);
    if (literal != nullptr && literal->kind == ast::Literal::Kind::Integer) {
        const std::size_t end = std::exchange(at_, begin);
        while (accept(Word::Open)) {
        }
        result.position = structuralNumber("die Nummer eines Feldes", 1, largestPosition);
        result.expr = nullptr;
        at_ = end;
    }
    result.descending = accept(Word::Desc);
    if (!result.descending) accept(Word::Asc);
    return result;
}

ast::SourcePtr Parser::sources() {
    const Measure measure(size_);
    ast::SourcePtr left = joins();
    while (accept(Word::Comma)) {
        const ast::Position begin = left->position;
        left = makeSource(begin, ast::JoinSource{Join::Cross, std::move(left), joins(), nullptr});
        grow(0, 1);
    }
    return left;
}

ast::SourcePtr Parser::joins() {
    const Measure measure(size_);
    ast::SourcePtr left = source();
    bool joined = false;
    while (const auto kind = joinKind()) {
        joined = true;
        ast::SourcePtr right = source();
        expect(Word::On);
        ast::ExprPtr on = expression();
        const ast::Position begin = left->position;
        left = makeSource(begin, ast::JoinSource{*kind, std::move(left), std::move(right), std::move(on)});
        grow(0, 1);
    }
    if (joined) grow(1, 0);
    return left;
}

std::optional<Join> Parser::joinKind() {
    if (accept(Word::Join)) return Join::Inner;
    if (!ahead(Word::Inner) && !ahead(Word::Left) && !ahead(Word::Right)) return std::nullopt;
    const Join kind = ahead(Word::Inner) ? Join::Inner : ahead(Word::Left) ? Join::Left : Join::Right;
    ++at_;
    if (kind != Join::Inner) accept(Word::Outer);
    expect(Word::Join);
    return kind;
}

ast::SourcePtr Parser::source() {
    const ast::Position begin = position();
    if (!ahead(Word::Open)) {
        SqlName table = unreservedName("ein Tabellenname");
        SqlName given = alias();
        return makeSource(begin, ast::TableSource{table, given.empty() ? table : std::move(given)});
    }
    if (queryAhead()) {
        ast::SelectPtr select = bracketedQuery();
        SqlName given = alias();
        if (given.empty()) unexpected("AS und ein Name für die Unterabfrage");
        return makeSource(begin, ast::DerivedSource{std::move(select), std::move(given)});
    }
    const Nested nested(*this);
    expect(Word::Open);
    ast::SourcePtr result = joins();
    expect(Word::Close);
    return result;
}

} // namespace jet
