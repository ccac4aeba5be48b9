#include "platform/jet/binder_impl.h"

#include <algorithm>

namespace jet {

TablePtr Binder::table(const SqlName& name) const {
    TablePtr found = catalogue_.find(name);
    if (!found) raise(ErrorNumber::UnknownTable, "'" + name.text() + "'");
    return found;
}

void Binder::update(ast::Update& update) {
    BoundCore& bound = binding_.cores[&update];
    source(*update.from, bound);
    Scope scope{&bound, nullptr, false, false, false, {}};
    joinConditions(*update.from, scope);
    for (ast::Assignment& assignment : update.assignments) {
        ast::FieldRef& target = assignment.target;
        if (!resolveHere(target, bound, 0)) raise(ErrorNumber::TooFewParameters, "'" + target.field.text() + "'");
        if (binding_.targetSource >= 0 && binding_.targetSource != target.source)
            raise(ErrorNumber::CannotUpdateJoin, "'" + target.field.text() + "'");
        binding_.targetSource = target.source;
        binding_.targetColumns.push_back(target.column);
        (void)expr(*assignment.value, scope);
    }
    binding_.target = bound.sources[static_cast<std::size_t>(binding_.targetSource)].table;
    if (!binding_.target) raise(ErrorNumber::CannotUpdateJoin);
    if (update.where) condition(*update.where, scope);
}

/// The table with .* loses rows; without one, the table of the first field; without any, the only one of FROM.
void Binder::remove(ast::Delete& remove) {
    BoundCore& bound = binding_.cores[&remove];
    source(*remove.from, bound);
    Scope scope{&bound, nullptr, false, false, false, {}};
    joinConditions(*remove.from, scope);

    const auto sourceOf = [&](const ast::DeleteItem& item) {
        if (!item.field.empty()) {
            ast::FieldRef field{item.table, item.field};
            if (!resolveHere(field, bound, 0)) raise(ErrorNumber::TooFewParameters, "'" + item.field.text() + "'");
            return field.source;
        }
        for (std::size_t s = 0; s < bound.sources.size(); ++s)
            if (bound.sources[s].alias == item.table) return static_cast<int>(s);
        raise(ErrorNumber::UnknownTable, "'" + item.table.text() + "'");
    };
    int first = -1;
    int starred = -1;
    for (const ast::DeleteItem& item : remove.items) {
        if (item.table.empty() && item.field.empty()) continue;
        const int index = sourceOf(item);
        if (first < 0) first = index;
        if (!item.field.empty()) continue;
        if (starred >= 0 && starred != index) raise(ErrorNumber::CannotDelete);
        starred = index;
    }
    if (starred < 0 && first < 0 && bound.sources.size() > 1) raise(ErrorNumber::CannotDelete);
    binding_.targetSource = starred >= 0 ? starred : std::max(first, 0);
    binding_.target = bound.sources[static_cast<std::size_t>(binding_.targetSource)].table;
    if (!binding_.target) raise(ErrorNumber::CannotDelete);
    if (remove.where) condition(*remove.where, scope);
}

void Binder::insert(ast::Insert& insert) {
    binding_.target = table(insert.table);
    const Table& target = *binding_.target;
    if (insert.fields.empty())
        for (std::size_t c = 0; c < target.columns.size(); ++c)
            binding_.targetColumns.push_back(static_cast<int>(c));
    for (const SqlName& field : insert.fields) {
        const std::optional<int> column = target.columnIndex(field);
        if (!column) raise(ErrorNumber::TooFewParameters, "'" + field.text() + "'");
        if (std::find(binding_.targetColumns.begin(), binding_.targetColumns.end(), *column) !=
            binding_.targetColumns.end())
            raise(ErrorNumber::FieldListMismatch, "'" + field.text() + "'");
        binding_.targetColumns.push_back(*column);
    }
    BoundCore& bound = binding_.cores[&insert];
    std::size_t count = insert.values.size();
    if (insert.select) count = select(*insert.select, nullptr).size();
    Scope scope{&bound, nullptr, false, false, false, {}};
    for (ast::ExprPtr& value : insert.values)
        (void)expr(*value, scope);
    if (count != binding_.targetColumns.size()) raise(ErrorNumber::FieldListMismatch);
}

} // namespace jet
