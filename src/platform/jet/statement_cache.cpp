#include "platform/jet/statement_cache.h"

#include <algorithm>

namespace jet {

namespace {

bool serves(const Plan& plan, const Shape& shape, Identities identities) {
    if (plan.identities != identities) return false;
    const auto& positions = plan.compiled->structuralLiterals;
    for (std::size_t i = 0; i < positions.size(); ++i)
        if (plan.structural[i].value != shape.literals[positions[i]].value) return false;
    return true;
}

} // namespace

Plan* StatementCache::find(const Shape& shape, Identities identities) {
    const auto found = byShape_.find(std::string_view(shape.key));
    if (found == byShape_.end()) return nullptr;
    for (const Entries::iterator entry : found->second) {
        if (!serves(entry->plan, shape, identities)) continue;
        entries_.splice(entries_.begin(), entries_, entry);
        return &entry->plan;
    }
    return nullptr;
}

Plan& StatementCache::insert(const Shape& shape, Plan plan) {
    for (const std::size_t position : plan.compiled->structuralLiterals)
        plan.structural.push_back(shape.literals[position]);
    if (entries_.size() >= capacity) forgetOldest();
    entries_.push_front({shape.key, std::move(plan)});
    byShape_[shape.key].push_back(entries_.begin());
    return entries_.front().plan;
}

void StatementCache::clear() {
    byShape_.clear();
    entries_.clear();
}

void StatementCache::forgetOldest() {
    const auto oldest = std::prev(entries_.end());
    const auto found = byShape_.find(oldest->key);
    std::erase(found->second, oldest);
    if (found->second.empty()) byShape_.erase(found);
    entries_.erase(oldest);
}

} // namespace jet
