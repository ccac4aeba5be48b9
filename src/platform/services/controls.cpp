#include "platform/services/controls.h"

#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>

namespace services {

namespace {

template <typename Entries>
auto* findEntry(Entries& entries, std::string_view name) {
    using Pointer = decltype(entries.data());
    for (auto& entry : entries) {
        if (entry.Name == name) return &entry;
        if (auto* below = findEntry(entry.Entries, name)) return below;
    }
    return Pointer{};
}

template <typename Range>
int indexIn(const Range& range, typename Range::const_iterator place) {
    return place == range.end() ? -1 : static_cast<int>(place - range.begin());
}

} // namespace

std::string KeyFilter::filtered(std::string_view text) const {
    const std::u32string only = basic::toCharacters(Only);
    const std::u32string never = basic::toCharacters(Never);
    std::string taken;
    for (const char32_t sign : basic::toCharacters(text)) {
        const bool wanted = only.empty() || only.find(sign) != std::u32string::npos;
        const bool leadingBlank = NoLeadingBlank && taken.empty() && sign == U' ';
        if (wanted && !leadingBlank && never.find(sign) == std::u32string::npos) basic::appendCharacter(taken, sign);
    }
    return taken;
}

void ListItems::Clear() {
    texts_.clear();
    data_.clear();
    ++version_;
}

void ListItems::AddItem(std::string_view text, std::int64_t itemData) {
    texts_.emplace_back(text);
    data_.push_back(itemData);
    ++version_;
}

std::string ListItems::List(int index) const {
    return index >= 0 && index < ListCount() ? texts_[static_cast<std::size_t>(index)] : std::string();
}

std::int64_t ListItems::ItemData(int index) const {
    return index >= 0 && index < ListCount() ? data_[static_cast<std::size_t>(index)] : 0;
}

int ListItems::indexOf(std::string_view text) const {
    return indexIn(texts_, std::ranges::find_if(texts_, [&](const auto& own) { return basic::equalText(own, text); }));
}

int ListItems::indexOfData(std::int64_t itemData) const { return indexIn(data_, std::ranges::find(data_, itemData)); }

void ComboBox::choose(int index) {
    ListIndex = index >= 0 && index < Items.ListCount() ? index : -1;
    Text = Items.List(ListIndex);
}

MenuEntry* Menu::find(std::string_view name) { return findEntry(Entries, name); }

const MenuEntry* Menu::find(std::string_view name) const { return findEntry(Entries, name); }

} // namespace services
