// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "shell/edit_page.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::shell {

/// The Preview command of the edit page: checks the rows, builds the Entry
/// as the rows make it (a Condition with its Followup from the row below)
/// into "\Preview.htm" of the DataFolder, with no PHP and no word in the web
/// folder. Returns the page to show, or an empty text when a check or the
/// build failed (the preview stays hidden). The row's text is not changed.
std::string PreviewEntry(Session& s, UiPort& ui, EditState& st);

/// What the create page does with its preview pane after a quick preview.
enum class PreviewPane {
    AsItWas, // nothing picked and no edit-page preview pending: nothing was built
    Hidden,  // the Entry could not be placed or built
    Shown,   // `page` holds the built Entry
};

/// The outcome of a quick preview.
struct QuickPreviewResult
{
    PreviewPane pane = PreviewPane::AsItWas;
    std::string page; // "\Preview.htm" of the DataFolder when shown
};

/// The create page's quick preview of `page`: the Input Type at `pickIndex`
/// of the pick list (or, with PreviewFromEdit, the row under edit) goes into
/// the preview slots while QuickPreviewActive is set, no row changes, and the
/// slots are built alone as a whole page with no PHP. A failed build leaves
/// `buildError` 0; QuickPreviewActive is clear again on every way out.
[[nodiscard]] QuickPreviewResult QuickPreview(Session& s, UiPort& ui, int page, int pickIndex);

/// The Preview command of the edit window: the window's text goes into the
/// row through WindowToValue; a plain text is shown in the small framed page
/// ("\Previewsingle.htm"), any other attribute through PreviewEntry.
/// Returns the page to show, or an empty text.
std::string PreviewAttribute(Session& s, UiPort& ui, EditState& st, int row, std::string_view windowText);

/// The batch command for the shade width of every question: asks "Enter
/// from 1 to 100" until the value is good or the user cancels, then rewrites
/// "[SHADE WIDTH" in every row that has it, with the value as typed. Returns
/// the number of rows rewritten, or -1 when cancelled.
int SetShadeWidthAll(Session& s, UiPort& ui);

} // namespace tq::shell
