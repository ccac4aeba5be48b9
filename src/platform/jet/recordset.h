#pragma once

#include "platform/jet/error.h"
#include "platform/jet/field_type.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace jet {

class Connection;

enum class RecordsetType { Dynaset = 2, Snapshot = 4 };

/// A row's place in its recordset; stays good while the recordset is open.
enum class Bookmark : std::size_t {};

class Recordset;

/// One field of the current record (or of the record being added or edited). Lives no longer than its recordset.
class RecordField {
public:
    /// Raises 3021 without a current record.
    [[nodiscard]] const basic::Value& Value() const;
    /// Only between AddNew or Edit and Update (else 3020). Converts at once to the field's type: raises as storedValue
    /// does.
    RecordField& operator=(const basic::Value& value);
    [[nodiscard]] std::string Name() const;

    RecordField(const RecordField&) = default;
    RecordField& operator=(const RecordField&) = delete;

private:
    friend class Recordset;
    RecordField(Recordset& recordset, std::size_t column) : recordset_(&recordset), column_(column) {}
    Recordset* recordset_;
    std::size_t column_;
};

/// The rows of a table or statement. They are read in one pass when it opens; no lock is held afterwards and
/// RecordCount is known at once. Opens on the first row.
class Recordset {
public:
    /// Reads the rows of a SELECT.
    Recordset(std::shared_ptr<Connection> connection, std::string select, RecordsetType type);
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    [[nodiscard]] bool Eof() const;
    [[nodiscard]] bool Bof() const;
    /// On no rows: MoveFirst and MoveLast raise 3021; MoveNext at Eof and MovePrevious at Bof too.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    [[nodiscard]] int RecordCount() const;

    /// By name (case ignored; "table.field" where two tables share the name) or by position from 0. 3265 for unknown
    /// ones.
    [[nodiscard]] RecordField Fields(std::string_view name);
    [[nodiscard]] RecordField Fields(std::size_t position);
    [[nodiscard]] std::size_t FieldCount() const;
    [[nodiscard]] std::string FieldName(std::size_t position) const;
    [[nodiscard]] ExprType FieldTypeAt(std::size_t position) const;
    /// For loops over many rows: the position once, then the values by position.
    [[nodiscard]] std::size_t Ordinal(std::string_view name) const;
    [[nodiscard]] const basic::Value& At(std::size_t position) const;

    /// Starts a new record: fields not assigned stay Null (False in a YESNO, the next number in a counter).
    void AddNew();
    /// Starts a change of the current record (3021 without one).
    void Edit();
    /// Writes what AddNew or Edit collected (3020 without one). After an Edit: 3197 when another process changed the
    /// row since it was read, 3167 when it is gone; in both cases nothing is written. 3022 for a key given twice. A new
    /// record joins the rows at their end; the current record stays where it was: go there by Bookmark = LastModified.
    void Update();
    void CancelUpdate();
    /// Deletes the current record from the first table of the statement. The deleted row stays current until the next
    /// move and reading it raises 3167.
    void Delete();

    [[nodiscard]] Bookmark bookmark() const;
    void setBookmark(Bookmark bookmark);
    [[nodiscard]] Bookmark LastModified() const;
    /// Reads the rows again and stands on the first.
    void Requery();
    void Close();

    /// What a recordset keeps; private to the engine.
    struct State;

private:
    friend class RecordField;
    std::unique_ptr<State> state_;
};

} // namespace jet
