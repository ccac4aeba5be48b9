#pragma once

#include "platform/jet/workspace.h"

#include <string>

namespace store {

/// One change of a data file's tables, as upgrades of older houses need it. Doing a change twice does nothing the
/// second time: what is there, in whatever letter case, stays as it is.
struct clsTabFelder {
    std::string DatenbankPfad;
    std::string Passwort;
    std::string TabellenName;
    std::string FeldName;
    jet::FieldType FeldTyp = jet::FieldType::Text;
    int FeldGroesse = 0;      ///< characters, for Text only
    bool LeerErlaubt = false; ///< zero length, for Text only

    /// Appends the field to the table. False on any error.
    [[nodiscard]] bool Anfügen(const jet::Workspace& workspace) const;
    /// Creates the table with one field: for Integer and Long a number column named "ID" and the table's name without
    /// its first two letters, else the field described. No key is declared: rows may share the number, as those of a
    /// block do. False on any error.
    [[nodiscard]] bool NeueTabelle(const jet::Workspace& workspace) const;
};

} // namespace store
