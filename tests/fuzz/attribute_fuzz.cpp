// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds arbitrary text to the attribute reader, the choice list reader, the
// normaliser and the line splitters. A list bound may be reported as an
// internal error; anything else that goes wrong is a finding. The &nbsp;
// rewriting is also checked against a plain, slow reading of its rule, and
// the cursor form of the reader against the string form.
#include "model/attribute_text.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace tq;

/// Keeps every message; answers nothing.
struct NullPort : UiPort
{
    std::vector<std::string> messages;
    void message(std::string_view text, std::string_view title, Icon) override
    {
        messages.push_back(std::string(title) + ":" + std::string(text));
    }
    Answer ask(std::string_view, std::string_view, Buttons, Icon, int) override { return Answer::No; }
    std::optional<std::string> inputBox(std::string_view, std::string_view, std::string_view) override
    {
        return std::nullopt;
    }
    std::optional<std::string> openFileDialog(const FileDialogOptions&) override { return std::nullopt; }
    std::optional<std::string> saveFileDialog(const FileDialogOptions&) override { return std::nullopt; }
    std::optional<std::string> browseForFolder(std::string_view, std::string_view) override { return std::nullopt; }
    std::optional<long> chooseColor(long, std::string_view) override { return std::nullopt; }
};

constexpr std::array<std::string_view, 10> kKeys = {
    "[", "[TITLE", "[INFO:", "[CHOICES", "[CHOICES=", "[SERVER DOWNLOAD", "[DEFAULT VALUE", "[ALIGN", "", "[A]"};
constexpr std::array<std::string_view, 6> kListKeys = {"CHOICES", "[", "CHECK BOX", "[FILES", "ROW CHOICES", ""};

// The rule read word for word, positions from 1, with the run-time's Mid and
// Left that clamp at the end of the text.
std::string SlowRewrite(std::string line)
{
    auto mid = [](const std::string& s, long long start, long long len) {
        if (start > static_cast<long long>(s.size()))
            return std::string();
        return s.substr(static_cast<size_t>(start - 1), static_cast<size_t>(len));
    };
    if (line.size() >= 2 && line.compare(0, 2, "  ") == 0)
        line = "&nbsp;" + line;
    const long long length = static_cast<long long>(line.size());
    for (long long j = length - 2; j >= 6; --j)
        if (mid(line, j, 4) == "    ")
            line = line.substr(0, static_cast<size_t>(j - 2)) + "&nbsp;" + mid(line, j + 2, 1LL << 40);
    return line;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    NullPort port;
    const std::string_view key = kKeys[data[0] % kKeys.size()];
    const std::string_view listKey = kListKeys[(data[0] / kKeys.size()) % kListKeys.size()];
    const std::string input(reinterpret_cast<const char*>(data + 1), size - 1);

    // repeated reads until the reader stops making progress; the cursor form
    // reads alike: the same values, faults, messages and rest
    std::string text = input;
    std::string value, folder;
    NullPort cursorPort;
    model::AttributeCursor cursor(input);
    std::string cursorValue, cursorFolder;
    for (int round = 0; round < 64 && !text.empty(); ++round) {
        const std::string before = text;
        int err = 0, cursorErr = 0;
        model::TakeAttribute(port, key, value, text, err, &folder);
        model::TakeAttribute(cursorPort, key, cursorValue, cursor, cursorErr, &cursorFolder);
        if (text.size() > before.size() || before.compare(before.size() - text.size(), text.size(), text) != 0)
            std::abort(); // the reader only ever takes from the front
        if (err != cursorErr || value != cursorValue || folder != cursorFolder || cursor.rest() != text ||
            port.messages != cursorPort.messages)
            std::abort();
        if (text == before || err != 0)
            break;
    }

    try {
        std::string listText = input;
        model::ChoiceList list;
        int err = 0;
        model::TakeChoiceList(port, listKey, listText, list, err);
    } catch (const model::InternalError&) {
    }

    const std::string stored = model::NormalizeAttributeText(port, input);
    if (!stored.empty() && stored.size() < 2)
        std::abort();
    if (!stored.empty() && stored.compare(stored.size() - 2, 2, "\r\n") != 0)
        std::abort(); // every stored line ends in CR LF

    try {
        model::LineList lines = model::SplitLines(input);
        (void)lines;
    } catch (const model::InternalError&) {
    }
    try {
        const model::HtmlLineList html = model::SplitHtmlLines(input);
        // compare the rewriting with the plain reading on lines that have no separator
        if (input.find('\\') == std::string::npos && input.size() < 4096 && html.count() == 1 &&
            html.at(1) != SlowRewrite(input))
            std::abort();
    } catch (const model::InternalError&) {
    }

    {
        std::string t = input, width, colour;
        int err = 0;
        model::TakeShadeGroup(port, t, width, colour, err);
    }
    {
        std::string t = input, width, lineSize, align, colour;
        int err = 0;
        model::TakeLineGroup(port, t, width, lineSize, align, colour, err);
        if (t.find_first_of("\r\n") != std::string::npos)
            std::abort(); // the line group reads a text without line breaks
    }
    (void)model::ColorToHex(input.substr(0, 32));
    return 0;
}
