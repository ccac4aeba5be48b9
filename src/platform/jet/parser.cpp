#include "platform/jet/parser.h"

#include "platform/jet/parser_impl.h"
#include "platform/jet/syntax_error.h"

#include <string>

namespace jet {

namespace {

std::vector<Word> wordsOf(const std::vector<Token>& tokens) {
    std::vector<Word> words;
    words.reserve(tokens.size());
    for (const Token& token : tokens)
        words.push_back(wordOf(token));
    return words;
}

std::vector<std::size_t> closingBrackets(const std::vector<Word>& words) {
    std::vector<std::size_t> closing(words.size(), words.size() - 1);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == Word::Open) open.push_back(i);
        if (words[i] != Word::Close || open.empty()) continue;
        closing[open.back()] = i;
        open.pop_back();
    }
    return closing;
}

} // namespace

Parsed parse(std::string_view sql) { return Parser(sql).parseAll(); }

Parser::Parser(std::string_view sql)
    : sql_(sql), tokens_(tokenize(sql)), words_(wordsOf(tokens_)), closing_(closingBrackets(words_)) {
    scanShape(sql, shape_);
}

Parsed Parser::parseAll() {
    ast::Statement result = statement();
    accept(Word::Semicolon);
    if (token().kind != TokenKind::End) unexpected("das Ende der Anweisung");
    return {std::move(result), std::move(structural_)};
}

ast::Statement Parser::statement() {
    switch (word()) {
    case Word::Select:
    case Word::Open:
        return query();
    case Word::Update:
        return update();
    case Word::Delete:
        return deleteRows();
    case Word::Insert:
        return insert();
    case Word::Create:
        return create();
    case Word::Drop:
        return drop();
    case Word::Alter:
        return alter();
    default:
        unexpected("SELECT, UPDATE, DELETE, INSERT, CREATE, DROP oder ALTER");
    }
}

ast::Update Parser::update() {
    expect(Word::Update);
    ast::Update result;
    result.from = sources();
    expect(Word::Set);
    do
        result.assignments.push_back(assignment());
    while (accept(Word::Comma));
    result.where = where();
    return result;
}

ast::Assignment Parser::assignment() {
    ast::Assignment result;
    result.position = position();
    result.target = fieldRef();
    expect(Word::Equal);
    result.value = expression();
    return result;
}

ast::Delete Parser::deleteRows() {
    expect(Word::Delete);
    accept(Word::DistinctRow);
    ast::Delete result;
    if (!ahead(Word::From)) {
        do
            result.items.push_back(deleteItem());
        while (accept(Word::Comma));
    }
    expect(Word::From);
    result.from = sources();
    result.where = where();
    return result;
}

ast::DeleteItem Parser::deleteItem() {
    if (accept(Word::Star)) return {};
    SqlName first = unreservedName("FROM");
    if (!accept(Word::Dot) && !accept(Word::Bang)) return {{}, std::move(first)};
    if (accept(Word::Star)) return {std::move(first), {}};
    return {std::move(first), name("ein Feldname")};
}

ast::Insert Parser::insert() {
    expect(Word::Insert);
    expect(Word::Into);
    ast::Insert result;
    result.position = position();
    result.table = unreservedName("ein Tabellenname");
    if (ahead(Word::Open) && !queryAhead()) result.fields = names();
    if (accept(Word::Values)) {
        expect(Word::Open);
        result.values = expressions();
        expect(Word::Close);
    } else if (ahead(Word::Select) || ahead(Word::Open)) {
        result.select = std::make_unique<ast::Select>(query());
    } else {
        unexpected("VALUES oder SELECT");
    }
    return result;
}

std::vector<SqlName> Parser::names() {
    std::vector<SqlName> result;
    expect(Word::Open);
    do
        result.push_back(name("ein Feldname"));
    while (accept(Word::Comma));
    expect(Word::Close);
    return result;
}

const Token& Parser::token(std::size_t ahead) const { return tokens_[std::min(at_ + ahead, tokens_.size() - 1)]; }

Word Parser::word(std::size_t ahead) const { return words_[std::min(at_ + ahead, words_.size() - 1)]; }

bool Parser::accept(Word expected) {
    if (word() != expected) return false;
    ++at_;
    return true;
}

void Parser::expect(Word expected) {
    if (accept(expected)) return;
    const std::string text(spelling(expected));
    unexpected(expected >= Word::Open ? "»" + text + "«" : text);
}

bool Parser::nameAhead() const { return token().kind == TokenKind::Name || token().kind == TokenKind::QuotedName; }

SqlName Parser::name(std::string_view what) {
    const Token& found = token();
    if (!nameAhead() || (found.kind == TokenKind::Name && found.text.ends_with('$'))) unexpected(what);
    ++at_;
    return SqlName(found.text);
}

SqlName Parser::unreservedName(std::string_view what) {
    if (isReserved(word())) unexpected(what);
    return name(what);
}

int Parser::structuralNumber(std::string_view what, int low, int high) {
    const Token& found = token();
    const bool whole = found.kind == TokenKind::Literal && found.literalKind == ast::Literal::Kind::Integer;
    const auto value = whole ? shape_.literals[found.literal].value.longOr() : low - 1;
    if (value < low || value > high) unexpected(what);
    structural_.push_back(found.literal);
    ++at_;
    return static_cast<int>(value);
}

void Parser::unexpected(std::string_view expected) const {
    const Token& found = token();
    std::string message = "Erwartet: ";
    message.append(expected).append(", gefunden: ");
    if (found.kind == TokenKind::End)
        message.append("das Ende");
    else
        message.append("»").append(shortened(found.text)).append("«");
    fail(found.offset, message);
}

void Parser::fail(std::size_t offset, std::string_view message) const {
    raiseAt(ErrorNumber::Syntax, sql_, offset, message);
}

Parser::Nested::Nested(Parser& parser) : parser_(parser) {
    if (parser.depth_ >= maxLevels)
        raiseAt(ErrorNumber::TooComplex, parser.sql_, parser.token().offset, "Zu tief geschachtelt");
    ++parser.depth_;
}

void Parser::grow(int levels, int nodes) {
    size_.levels += levels;
    size_.height += nodes;
    if (size_.levels > maxLevels) raiseAt(ErrorNumber::TooComplex, sql_, token().offset, "Zu tief geschachtelt");
    if (size_.height > maxHeight)
        raiseAt(ErrorNumber::TooComplex, sql_, token().offset, "Zu viele Verknüpfungen hintereinander");
}

} // namespace jet
