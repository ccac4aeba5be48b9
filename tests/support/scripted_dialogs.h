#pragma once

#include "platform/services/dialogs.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace support {

/// A question as the user saw it.
struct Question {
    std::string text; ///< of a message or prompt; the filter of a file choice
    std::string title;
    services::MsgStyle style = {}; ///< message boxes only
    std::string vorgabe = {};      ///< input boxes; the start of a file or folder choice
};

/// Answers what a test has scripted, in that order, and records every question. A question nobody scripted, an answer
/// of the wrong kind (a button that the box does not have, too) and an answer nobody asked for fail the test.
class ScriptedDialogs final : public services::Dialogs {
public:
    ScriptedDialogs() = default;
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ~ScriptedDialogs() override;

    void press(services::MsgResult button) { answers_.emplace_back(button); }
    /// Any number of message boxes in a row that only tell something.
    void acknowledge(int count = 1);
    /// Text of an input box; path of a file or folder choice; none for cancel.
    void type(std::optional<std::string> text) { answers_.emplace_back(std::move(text)); }
    void colour(std::optional<int> bgr) { answers_.emplace_back(bgr); }
    /// What another workstation does while the next question stands.
    void meanwhile(std::function<void()> action) { meanwhile_ = std::move(action); }

    [[nodiscard]] const std::vector<Question>& asked() const { return asked_; }
    /// The last question; an empty one when nothing was asked.
    [[nodiscard]] Question last() const { return asked_.empty() ? Question() : asked_.back(); }

    services::MsgResult MsgBox(const std::string& text, services::MsgStyle style, const std::string& title) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& vorgabe) override;
    std::optional<std::string> chooseFile(const services::FileRequest& request) override;
    std::optional<std::string> chooseFolder(const std::string& title, const std::string& start) override;
    std::optional<int> chooseColour(int start) override;

private:
    using Answer = std::variant<services::MsgResult, std::optional<std::string>, std::optional<int>>;

    template <typename T>
    T answer(const Question& question, T ifNone);

    std::deque<Answer> answers_;
    std::function<void()> meanwhile_;
    std::vector<Question> asked_;
};

} // namespace support
