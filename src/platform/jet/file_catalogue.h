#pragma once

#include "platform/jet/home_files.h"
#include "platform/jet/links.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace jet {

/// The tables of an open file and of its links.
class FileCatalogue final : public Catalogue {
public:
    enum class Links { Follow, Ignore };
    FileCatalogue(sqlite3* storage, const std::string& mainPath, bool readOnly, Links links);

    [[nodiscard]] TablePtr find(const SqlName& table) const override;
    /// Only the file's own tables.
    [[nodiscard]] TablePtr findOwn(const SqlName& table) const;
    /// Null when there is none.
    [[nodiscard]] const Link* findLink(const SqlName& name) const;
    [[nodiscard]] bool has(const SqlName& name) const { return findOwn(name) != nullptr || findLink(name) != nullptr; }
    /// All tables and links, in order of their names.
    [[nodiscard]] std::vector<std::string> names() const;
    /// The table that a link text leads to. Raises the file's error, 3011 when the table is not there.
    [[nodiscard]] TablePtr resolve(const Link& link) const;

    /// Reads everything again, after this connection has changed the tables of its file.
    void reload();
    /// Reads everything again if another connection has changed a table or a link; says whether it did.
    bool reloadIfChanged();
    /// Reads the links again and attaches the files they lead to. Not inside a transaction.
    void followLinks();
    /// The same if another connection has set a link; says whether one did.
    bool followChangedLinks();

private:
    using LinksByName = std::map<std::string, Link>; ///< by folded name
    [[nodiscard]] LinksByName readOwnLinks() const;

    sqlite3* storage_;
    Links mode_;
    std::unique_ptr<HomeFiles> homes_; ///< a missing file is attached when it is first asked for
    LinksByName links_;
};

} // namespace jet
