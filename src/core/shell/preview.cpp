// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview.h"

#include "compose/build_driver.h"
#include "compose/validation.h"
#include "html/quick_preview.h"
#include "model/editing.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "shell/batch_commands.h"

namespace tq::shell {

std::string PreviewEntry(Session& s, UiPort& ui, EditState& st)
{
    auto& b = s.build;
    auto& state = s.store.state;
    b.setupHold = false;
    state.commitMode = model::CommitMode::EntryPreview;
    const int err = CheckEditRows(s, ui, st, true);
    state.commitMode = model::CommitMode::Plain;
    if (err != 0)
        return {};

    state.PreviewSlots[0] = {st.EntryName, ComposeEditText(st)};
    state.PreviewSlots[1] = {};
    if (compose::IsConditionType(st.EntryName) && st.EditRow + 1 < model::kRowsPerPage) {
        const auto& below =
            s.store.pages.at(static_cast<size_t>(st.EditPage - 1)).at(static_cast<size_t>(st.EditRow + 1));
        if (compose::IsFollowupType(below.InputTypeName))
            state.PreviewSlots[1] = {below.InputTypeName, below.AttributeText};
    }
    state.PreviewFromEdit = true;
    compose::BuildOutput(s, ui, {compose::BuildKind::EditPreview});
    const bool shown = b.buildError != 1;
    state.PreviewFromEdit = false;
    return shown ? platform::JoinPath(s.DataFolder, "\\Preview.htm") : std::string();
}

QuickPreviewResult QuickPreview(Session& s, UiPort& ui, int page, int pickIndex)
{
    auto& state = s.store.state;
    s.build.buildError = 0;
    if (pickIndex < 0 && !state.PreviewFromEdit)
        return {};
    struct ActiveWhileBuilding
    {
        model::StateRecord& state;
        explicit ActiveWhileBuilding(model::StateRecord& st) : state(st) { state.QuickPreviewActive = true; }
        ~ActiveWhileBuilding() { state.QuickPreviewActive = false; }
        ActiveWhileBuilding(const ActiveWhileBuilding&) = delete;
        ActiveWhileBuilding& operator=(const ActiveWhileBuilding&) = delete;
    } active{state};

    model::EditContext c{s.store, s.settings, s.catalogue, ui};
    // under QuickPreviewActive the add fills the preview slots, no row
    if (model::AddToFirstFreeRow(c, page, pickIndex) || !state.PreviewSlots[0].InputTypeName.empty())
        compose::BuildOutput(s, ui, {compose::BuildKind::EntryPreview});
    else
        s.build.buildError = 1;
    if (s.build.buildError == 1) {
        s.build.buildError = 0;
        return {PreviewPane::Hidden, {}};
    }
    return {PreviewPane::Shown, platform::JoinPath(s.DataFolder, "\\Preview.htm")};
}

std::string PreviewAttribute(Session& s, UiPort& ui, EditState& st, int row, std::string_view windowText)
{
    EditField& f = st.fields.at(static_cast<size_t>(row));
    f.Value = WindowToValue(f.Key, windowText);
    if (html::UsesQuickPreview(f.Key))
        return html::WriteQuickPreview(s, f.Key, f.Value);
    return PreviewEntry(s, ui, st);
}

int SetShadeWidthAll(Session& s, UiPort& ui)
{
    std::string value;
    for (;;) {
        const auto typed = ui.inputBox("Enter from 1 to 100\r\rValue is in %", "SHADE WIDTH", "50");
        if (!typed)
            return -1;
        const long long n = model::ValLong(*typed);
        if (n >= 1 && n <= 100) {
            value = *typed;
            break;
        }
        ui.message("Value must be from 1 to 100", "ERROR", Icon::Exclamation);
    }
    const int changed = RewriteOnAllRows(s, "[SHADE WIDTH", value, false);
    ui.entriesChanged();
    return changed;
}

} // namespace tq::shell
