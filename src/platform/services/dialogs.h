#pragma once

#include <optional>
#include <string>
#include <vector>

namespace services {

// The numbers are those by which message boxes have always been asked for: a style is the sum of a button set, an icon
// and a default button (321 is OK and Cancel, information, the second button).

enum class MsgButtons { OKOnly = 0, OKCancel = 1, AbortRetryIgnore = 2, YesNoCancel = 3, YesNo = 4, RetryCancel = 5 };
enum class MsgIcon { None = 0, Critical = 16, Question = 32, Exclamation = 48, Information = 64 };
enum class MsgDefault { Button1 = 0, Button2 = 256, Button3 = 512 };
enum class MsgResult { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct MsgStyle {
    MsgButtons buttons = MsgButtons::OKOnly;
    MsgIcon icon = MsgIcon::None;
    MsgDefault standard = MsgDefault::Button1;

    [[nodiscard]] static constexpr MsgStyle fromFlags(int flags) {
        return {static_cast<MsgButtons>(flags & 0xF), static_cast<MsgIcon>(flags & 0xF0),
                static_cast<MsgDefault>(flags & 0xF00)};
    }
    [[nodiscard]] constexpr int flags() const {
        return static_cast<int>(buttons) + static_cast<int>(icon) + static_cast<int>(standard);
    }
    bool operator==(const MsgStyle&) const = default;
};

/// The buttons of a set, from the first to the last.
[[nodiscard]] std::vector<MsgResult> resultsOf(MsgButtons buttons);
/// What closing the box by its frame or by Escape means; a box with Yes and No alone has no such answer.
[[nodiscard]] std::optional<MsgResult> cancelResult(MsgButtons buttons);
/// The button that Return presses.
[[nodiscard]] MsgResult defaultResult(MsgStyle style);

struct FileRequest {
    std::string title;
    std::string start;  ///< folder or file to begin with; may be empty
    std::string filter; ///< "Text|pattern|Text|pattern|"; the first is chosen
};

/// Text and pattern of each filter; an entry without a pattern is left out.
struct FileFilter {
    std::string text;
    std::string pattern;
};
[[nodiscard]] std::vector<FileFilter> filtersOf(const std::string& filter);

/// The only way in which a form asks the user. Every call blocks until the user has answered. Texts are UTF-8 and
/// shown as they are, without markup.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual MsgResult MsgBox(const std::string& text, MsgStyle style, const std::string& title) = 0;
    /// None when the user cancelled.
    [[nodiscard]] virtual std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                                              const std::string& vorgabe) = 0;
    /// Path of an existing file; none when the user cancelled.
    [[nodiscard]] virtual std::optional<std::string> chooseFile(const FileRequest& request) = 0;
    /// Path of a folder, without a separator at its end; none when the user cancelled.
    [[nodiscard]] virtual std::optional<std::string> chooseFolder(const std::string& title,
                                                                  const std::string& start) = 0;
    /// A BGR Long; none when the user cancelled.
    [[nodiscard]] virtual std::optional<int> chooseColour(int start) = 0;
};

} // namespace services
