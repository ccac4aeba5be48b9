#include "platform/jet/keywords.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

enum class Use { Free, Follows, Reserved };

struct Entry {
    std::string_view text;
    Word word;
    Use use = Use::Free;
};

constexpr auto sorted(auto entries) {
    std::ranges::sort(entries, {}, &Entry::text);
    return entries;
}

constexpr auto entries = sorted(std::to_array<Entry>({
    {"ADD", Word::Add},
    {"ALL", Word::All},
    {"ALTER", Word::Alter},
    {"AND", Word::And, Use::Reserved},
    {"AS", Word::As, Use::Reserved},
    {"ASC", Word::Asc, Use::Follows},
    {"BETWEEN", Word::Between, Use::Reserved},
    {"BY", Word::By, Use::Follows},
    {"COLUMN", Word::Column},
    {"CONSTRAINT", Word::Constraint},
    {"CREATE", Word::Create},
    {"DATE", Word::Date},
    {"DELETE", Word::Delete},
    {"DESC", Word::Desc, Use::Follows},
    {"DISTINCT", Word::Distinct, Use::Reserved},
    {"DISTINCTROW", Word::DistinctRow, Use::Reserved},
    {"DROP", Word::Drop},
    {"EQV", Word::Eqv, Use::Reserved},
    {"EXISTS", Word::Exists, Use::Reserved},
    {"FALSE", Word::False, Use::Reserved},
    {"FROM", Word::From, Use::Reserved},
    {"GROUP", Word::Group, Use::Reserved},
    {"HAVING", Word::Having, Use::Reserved},
    {"IMP", Word::Imp, Use::Reserved},
    {"IN", Word::In, Use::Reserved},
    {"INDEX", Word::Index},
    {"INNER", Word::Inner, Use::Reserved},
    {"INSERT", Word::Insert},
    {"INTO", Word::Into, Use::Reserved},
    {"IS", Word::Is, Use::Reserved},
    {"JOIN", Word::Join, Use::Reserved},
    {"KEY", Word::Key},
    {"LEFT", Word::Left, Use::Follows},
    {"LIKE", Word::Like, Use::Reserved},
    {"MOD", Word::Mod, Use::Reserved},
    {"NOT", Word::Not, Use::Reserved},
    {"NOW", Word::Now},
    {"NULL", Word::Null, Use::Reserved},
    {"ON", Word::On, Use::Reserved},
    {"OR", Word::Or, Use::Reserved},
    {"ORDER", Word::Order, Use::Reserved},
    {"OUTER", Word::Outer, Use::Follows},
    {"PERCENT", Word::Percent},
    {"PRIMARY", Word::Primary},
    {"RIGHT", Word::Right, Use::Follows},
    {"SELECT", Word::Select, Use::Reserved},
    {"SET", Word::Set, Use::Reserved},
    {"TABLE", Word::Table},
    {"TIME", Word::Time},
    {"TOP", Word::Top},
    {"TRUE", Word::True, Use::Reserved},
    {"UNION", Word::Union, Use::Reserved},
    {"UNIQUE", Word::Unique},
    {"UPDATE", Word::Update},
    {"VALUES", Word::Values, Use::Reserved},
    {"WHERE", Word::Where, Use::Reserved},
    {"WITH", Word::With},
    {"XOR", Word::Xor, Use::Reserved},
    {"(", Word::Open},
    {")", Word::Close},
    {",", Word::Comma},
    {".", Word::Dot},
    {"!", Word::Bang},
    {";", Word::Semicolon},
    {"+", Word::Plus},
    {"-", Word::Minus},
    {"*", Word::Star},
    {"/", Word::Slash},
    {"\\", Word::Backslash},
    {"^", Word::Power},
    {"&", Word::Ampersand},
    {"=", Word::Equal},
    {"<>", Word::NotEqual},
    {"<", Word::Less},
    {"<=", Word::LessEqual},
    {">", Word::Greater},
    {">=", Word::GreaterEqual},
}));

constexpr std::size_t longest = std::ranges::max(entries, {}, [](const Entry& e) { return e.text.size(); }).text.size();

constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

const Entry* entryOf(Word word) {
    const auto found = std::ranges::find(entries, word, &Entry::word);
    return found == entries.end() ? nullptr : &*found;
}

} // namespace

Word wordOf(const Token& token) {
    const bool plain = token.kind == TokenKind::Name || token.kind == TokenKind::Symbol;
    if (token.kind == TokenKind::Semicolon) return Word::Semicolon;
    if (!plain || token.text.size() > longest) return Word::None;
    std::array<char, longest> buffer{};
    std::ranges::transform(token.text, buffer.begin(), upper);
    const std::string_view text(buffer.data(), token.text.size());
    const auto found = std::ranges::lower_bound(entries, text, {}, &Entry::text);
    return found != entries.end() && found->text == text ? found->word : Word::None;
}

std::string_view spelling(Word word) {
    const Entry* entry = entryOf(word);
    return entry != nullptr ? entry->text : std::string_view();
}

bool isReserved(Word word) {
    const Entry* entry = entryOf(word);
    return entry != nullptr && entry->use == Use::Reserved;
}

bool endsAlias(Word word) {
    const Entry* entry = entryOf(word);
    return entry != nullptr && entry->use != Use::Free;
}

} // namespace jet
