#pragma once

#include "platform/jet/compiler.h"
#include "platform/jet/storage.h"

#include <list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace jet {

/// A statement translated and prepared.
struct Plan {
    std::shared_ptr<const Compiled> compiled;
    StatementHandle statement;
    Identities identities = Identities::Omit;
    std::vector<LiteralValue> structural; ///< values of the literals that are built in
};

/// Plans by the shape of their statements; the one not used for the longest time goes first.
class StatementCache {
public:
    /// Null when there is none for this shape and these built-in literals. Good until the next insert or clear.
    [[nodiscard]] Plan* find(const Shape& shape, Identities identities);
    Plan& insert(const Shape& shape, Plan plan);
    void clear();

private:
    static constexpr std::size_t capacity = 256;

    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>()(text); }
    };
    struct Entry {
        std::string key;
        Plan plan;
    };
    using Entries = std::list<Entry>;

    void forgetOldest();

    Entries entries_; ///< last used first
    std::unordered_map<std::string, std::vector<Entries::iterator>, TextHash, std::equal_to<>> byShape_;
};

} // namespace jet
