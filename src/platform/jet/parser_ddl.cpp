#include "platform/jet/parser_impl.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace jet {

namespace {

constexpr int longestText = 255;

struct TypeName {
    std::string_view name;
    FieldType type;
    bool counter = false;
};

constexpr auto typeNames = std::to_array<TypeName>({
    {"COUNTER", FieldType::Long, true}, {"AUTOINCREMENT", FieldType::Long, true},
    {"SHORT", FieldType::Integer},      {"SMALLINT", FieldType::Integer},
    {"BYTE", FieldType::Integer},       {"INTEGER", FieldType::Long},
    {"INT", FieldType::Long},           {"LONG", FieldType::Long},
    {"DOUBLE", FieldType::Double},      {"FLOAT", FieldType::Double},
    {"NUMBER", FieldType::Double},      {"SINGLE", FieldType::Double},
    {"REAL", FieldType::Double},        {"CURRENCY", FieldType::Double},
    {"MONEY", FieldType::Double},       {"DATETIME", FieldType::Date},
    {"DATE", FieldType::Date},          {"TIME", FieldType::Date},
    {"YESNO", FieldType::Boolean},      {"BIT", FieldType::Boolean},
    {"BOOLEAN", FieldType::Boolean},    {"LOGICAL", FieldType::Boolean},
    {"TEXT", FieldType::Text},          {"CHAR", FieldType::Text},
    {"VARCHAR", FieldType::Text},       {"STRING", FieldType::Text},
    {"MEMO", FieldType::Memo},          {"LONGTEXT", FieldType::Memo},
    {"NOTE", FieldType::Memo},
});

char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

const TypeName* findType(std::string_view text) {
    const auto same = [text](const TypeName& type) { return std::ranges::equal(type.name, text, {}, {}, upper); };
    const auto found = std::ranges::find_if(typeNames, same);
    return found == typeNames.end() ? nullptr : &*found;
}

} // namespace

ast::Statement Parser::create() {
    expect(Word::Create);
    if (accept(Word::Table)) return createTable();
    const bool unique = accept(Word::Unique);
    if (!ahead(Word::Index)) unexpected(unique ? "INDEX" : "TABLE, INDEX oder UNIQUE INDEX");
    ast::CreateIndex index = createIndex();
    index.unique = unique;
    return index;
}

ast::CreateTable Parser::createTable() {
    ast::CreateTable result;
    result.table = unreservedName("ein Tabellenname");
    expect(Word::Open);
    do {
        if (constraintAhead())
            tableConstraint(result);
        else
            result.columns.push_back(columnDef());
    } while (accept(Word::Comma));
    expect(Word::Close);
    return result;
}

bool Parser::constraintAhead() const {
    const bool named = ahead(Word::Constraint) && word(2) == Word::Primary;
    return named || (ahead(Word::Primary) && word(1) == Word::Key);
}

void Parser::tableConstraint(ast::CreateTable& table) {
    const std::size_t begin = token().offset;
    if (accept(Word::Constraint)) std::ignore = name("ein Name für den Schlüssel");
    expect(Word::Primary);
    expect(Word::Key);
    if (!table.primaryKey.empty()) fail(begin, "Eine Tabelle hat nur einen Primärschlüssel");
    table.primaryKey = names();
}

ast::ColumnDef Parser::columnDef() {
    ast::ColumnDef result;
    result.position = position();
    result.name = name("ein Feldname");
    columnType(result);
    while (columnOption(result)) {
    }
    return result;
}

void Parser::columnType(ast::ColumnDef& column) {
    const TypeName* type = token().kind == TokenKind::Name ? findType(token().text) : nullptr;
    if (type == nullptr) unexpected("ein Datentyp (COUNTER, SHORT, LONG, DOUBLE, DATETIME, YESNO, TEXT oder MEMO)");
    ++at_;
    column.type = type->type;
    column.counter = type->counter;
    if (column.type == FieldType::Text) textSize(column);
}

void Parser::textSize(ast::ColumnDef& column) {
    column.size = longestText;
    if (!accept(Word::Open)) return;
    column.size = structuralNumber("eine Länge von 1 bis 255", 1, longestText);
    expect(Word::Close);
}

bool Parser::columnOption(ast::ColumnDef& column) {
    if (accept(Word::Null)) return true;
    if (accept(Word::Not)) {
        expect(Word::Null);
        column.notNull = true;
        return true;
    }
    const bool named = accept(Word::Constraint);
    if (named) std::ignore = name("ein Name für den Schlüssel");
    if (accept(Word::Unique)) return column.unique = true;
    if (!named && !ahead(Word::Primary)) return false;
    expect(Word::Primary);
    expect(Word::Key);
    return column.primaryKey = true;
}

ast::CreateIndex Parser::createIndex() {
    expect(Word::Index);
    ast::CreateIndex result;
    result.index = name("ein Name für den Index");
    expect(Word::On);
    result.table = unreservedName("ein Tabellenname");
    expect(Word::Open);
    do {
        result.columns.push_back(name("ein Feldname"));
        if (!accept(Word::Desc)) accept(Word::Asc);
    } while (accept(Word::Comma));
    expect(Word::Close);
    if (accept(Word::With)) {
        expect(Word::Primary);
        result.primary = true;
    }
    return result;
}

ast::Statement Parser::drop() {
    expect(Word::Drop);
    if (accept(Word::Table)) return ast::DropTable{unreservedName("ein Tabellenname")};
    if (!accept(Word::Index)) unexpected("TABLE oder INDEX");
    SqlName index = name("ein Name für den Index");
    expect(Word::On);
    return ast::DropIndex{std::move(index), unreservedName("ein Tabellenname")};
}

ast::AddColumn Parser::alter() {
    expect(Word::Alter);
    expect(Word::Table);
    SqlName table = unreservedName("ein Tabellenname");
    expect(Word::Add);
    // A field may be called Column: then its type follows at once.
    const bool isKeyword =
        ahead(Word::Column) && (findType(token(1).text) == nullptr || findType(token(2).text) != nullptr);
    if (isKeyword) accept(Word::Column);
    return {std::move(table), columnDef()};
}

} // namespace jet
