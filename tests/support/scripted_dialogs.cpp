#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

using services::MsgResult;

ScriptedDialogs::~ScriptedDialogs() { EXPECT_TRUE(answers_.empty()) << answers_.size() << " answers nobody asked for"; }

void ScriptedDialogs::acknowledge(int count) {
    for (int i = 0; i < count; ++i)
        press(MsgResult::OK);
}

template <typename T>
T ScriptedDialogs::answer(const Question& question, T ifNone) {
    asked_.push_back(question);
    if (const auto action = std::exchange(meanwhile_, nullptr)) action();
    if (answers_.empty()) {
        ADD_FAILURE() << "nobody scripted: " << question.title << ": " << question.text;
        return ifNone;
    }
    const Answer given = answers_.front();
    answers_.pop_front();
    if (std::holds_alternative<T>(given)) return std::get<T>(given);
    ADD_FAILURE() << "an answer of another kind is scripted for: " << question.title << ": " << question.text;
    return ifNone;
}

MsgResult ScriptedDialogs::MsgBox(const std::string& text, services::MsgStyle style, const std::string& title) {
    const MsgResult given = answer(Question{text, title, style}, services::defaultResult(style));
    const auto buttons = services::resultsOf(style.buttons);
    EXPECT_NE(std::ranges::find(buttons, given), buttons.end()) << "no such button on: " << text;
    return given;
}

std::optional<std::string> ScriptedDialogs::InputBox(const std::string& prompt, const std::string& title,
                                                     const std::string& vorgabe) {
    return answer(Question{prompt, title, {}, vorgabe}, std::optional<std::string>());
}

std::optional<std::string> ScriptedDialogs::chooseFile(const services::FileRequest& request) {
    return answer(Question{request.filter, request.title, {}, request.start}, std::optional<std::string>());
}

std::optional<std::string> ScriptedDialogs::chooseFolder(const std::string& title, const std::string& start) {
    return answer(Question{"", title, {}, start}, std::optional<std::string>());
}

std::optional<int> ScriptedDialogs::chooseColour(int start) {
    return answer(Question{std::to_string(start), ""}, std::optional<int>());
}

} // namespace support
