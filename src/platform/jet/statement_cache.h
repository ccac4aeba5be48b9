#pragma once

#include "platform/jet/compiler.h"
#include "platform/jet/storage.h"

#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace jet {

/// A write through the rows of a plan: which fields of which of its tables, and the statement for it.
struct PlannedWrite {
    enum class Kind { Insert, Update };
    Kind kind = Kind::Insert;
    std::size_t source = 0;
    std::vector<bool> assigned; ///< one for each column of the plan
    sqlite3_stmt* statement = nullptr;
    std::uint64_t generation = 0;     ///< of the connection's statements: good while it is the same
    std::vector<std::size_t> written; ///< columns that are assigned, in the order of the parameters
    std::vector<std::size_t> shown;   ///< columns that the row must still show, behind them
};

/// What recordsets of one plan share.
struct PlanUse {
    std::size_t lastRowCount = 0;
    std::vector<PlannedWrite> writes; ///< the one made last in front
};

/// A statement translated and prepared.
struct Plan {
    std::shared_ptr<const Compiled> compiled;
    StatementHandle statement;
    Identities identities = Identities::Omit;
    std::shared_ptr<PlanUse> use;
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
