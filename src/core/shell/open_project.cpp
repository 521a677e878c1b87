// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/open_project.h"

#include "model/internal_error.h"
#include "model/text_ops.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <filesystem>
#include <system_error>

namespace tq::shell {

namespace {

void RequireHooks(const OpenHooks& hooks)
{
    const char* missing = !hooks.clearPrompt  ? "clearPrompt"
                          : !hooks.switchMode ? "switchMode"
                          : !hooks.remember   ? "remember"
                                              : nullptr;
    if (missing != nullptr)
        throw model::InternalError(std::string("internal error: an open by path without its ") + missing + " hook");
}

} // namespace

OpenResult OpenProjectFile(Session& s, UiPort& ui, const std::string& path, const OpenHooks& hooks)
{
    RequireHooks(hooks);
    if (!store::FileReadable(path))
        return OpenResult::Unreadable;
    std::error_code ec;
    std::filesystem::path absolute = std::filesystem::absolute(path, ec);
    // the recent lists keep the name as the open gives it: absolute, without "." or ".."
    s.run.CurrentProjectName = ec ? path : absolute.lexically_normal().string();
    const bool survey = path.size() >= 4 && model::EqualsNoCase(std::string_view(path).substr(path.size() - 4), ".srv");
    store::ProjectHooks project{hooks.clearPrompt, hooks.switchMode, hooks.remember};
    return store::OpenProject(s, ui, 1, survey ? "srv" : "fms", true, project) == 0 ? OpenResult::Opened
                                                                                    : OpenResult::Kept;
}

} // namespace tq::shell
