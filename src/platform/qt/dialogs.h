#pragma once

#include "platform/services/dialogs.h"

namespace qt {

/// Message boxes, input boxes and choices in front of the active window.
class QtDialogs final : public services::Dialogs {
public:
    services::MsgResult MsgBox(const std::string& text, services::MsgStyle style, const std::string& title) override;
    [[nodiscard]] std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                                      const std::string& vorgabe) override;
    [[nodiscard]] std::optional<std::string> chooseFile(const services::FileRequest& request) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(const std::string& title, const std::string& start) override;
    [[nodiscard]] std::optional<int> chooseColour(int start) override;
};

} // namespace qt
