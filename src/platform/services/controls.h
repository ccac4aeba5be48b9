#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace services {

// States of a form's controls without a toolkit. A form's model holds them under their given names; its view shows them
// and calls the model's event procedures. Assigning a state fires nothing: only the user's action calls an event
// procedure.

/// A BGR Long, red in the lowest byte.
using Colour = int;

struct Control {
    bool Enabled = true;
    bool Visible = true;
    std::string ToolTipText;
    /// The view gives the control the focus at its next refresh and takes the wish back.
    bool FocusRequested = false;

    void SetFocus() { FocusRequested = true; }
};

/// '&' in a caption stands in front of the access key; "&&" is the sign itself.
struct Label : Control {
    std::string Caption;
    std::optional<Colour> BackColor;
    std::optional<Colour> ForeColor;

    Label() = default;
    explicit Label(std::string_view caption) : Caption(caption) {}
};

struct Button : Control {
    std::string Caption;
    std::optional<Colour> BackColor;

    Button() = default;
    explicit Button(std::string_view caption) : Caption(caption) {}
};

/// Which characters a box takes, typed or pasted.
struct KeyFilter {
    std::string_view Only = {};  ///< these alone; empty: all
    std::string_view Never = {}; ///< none of these
    bool NoLeadingBlank = false;

    /// The text without what the box does not take.
    [[nodiscard]] std::string filtered(std::string_view text) const;
};

/// The keys that a form listens to besides typing.
enum class Key { F2, F3, Return, Plus, Minus };

struct TextBox : Control {
    std::string Text;
    std::optional<Colour> BackColor;
    std::optional<Colour> ForeColor;
    bool Bold = false;
    bool Locked = false;    ///< shown and copied, not typed into
    bool SelectAll = false; ///< the view selects the text at its next refresh and takes the wish back
    int MaxLength = 0;      ///< characters; 0: no limit
    KeyFilter Keys;

    TextBox() = default;
    explicit TextBox(const KeyFilter& keys) : Keys(keys) {}
};

/// One of the matches that a box offers while typing.
struct Match {
    std::int64_t Data = 0;
    std::string Text;
};

/// A long list behind a box that completes while typing: asked for the first matches, never copied.
class MatchSource {
public:
    virtual ~MatchSource() = default;
    /// The first `limit` entries that begin with what was typed, in the order of the list; all entries match nothing.
    [[nodiscard]] virtual std::vector<Match> matches(std::string_view typed, std::size_t limit) const = 0;
};

/// A box into which any text may be typed and that offers the entries of a long list.
struct MatchBox : TextBox {
    const MatchSource* Source = nullptr; ///< none: offers nothing
    std::int64_t Chosen = 0;             ///< Data of the entry chosen last; 0: none, the text was typed
};

struct CheckBox : Control {
    std::string Caption;
    bool Value = false;

    CheckBox() = default;
    explicit CheckBox(std::string_view caption) : Caption(caption) {}
};

struct OptionButton : Control {
    std::string Caption;
    std::optional<Colour> BackColor;
};

/// Option buttons of which one is chosen.
struct OptionGroup : Control {
    std::string Caption; ///< of the frame around them
    std::vector<OptionButton> Buttons;
    int Value = -1; ///< index of the chosen one; -1: none
};

/// The entries of a list. A view fills its widget anew only when the version has changed.
class ListItems {
public:
    void Clear();
    void AddItem(std::string_view text, std::int64_t itemData = 0);

    [[nodiscard]] int ListCount() const { return static_cast<int>(texts_.size()); }
    /// Empty text and 0 for an index that there is not.
    [[nodiscard]] std::string List(int index) const;
    [[nodiscard]] std::int64_t ItemData(int index) const;
    /// Index of the first entry with this text (case ignored) or this number; -1 when there is none.
    [[nodiscard]] int indexOf(std::string_view text) const;
    [[nodiscard]] int indexOfData(std::int64_t itemData) const;
    [[nodiscard]] unsigned version() const { return version_; }

private:
    std::vector<std::string> texts_;
    std::vector<std::int64_t> data_;
    unsigned version_ = 1;
};

/// A list that drops down; with `Editable` any text may be typed.
struct ComboBox : Control {
    ListItems Items;
    int ListIndex = -1;
    std::string Text; ///< with Editable; else that of the chosen entry
    bool Editable = false;
    bool DropDownRequested = false; ///< the view opens the list at its next refresh and takes the wish back
    int MaxLength = 0;              ///< of typed text, in characters; 0: no limit
    KeyFilter Keys;                 ///< of typed text
    std::optional<Colour> BackColor;

    /// Chooses an entry and shows its text; -1 for none.
    void choose(int index);
};

struct ListBox : Control {
    ListItems Items;
    int ListIndex = -1;
};

/// What a grid shows: it is asked for what is visible, nothing is copied.
class GridRows {
public:
    virtual ~GridRows() = default;
    [[nodiscard]] virtual int RowCount() const = 0;
    [[nodiscard]] virtual std::string TextMatrix(int row, int column) const = 0;
    [[nodiscard]] virtual std::optional<Colour> CellBackColor(int /*row*/, int /*column*/) const { return {}; }
};

struct GridColumn {
    std::string Heading;
    int Width = 1000; ///< twips; 0 hides it
};

struct Grid : Control {
    std::vector<GridColumn> Columns;
    const GridRows* Rows = nullptr; ///< none: empty
    unsigned version = 0;           ///< the model counts it up when columns or rows have changed
    int Row = -1;                   ///< the current row, from 0; -1: none
};

struct MenuEntry {
    std::string Name; ///< given name of the entry
    std::string Caption;
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;
    std::vector<MenuEntry> Entries = {}; ///< of a submenu
};

struct Menu {
    std::vector<MenuEntry> Entries;

    /// The entry of this name, submenus included; null when there is none.
    [[nodiscard]] MenuEntry* find(std::string_view name);
    [[nodiscard]] const MenuEntry* find(std::string_view name) const;
};

/// What a control that the user leaves answers: Stay keeps the focus.
enum class Leave { Go, Stay };

} // namespace services
