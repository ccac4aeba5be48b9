#include "platform/jet/lexer.h"

#include "platform/basic/text.h"
#include "platform/jet/literals.h"
#include "platform/jet/syntax_error.h"

#include <algorithm>
#include <string>

namespace jet {

namespace {

constexpr std::size_t longestName = 64;

/// The mark stands for a literal in a shape's key; control characters cannot occur in a statement otherwise.
char markOf(ast::Literal::Kind kind) { return static_cast<char>(static_cast<int>(kind) + 1); }

/// Splits the text between literals into names and symbols.
class Splitter {
public:
    Splitter(std::string_view sql, std::vector<Token>& tokens) : sql_(sql), tokens_(tokens) {}

    void split(std::size_t from, std::size_t to) {
        for (std::size_t at = from; at < to;)
            at = isBlank(sql_[at]) ? at + 1 : token(at, to);
    }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

    std::size_t token(std::size_t at, std::size_t to) {
        const char c = sql_[at];
        if (c == '[') return quotedName(at, ']');
        if (c == '`') return quotedName(at, '`');
        if (isNameByte(c)) return name(at, to);
        return symbol(at, to);
    }

    std::size_t quotedName(std::size_t at, char quote) {
        const std::size_t end = sql_.find(quote, at + 1);
        const std::string_view text = sql_.substr(at + 1, end - at - 1);
        if (text.find_first_not_of(' ') == std::string_view::npos) fail(at, "Der Name ist leer");
        const auto control = std::ranges::find_if(text, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
        if (control != text.end()) fail(at, "Der Name enthält Steuerzeichen");
        checkLength(text, at);
        add(TokenKind::QuotedName, text, at);
        return end + 1;
    }

    std::size_t name(std::size_t at, std::size_t to) {
        std::size_t end = at + 1;
        while (end < to && isNameByte(sql_[end]))
            ++end;
        checkLength(sql_.substr(at, end - at), at);
        if (end < to && sql_[end] == '$') ++end; // Left$ and its like
        add(TokenKind::Name, sql_.substr(at, end - at), at);
        return end;
    }

    std::size_t symbol(std::size_t at, std::size_t to) {
        const std::string_view two = at + 1 < to ? sql_.substr(at, 2) : std::string_view();
        const bool isTwo = two == "<=" || two == ">=" || two == "<>";
        const std::string_view text = sql_.substr(at, isTwo ? 2 : 1);
        if (text == ";")
            add(TokenKind::Semicolon, text, at);
        else if (isTwo || text.find_first_of("(),.!+-*/\\^&=<>") == 0)
            add(TokenKind::Symbol, text, at);
        else
            fail(at, "Das Zeichen »" + std::string(text) + "« hat hier keine Bedeutung");
        return at + text.size();
    }

    void checkLength(std::string_view text, std::size_t at) {
        if (text.size() > longestName && characterAt(text, text.size()) > longestName + 1)
            fail(at, "Ein Name hat höchstens 64 Zeichen");
    }

    void add(TokenKind kind, std::string_view text, std::size_t at) {
        tokens_.push_back({kind, text, at, 0, ast::Literal::Kind::Integer});
    }

    [[noreturn]] void fail(std::size_t at, std::string_view message) {
        raiseAt(ErrorNumber::Syntax, sql_, at, message);
    }

    std::string_view sql_;
    std::vector<Token>& tokens_;
};

} // namespace

void scanShape(std::string_view sql, Shape& shape) {
    shape.key.clear();
    shape.literals.clear();
    for (std::size_t at = 0; at < sql.size();) {
        const std::size_t found = findLiteral(sql, at);
        shape.key.append(sql, at, found - at);
        if (found == sql.size()) break;
        LiteralValue literal;
        at = readLiteral(sql, found, literal);
        shape.key += markOf(literal.kind);
        shape.literals.push_back(std::move(literal));
    }
}

std::vector<Token> tokenize(std::string_view sql) {
    if (!basic::isValidText(sql)) raise(ErrorNumber::Syntax, "Die Anweisung ist kein gültiges UTF-8.");
    std::vector<Token> tokens;
    Splitter splitter(sql, tokens);
    std::size_t literals = 0;
    for (std::size_t at = 0; at < sql.size();) {
        const std::size_t found = findLiteral(sql, at);
        splitter.split(at, found);
        if (found == sql.size()) break;
        LiteralValue literal;
        at = readLiteral(sql, found, literal);
        tokens.push_back({TokenKind::Literal, sql.substr(found, at - found), found, literals++, literal.kind});
    }
    tokens.push_back({TokenKind::End, {}, sql.size(), 0, ast::Literal::Kind::Integer});
    return tokens;
}

} // namespace jet
