#include "platform/services/dialogs.h"

#include <algorithm>

namespace services {

namespace {

std::vector<std::string> parts(const std::string& text) {
    std::vector<std::string> result;
    std::size_t begin = 0;
    for (std::size_t end = text.find('|'); end != std::string::npos; end = text.find('|', begin)) {
        result.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    if (begin < text.size()) result.push_back(text.substr(begin));
    return result;
}

} // namespace

std::vector<MsgResult> resultsOf(MsgButtons buttons) {
    using enum MsgResult;
    switch (buttons) {
    case MsgButtons::OKOnly:
        return {OK};
    case MsgButtons::OKCancel:
        return {OK, Cancel};
    case MsgButtons::AbortRetryIgnore:
        return {Abort, Retry, Ignore};
    case MsgButtons::YesNoCancel:
        return {Yes, No, Cancel};
    case MsgButtons::YesNo:
        return {Yes, No};
    case MsgButtons::RetryCancel:
        return {Retry, Cancel};
    }
    return {OK};
}

std::optional<MsgResult> cancelResult(MsgButtons buttons) {
    if (buttons == MsgButtons::OKOnly) return MsgResult::OK;
    const auto results = resultsOf(buttons);
    if (std::ranges::find(results, MsgResult::Cancel) != results.end()) return MsgResult::Cancel;
    return std::nullopt;
}

MsgResult defaultResult(MsgStyle style) {
    const auto results = resultsOf(style.buttons);
    const auto place = static_cast<std::size_t>(style.standard) / 256;
    return place < results.size() ? results[place] : results.front();
}

std::vector<FileFilter> filtersOf(const std::string& filter) {
    const auto texts = parts(filter);
    std::vector<FileFilter> filters;
    for (std::size_t i = 0; i + 1 < texts.size(); i += 2)
        filters.push_back({texts[i], texts[i + 1]});
    return filters;
}

} // namespace services
