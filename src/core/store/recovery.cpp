// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/recovery.h"

#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "store/text_file.h"

#include <charconv>
#include <filesystem>

namespace tq::store {

namespace {

constexpr std::string_view kMagic = "TARNQUILL RECOVERY 1\n";

void PutValue(std::string& out, std::string_view value)
{
    out += std::to_string(value.size());
    out += ':';
    out += value;
    out += '\n';
}

/// Takes one "<length>:<bytes>\n" value off the front of `rest`.
bool TakeValue(std::string_view& rest, std::string& value)
{
    size_t length = 0;
    const char* end = rest.data() + rest.size();
    auto [colon, ec] = std::from_chars(rest.data(), end, length);
    // one way only to write a length: no leading zeros
    if (ec != std::errc() || colon == rest.data() || colon == end || *colon != ':' ||
        (rest[0] == '0' && colon - rest.data() > 1))
        return false;
    const size_t start = static_cast<size_t>(colon - rest.data()) + 1;
    if (length >= rest.size() - start || rest[start + length] != '\n')
        return false;
    value.assign(rest.substr(start, length));
    rest.remove_prefix(start + length + 1);
    return true;
}

bool NewerThan(const std::string& copy, const std::string& project)
{
    std::error_code ec;
    const auto copyTime = std::filesystem::last_write_time(copy, ec);
    if (ec)
        return false;
    const auto projectTime = std::filesystem::last_write_time(project, ec);
    return ec || copyTime > projectTime; // a project file that is gone: the copy is all there is
}

void RemoveCopy(RecoveryKeeper& keeper, const std::string& path)
{
    std::error_code ec;
    std::filesystem::remove(path, ec);
    keeper.written.clear();
}

} // namespace

std::string RecoveryPath(std::string_view dataFolder)
{
    return platform::JoinPath(dataFolder, "\\recovery.tqr");
}

std::string RecoveryText(const Session& s)
{
    std::string out(kMagic);
    PutValue(out, model::ModeText(s.store.state.ProjectMode));
    PutValue(out, s.store.state.CurrentFileName);
    for (const auto& page : s.store.pages) {
        for (const model::Entry& e : page) {
            PutValue(out, e.InputTypeName);
            PutValue(out, e.AttributeText);
            PutValue(out, e.ReferenceNumber);
        }
    }
    return out;
}

std::optional<RecoveryCopy> ReadRecoveryText(std::string_view text)
{
    if (text.substr(0, kMagic.size()) != kMagic)
        return std::nullopt;
    text.remove_prefix(kMagic.size());
    RecoveryCopy copy;
    std::string mode;
    if (!TakeValue(text, mode) || !TakeValue(text, copy.fileName))
        return std::nullopt;
    // the copy writes the mode as ModeText does; any other text is no copy of ours
    if (mode != model::ModeText(model::Mode::Form) && mode != model::ModeText(model::Mode::Survey))
        return std::nullopt;
    copy.mode = model::ModeOf(mode);
    for (auto& page : copy.pages) {
        for (model::Entry& e : page) {
            if (!TakeValue(text, e.InputTypeName) || !TakeValue(text, e.AttributeText) ||
                !TakeValue(text, e.ReferenceNumber))
                return std::nullopt;
        }
    }
    if (!text.empty())
        return std::nullopt;
    return copy;
}

bool StartRecovery(RecoveryKeeper& keeper, Session& s, UiPort& ui, const ProjectHooks& hooks)
{
    keeper.saved = RecoveryText(s);
    keeper.saves = s.run.projectSaves;
    keeper.written.clear();
    if (s.DataFolder.empty())
        return false;
    const std::string path = RecoveryPath(s.DataFolder);
    if (!FileReadable(path))
        return false;
    auto bytes = ReadWholeFile(path);
    auto copy = bytes ? ReadRecoveryText(*bytes) : std::nullopt;
    if (!copy || (!copy->fileName.empty() && !NewerThan(path, copy->fileName))) {
        RemoveCopy(keeper, path);
        return false;
    }
    const std::string project = copy->fileName.empty() ? "a project that was never saved" : copy->fileName;
    const std::string question = "Tarnquill did not end properly the last time. The entries of " + project +
                                 " were kept as they were just before.\r\rDo you want to restore them?";
    if (ui.ask(question, "RESTORE ENTRIES", Buttons::YesNo, Icon::Question, 1) != Answer::Yes) {
        RemoveCopy(keeper, path);
        return false;
    }
    if (copy->mode != s.store.state.ProjectMode && hooks.switchMode)
        hooks.switchMode(s, ui, copy->mode, 2);
    s.store.pages = copy->pages;
    s.store.state.CurrentFileName = copy->fileName;
    s.run.CurrentProjectName = copy->fileName;
    model::RefreshEditMarkers(s.store);
    RefreshStatus(s);
    ui.entriesChanged();
    ui.showView(View::Page1);
    // the restored rows are not saved: the copy on disk stays until they are
    keeper.written = *bytes;
    return true;
}

void KeepRecovery(RecoveryKeeper& keeper, const Session& s)
{
    if (s.DataFolder.empty())
        return;
    std::string text = RecoveryText(s);
    if (keeper.saves != s.run.projectSaves) {
        keeper.saves = s.run.projectSaves;
        keeper.saved = text;
    }
    if (text == keeper.saved) {
        if (!keeper.written.empty())
            RemoveCopy(keeper, RecoveryPath(s.DataFolder));
        return;
    }
    if (text != keeper.written && WriteFileReplacing(RecoveryPath(s.DataFolder), text))
        keeper.written = std::move(text);
}

} // namespace tq::store
