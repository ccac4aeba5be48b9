#pragma once

#include "platform/jet/keywords.h"
#include "platform/jet/parser.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace jet {

/// Recursive descent over the tokens of one statement; each function reads one rule of the grammar and raises Syntax
/// where the text departs from it. The rules in brackets are optional, those in braces may repeat.
///
/// Two sizes are bounded, so that neither this parser nor anything that walks the tree later runs out of stack: how
/// deep rules nest, and how high the tree grows (a chain of operators nests nothing but grows to the left). The tree's
/// own nesting is counted as the canonical spelling would nest it, so that whatever parses can be printed and parsed
/// again.
class Parser {
public:
    explicit Parser(std::string_view sql);

    /// statement [;]
    Parsed parseAll();

private:
    static constexpr int maxLevels = 200;
    static constexpr int maxHeight = 1000;

    // statements (parser.cpp)
    ast::Statement statement();
    ast::Update update();         ///< UPDATE source SET assignment {, assignment} [WHERE expression]
    ast::Assignment assignment(); ///< field = expression
    ast::Delete deleteRows();     ///< DELETE [item {, item}] FROM source [WHERE expression]
    ast::DeleteItem deleteItem(); ///< * | table.* | [table.]field
    ast::Insert insert();         ///< INSERT INTO table [(names)] (VALUES (expressions) | query)
    std::vector<SqlName> names(); ///< (name {, name})

    // definitions (parser_ddl.cpp)
    ast::Statement create();                       ///< CREATE (TABLE ... | [UNIQUE] INDEX ...)
    ast::CreateTable createTable();                ///< name (definition {, definition})
    void tableConstraint(ast::CreateTable& table); ///< [CONSTRAINT name] PRIMARY KEY (names)
    bool constraintAhead() const;
    ast::ColumnDef columnDef(); ///< name type [(size)] {option}
    void columnType(ast::ColumnDef& column);
    void textSize(ast::ColumnDef& column);
    bool columnOption(ast::ColumnDef& column); ///< NOT NULL | NULL | [CONSTRAINT name] (PRIMARY KEY | UNIQUE)
    ast::CreateIndex createIndex();            ///< INDEX name ON table (name [ASC | DESC] {, ...}) [WITH PRIMARY]
    ast::Statement drop();                     ///< DROP (TABLE name | INDEX name ON table)
    ast::AddColumn alter();                    ///< ALTER TABLE name ADD [COLUMN] columnDef

    // selects (parser_select.cpp)
    ast::Select query();                 ///< arm {UNION [ALL] arm} [ORDER BY ...]
    ast::Select arm();                   ///< core | (query [;])
    void appendArm(ast::Select& select); ///< UNION [ALL] arm
    ast::SelectPtr bracketedQuery();     ///< (query [;])
    bool queryAhead() const;             ///< does an open bracket here hold a query rather than an expression?
    ast::SelectCore core();
    ast::SelectCore::Quantifier quantifier();        ///< [ALL | DISTINCT | DISTINCTROW]
    std::optional<ast::Top> top();                   ///< [TOP n [PERCENT]]
    ast::SelectItem item();                          ///< * | table.* | expression [[AS] alias]
    SqlName alias();                                 ///< [[AS] name]
    ast::ExprPtr where();                            ///< [WHERE expression]
    std::vector<ast::ExprPtr> groupBy();             ///< [GROUP BY expressions]
    std::vector<ast::OrderItem> orderBy();           ///< ORDER BY item {, item}
    ast::OrderItem orderItem();                      ///< (n | expression) [ASC | DESC]
    ast::SourcePtr sources();                        ///< joins {, joins}
    ast::SourcePtr joins();                          ///< source {join source ON expression}
    std::optional<ast::JoinSource::Kind> joinKind(); ///< [INNER | LEFT [OUTER] | RIGHT [OUTER]] JOIN
    ast::SourcePtr source();                         ///< table [[AS] alias] | (joins) | (query) [AS] alias

    // expressions (parser_expr.cpp)
    ast::ExprPtr expression();
    std::vector<ast::ExprPtr> expressions(); ///< expression {, expression}
    ast::ExprPtr chain(int minBinding);      ///< prefixed {operator operand}, operators that bind no looser
    int bindingAhead() const;                ///< 0 where no operator follows
    ast::ExprPtr binary(ast::ExprPtr left, int binding);
    ast::ExprPtr comparison(ast::ExprPtr left);
    ast::Expr::Node predicate(ast::ExprPtr operand); ///< [NOT] (LIKE x | BETWEEN x AND y | IN (...)) | IS [NOT] NULL
    ast::Expr::Node between(ast::ExprPtr operand, bool negated);
    ast::Expr::Node in(ast::ExprPtr operand, bool negated);
    ast::ExprPtr prefixed(); ///< (NOT | - | +) chain | primary
    ast::ExprPtr primary();
    ast::ExprPtr bracketed();                         ///< (expression) | (query)
    ast::Expr::Node named();                          ///< what begins with a word
    ast::Expr::Node call();                           ///< name ([* | expressions])
    std::optional<ast::Expr::Node> constantOrClock(); ///< NULL | TRUE | FALSE | (DATE | NOW | TIME) [()]
    ast::FieldRef fieldRef();                         ///< [table (. | !)] field
    ast::ExprPtr make(std::size_t offset, ast::Expr::Node node) const;

    // tokens (parser.cpp)
    const Token& token(std::size_t ahead = 0) const;
    Word word(std::size_t ahead = 0) const;
    bool ahead(Word expected) const { return word() == expected; }
    bool accept(Word expected);
    void expect(Word expected);
    bool nameAhead() const;
    ast::Position position() const { return {token().offset}; }
    SqlName name(std::string_view what);           ///< any name, keywords too
    SqlName unreservedName(std::string_view what); ///< for places where a keyword would be a slip
    /// The value of a whole number literal that the statement's structure depends on, within the bounds.
    int structuralNumber(std::string_view what, int low, int high);
    [[noreturn]] void unexpected(std::string_view expected) const;
    [[noreturn]] void fail(std::size_t offset, std::string_view message) const;

    /// Levels of nesting, and nodes on the longest way down.
    struct Size {
        int levels = 0;
        int height = 0;
    };
    /// Measures a part for itself; afterwards the whole is as large as its largest part.
    class Measure {
    public:
        explicit Measure(Size& size) : size_(size), outer_(std::exchange(size, Size())) {}
        Measure(const Measure&) = delete;
        Measure& operator=(const Measure&) = delete;
        ~Measure() { size_ = {std::max(size_.levels, outer_.levels), std::max(size_.height, outer_.height)}; }

    private:
        Size& size_;
        Size outer_;
    };
    /// One rule deeper while it lives.
    class Nested {
    public:
        explicit Nested(Parser& parser);
        Nested(const Nested&) = delete;
        Nested& operator=(const Nested&) = delete;
        ~Nested() { --parser_.depth_; }

    private:
        Parser& parser_;
    };
    void grow(int levels, int nodes);

    std::string_view sql_;
    std::vector<Token> tokens_;
    std::vector<Word> words_;
    std::vector<std::size_t> closing_; ///< of a token that is an open bracket: its closing one, else the last token
    Shape shape_;
    std::size_t at_ = 0;
    int depth_ = 0;
    Size size_;
    std::vector<std::size_t> structural_;
};

} // namespace jet
