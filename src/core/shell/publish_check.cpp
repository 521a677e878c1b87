// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/publish_check.h"

#include "html/headings.h"
#include "model/text_ops.h"
#include "store/text_file.h"

#include <filesystem>

namespace tq::shell {

namespace {

bool IsVariableChar(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsVariableName(std::string_view name)
{
    for (char c : name)
        if (!IsVariableChar(c))
            return false;
    return true;
}

// Line `number` (from 1) of `text`, without its line end.
std::string_view LineOf(std::string_view text, int number)
{
    size_t from = 0;
    for (int i = 1; i < number; ++i) {
        size_t end = text.find('\n', from);
        if (end == std::string_view::npos)
            return {};
        from = end + 1;
    }
    size_t end = text.find('\n', from);
    std::string_view line = text.substr(from, end == std::string_view::npos ? std::string_view::npos : end - from);
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

// php's own words: "syntax error, unexpected ..." from its first error line.
std::string PhpWords(std::string_view output)
{
    size_t at = output.find("error:");
    if (at == std::string_view::npos)
        return std::string(model::Trim(output.substr(0, output.find('\n')), " \t\r\n"));
    std::string_view rest = output.substr(at + 6);
    rest = rest.substr(0, rest.find('\n'));
    size_t in = rest.rfind(" in ");
    if (in != std::string_view::npos)
        rest = rest.substr(0, in);
    return std::string(model::Trim(rest, " \t\r\n"));
}

} // namespace

int PhpErrorLine(std::string_view phpOutput)
{
    constexpr std::string_view kMark = " on line ";
    size_t at = phpOutput.find(kMark);
    if (at == std::string_view::npos)
        return 0;
    int line = 0;
    for (size_t i = at + kMark.size(); i < phpOutput.size() && phpOutput[i] >= '0' && phpOutput[i] <= '9'; ++i) {
        line = line * 10 + (phpOutput[i] - '0');
        if (line > 100000000)
            return 0;
    }
    return line;
}

std::string PublishWarning(const write::BuildState& build, std::string_view phpOutput, std::string_view script)
{
    const std::string file = std::filesystem::path(build.phpPath).filename().string();
    const int lineNumber = PhpErrorLine(phpOutput);
    const std::string where = lineNumber > 0 ? " (line " + std::to_string(lineNumber) + ")" : std::string();
    const std::string_view line = lineNumber > 0 ? LineOf(script, lineNumber) : std::string_view();
    for (int slot = 1; slot <= build.flatList.EntryLineCount; slot += 2) {
        const std::string& type = build.flatList.at(slot);
        if (type.empty())
            continue;
        const std::string name = html::FieldName(type, slot);
        if (IsVariableName(name) || line.find(name) == std::string_view::npos)
            continue;
        return "WARNING: PHP cannot run " + file + ": the field name \"" + name + "\" of the Input Type " + type +
               " is not a valid PHP variable name" + where + ". Remove or replace that Entry before you upload " +
               file + ".";
    }
    return "WARNING: PHP cannot run " + file + where + ": " + PhpWords(phpOutput);
}

PublishCheck CheckPublishedScript(const write::BuildState& build, UiPort& ui)
{
    PublishCheck result;
    if (build.phpPath.empty())
        return result;
    const auto ran = ui.runProcess("php", {"-l", build.phpPath}, kPublishCheckTimeoutMs);
    if (!ran)
        return result;
    result.checked = true;
    // php -l says "No syntax errors detected" and ends with 0 when it can parse
    if (ran->exitCode == 0)
        return result;
    result.parses = false;
    result.warning = PublishWarning(build, ran->output, store::ReadWholeFile(build.phpPath).value_or(std::string()));
    return result;
}

} // namespace tq::shell
