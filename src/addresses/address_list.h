#pragma once

#include "platform/jet/database.h"
#include "platform/services/controls.h"

#include <cstdint>
#include <string>
#include <vector>

namespace addresses {

/// The list of all addresses for the boxes that complete a guest: "LastName, FirstName, PostalCode City", in the order
/// of the last names; what an address does not have is left out of its line. Read at the first need and again when
/// somebody says that addresses have changed. While the table cannot be read the list is empty.
class Adressliste final : public services::MatchSource {
public:
    /// The database must outlive the list.
    explicit Adressliste(jet::Database& db) : db_(&db) {}

    /// The next need reads anew.
    void veraltet() { gelesen_ = false; }
    /// Another station may have stored addresses: the next need reads anew where the table is not as it was.
    void nachsehen() { nachsehen_ = true; }
    /// Does at once what the next need would have to, so that the first key that is typed finds the list ready.
    void prepare() const { lesen(); }
    /// Begins of last names, case ignored; a text with a comma matches the whole line. An empty text begins them all.
    [[nodiscard]] std::vector<services::Match> matches(std::string_view typed, std::size_t limit) const override;
    /// The line of an address as the table has it now; empty when it has no name, or there is no such row. Raises the
    /// engine's errors.
    [[nodiscard]] std::string Zeile(std::int64_t id) const;
    [[nodiscard]] std::size_t Anzahl() const;

private:
    struct Eintrag {
        std::int64_t ID;
        std::string Zeile;
        std::string Suchtext; ///< the line folded, one spelling for each letter
        std::size_t Rang;     ///< place in the order of the last names
    };
    void lesen() const;
    void einlesen() const;
    [[nodiscard]] std::string tabellenstand() const;

    jet::Database* db_;
    mutable std::vector<Eintrag> einträge_; ///< by Suchtext, so that one beginning is one stretch
    mutable std::string stand_;             ///< of the table when it was read
    mutable bool gelesen_ = false;
    mutable bool nachsehen_ = false;
};

} // namespace addresses
