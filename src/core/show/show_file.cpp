// SPDX-License-Identifier: GPL-3.0-or-later
#include "show/show_file.h"

#include "model/text_ops.h"
#include "port/platform.h"
#include "store/recent_history.h"
#include "store/text_file.h"

#include <cerrno>
#include <charconv>
#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tq::show {

namespace {

constexpr std::string_view kShowFilter = "Default Files (*.shw) | *.shw";

std::string* TextField(ShowSettings& s, int line)
{
    switch (line) {
    case 1:
        return &s.HomeFile;
    case 2:
        return &s.HomeLinkText;
    case 3:
        return &s.ImageFolder;
    case 4:
        return &s.WebImageFolder;
    case 5:
        return &s.ShowFileName;
    case 6:
        return &s.UseFading;
    case 7:
        return &s.ImagesPerLine;
    case 8:
        return &s.ColumnsPerLine;
    case 9:
        return &s.AllowZip;
    case 10:
        return &s.BrowserTitle;
    case 11:
        return &s.FadeMode;
    case 12:
        return &s.FadeSteps;
    case 13:
        return &s.FadeDelay;
    default:
        return nullptr;
    }
}

// The colour line: a decimal number with optional blanks around it, in the
// range of the platform's 32-bit colour value.
bool ParseColor(std::string_view text, long& color)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    long long v = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc() || end != text.data() + text.size() || text.empty())
        return false;
    if (v < INT32_MIN || v > INT32_MAX)
        return false;
    color = static_cast<long>(v);
    return true;
}

} // namespace

std::string ShowFileText(const ShowSettings& settings)
{
    ShowSettings s = settings;
    std::string out;
    for (int line = 1; line <= 13; ++line) {
        out += *TextField(s, line);
        out += "\r\n";
    }
    out += std::to_string(settings.BackgroundColor);
    out += "\r\n";
    return out;
}

int ReadShowText(std::string_view bytes, ShowSettings& settings)
{
    int line = 0;
    while (!bytes.empty() && line < 14) {
        size_t nl = bytes.find('\n');
        std::string_view text = bytes.substr(0, nl);
        bytes = nl == std::string_view::npos ? std::string_view() : bytes.substr(nl + 1);
        if (!text.empty() && text.back() == '\r')
            text.remove_suffix(1);
        ++line;
        if (line <= 13) {
            *TextField(settings, line) = std::string(text);
        } else if (!ParseColor(text, settings.BackgroundColor)) {
            return line - 1;
        }
    }
    return line;
}

std::string ShowPathFromCaption(std::string_view caption)
{
    size_t at = platform::FindDriveMark(caption);
    if (at == std::string_view::npos)
        return std::string(caption);
    return std::string(caption.substr(at));
}

void SetFontDefaults(store::RunValues& run)
{
    run.GlobalFont = "arial";
    run.FontSize = "3";
    run.Italics = "off";
    run.Bold = "off";
}

bool SaveShow(Session& session, UiPort& ui)
{
    ShowSettings& s = session.photoShow.settings;
    FileDialogOptions options;
    options.title = "Enter the Filename";
    options.initialName = s.ImageFolder;
    if (!options.initialName.empty() && options.initialName.back() != '/' && options.initialName.back() != '\\')
        options.initialName += platform::kSeparator;
    options.initialName += s.ShowFileName;
    options.initialFolder = s.ImageFolder;
    options.filter = std::string(kShowFilter);
    std::optional<std::string> chosen = ui.saveFileDialog(options);
    if (!chosen || chosen->empty())
        return false;
    std::string name = *chosen;
    // the dialog's default extension: only a name without any extension gets ".shw"
    if (std::filesystem::path(name).filename().string().find('.') == std::string::npos)
        name += ".shw";
    if (name.size() >= 4 && model::ToUpper(name.substr(name.size() - 4)) == ".SHW")
        session.run.LastFormFile = name;

    std::error_code ec;
    if (std::filesystem::exists(name, ec)) {
        Answer a = ui.ask("File " + name + "  already exists. Do you want to replace it?", "FILE EXIST", Buttons::YesNo,
                          Icon::Question, 1);
        if (a != Answer::Yes)
            return false;
    }
    if (!store::WriteFileReplacing(name, ShowFileText(s))) {
        const int err = errno;
        ui.message(std::string(err != 0 ? std::strerror(err) : "Input/output error") + " when writing " + name, "ERROR",
                   Icon::Exclamation);
        return false;
    }
    store::AppendShowHistory(session, ui, name);
    return true;
}

bool OpenShow(Session& session, std::string_view path, UiPort& ui)
{
    ShowPage& page = session.photoShow;
    std::string name(path);
    if (name.empty()) {
        FileDialogOptions options;
        options.title = "Where is photoshow file located?";
        options.initialFolder = page.settings.ImageFolder;
        options.filter = std::string(kShowFilter);
        std::optional<std::string> chosen = ui.openFileDialog(options);
        if (!chosen || chosen->empty()) {
            ui.message("ABORTED...", "ABORTED", Icon::Information);
            return false;
        }
        name = *chosen;
    }
    SetFontDefaults(session.run);
    std::optional<std::string> bytes = store::ReadWholeFile(name);
    if (!bytes)
        return false;
    // a short file keeps the defaults of the fields it lacks
    static_cast<void>(ReadShowText(*bytes, page.settings));
    ApplyFadeSwitch(page);
    page.OutputLine = ShowLink(page.settings);
    return true;
}

} // namespace tq::show
