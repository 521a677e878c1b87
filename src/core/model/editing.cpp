// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/editing.h"

#include "model/attribute_text.h"
#include "model/new_project.h"
#include "model/text_ops.h"

#include <vector>

namespace tq::model {

namespace {
constexpr int kLastRow = kRowsPerPage - 1;
constexpr char kCR = '\r';

bool IsPartner(std::string_view name)
{
    return !FollowupFor(name).empty();
}

void EmptyRow(Entry& e)
{
    e.InputTypeName.clear();
    e.AttributeText.clear();
    e.EditEnabled = false;
}

// Stores a catalogue Entry and, for a partner, its Followup in the row below.
void StorePair(EditContext& c, int page, int row, const std::string& name, const std::string& text)
{
    SetInputTypeName(c.store, page, row, name);
    SetAttributeText(c.store, c.ui, page, row, text);
    const std::string_view followup = FollowupFor(name);
    if (!followup.empty() && row < kLastRow) {
        SetInputTypeName(c.store, page, row + 1, std::string(followup));
        SetAttributeText(c.store, c.ui, page, row + 1,
                         FollowupTemplate(c.catalogue, followup, c.store.state.ProjectMode));
    }
}

void FillPreviewSlots(EditContext& c, const std::string& name, const std::string& text, bool normalize)
{
    auto& slots = c.store.state.PreviewSlots;
    slots[0].InputTypeName = name;
    slots[0].AttributeText = normalize ? NormalizeAttributeText(c.ui, text) : text;
    slots[1] = PreviewSlot{};
    const std::string_view followup = FollowupFor(name);
    if (!followup.empty()) {
        slots[1].InputTypeName = std::string(followup);
        slots[1].AttributeText =
            NormalizeAttributeText(c.ui, FollowupTemplate(c.catalogue, followup, c.store.state.ProjectMode));
    }
}

// The first row of `page` that takes `name`, or -1. Rows passed get their
// edit command. A pair never takes row 24.
int FirstFreeRow(EntryStore& store, int page, std::string_view name)
{
    for (int row = 0; row <= kLastRow; ++row) {
        Entry& e = GetEntry(store, page, row);
        if (e.InputTypeName.empty()) {
            if (row == kLastRow && PairRows(name) == 2)
                return -1;
            return row;
        }
        e.EditEnabled = true;
    }
    return -1;
}
} // namespace

int PairRowGuard(const Catalogue& catalogue, std::string_view name, int row)
{
    if (row == kLastRow && (StartsWithNoCase(name, "CONDITION") || EqualsNoCase(name, "DOWNLOAD FILES WITH PASSWORD")))
        return catalogue.CatalogueCount;
    return row;
}

bool NeedsTwoRows(std::string_view name)
{
    return IsPartner(name) || EqualsNoCase(name, "FOLLOWUP WITH DROPDOWN") ||
           EqualsNoCase(name, "FOLLOWUP WITH COMMENT");
}

std::optional<RowRef> AddToFirstFreeRow(EditContext& c, int page, int catalogueIndex)
{
    StateRecord& st = c.store.state;
    // the templates follow the current settings; the pages stepped over below reuse them
    BuildCatalogue(c.catalogue, c.settings, st);
    for (;;) {
        std::string name;
        std::string text;
        bool fromEditRow = false;
        if (st.PreviewFromEdit) {
            const Entry& e = GetEntry(c.store, st.EditPage, st.EditRow);
            name = e.InputTypeName;
            text = e.AttributeText;
            fromEditRow = true;
        } else {
            if (catalogueIndex < 0) {
                c.ui.message("nothing selected", "", Icon::None);
                return std::nullopt;
            }
            name = CatalogueName(c.catalogue, catalogueIndex);
            text = CatalogueTemplate(c.catalogue, catalogueIndex);
        }

        if (st.QuickPreviewActive) {
            // a quick preview fills its two slots and leaves every row alone
            FillPreviewSlots(c, name, text, !fromEditRow);
            return std::nullopt;
        }
        c.ui.hidePreviews();

        int row = FirstFreeRow(c.store, page, name);
        if (row >= 0)
            row = PairRowGuard(c.catalogue, name, row);
        if (row < 0 || row > kLastRow) {
            if (page == kPageCount) {
                c.ui.message("Entries are full", "full", Icon::Exclamation);
                return std::nullopt;
            }
            ++page;
            c.ui.showView(ViewOfPageNumber(page + 1, View::Page1));
            continue;
        }

        StorePair(c, page, row, name, text);
        RefreshEditMarkers(c.store);
        c.catalogue.PickListIndex = catalogueIndex;
        c.ui.entriesChanged();
        return RowRef{page, row};
    }
}

void InsertAtRow(EditContext& c, int page, int row, int pickIndex)
{
    StateRecord& st = c.store.state;
    BuildCatalogue(c.catalogue, c.settings, st);

    const bool dragged = st.DragSource > 30;
    std::string pickName;
    if (pickIndex >= 0 && pickIndex <= c.catalogue.CatalogueCount)
        pickName = CatalogueName(c.catalogue, pickIndex);
    // the row under the drag mark; empty when the mark names no row
    auto draggedRow = [&]() -> const Entry* {
        const int from = st.DragSource - 100;
        return from >= 0 && from <= kLastRow ? &GetEntry(c.store, page, from) : nullptr;
    };
    std::string source = pickName;
    std::string sourceText;
    if (dragged) {
        // the checks below judge the row that was picked up
        if (const Entry* from = draggedRow())
            source = from->InputTypeName;
    } else if (pickIndex >= 0 && pickIndex <= c.catalogue.CatalogueCount)
        sourceText = CatalogueTemplate(c.catalogue, pickIndex);
    const std::string target = GetEntry(c.store, page, row).InputTypeName;

    auto stop = [&] {
        st.DragSource = 0;
        c.ui.entriesChanged();
    };

    if (ToUpper(target).find("FOLLOWUP") != std::string::npos) {
        c.ui.message(std::string("You cannot add a Input Type above a Followup") + kCR + kCR +
                         "Input Types can only be added below a Followup or above a Condition Input type",
                     "INVALID", Icon::Exclamation);
        return stop();
    }
    if (row == kLastRow && IsPartner(source))
        return stop();
    if (EqualsNoCase(source, "SETUP")) {
        c.ui.message(std::string("SETUP input type cannot be duplicated.") + kCR + kCR +
                         "Only one instance is required to complete your " + std::string(ModeText(st.ProjectMode)),
                     "CANNOT COPY SETUP", Icon::Exclamation);
        return stop();
    }
    if (!dragged && (pickIndex < 0 || pickIndex > c.catalogue.CatalogueCount))
        return stop();

    // room first, then the mark moves one down, in that order: the mark
    // follows a source row below the drop, and one above it is not followed
    if (!Trim(target).empty()) {
        InsertRows(c.store, page, row + 1, NeedsTwoRows(source) ? 1 : 2);
        ++st.DragSource;
    }

    c.ui.hidePreviews();
    GetEntry(c.store, page, row).EditEnabled = true;

    // the guard reads the pick list's name, also when a row is dragged
    if (PairRowGuard(c.catalogue, pickName, row) > kLastRow) {
        c.ui.message("Entries are full", "FULL", Icon::Exclamation);
        return stop();
    }
    if (dragged) {
        // the row is read where the mark points now: dragging copies it
        const Entry* from = draggedRow();
        source = from ? from->InputTypeName : std::string();
        sourceText = from ? from->AttributeText : std::string();
        if (Trim(source).empty())
            return stop();
        // moved text is already in its stored form; the Followup's template
        // goes in unnormalized too while the drag lasts
        SetInputTypeName(c.store, page, row, source);
        SetAttributeText(c.store, c.ui, page, row, sourceText, Stored::AsIs);
        const std::string_view followup = FollowupFor(source);
        if (!followup.empty()) {
            SetInputTypeName(c.store, page, row + 1, std::string(followup));
            SetAttributeText(c.store, c.ui, page, row + 1, FollowupTemplate(c.catalogue, followup, st.ProjectMode),
                             Stored::AsIs);
        }
    } else
        StorePair(c, page, row, source, sourceText);

    st.DragSource = 0;
    RefreshEditMarkers(c.store);
    c.ui.entriesChanged();
}

void InsertRows(EntryStore& store, int page, int row, int mode)
{
    struct Slot
    {
        std::string name;
        std::string text;
    };
    std::vector<Slot> scratch;
    scratch.reserve(kRowsPerPage + 2);
    for (int i = 0; i <= kLastRow; ++i) {
        const Entry& e = GetEntry(store, page, i);
        if (i == row - 1) {
            scratch.push_back({});
            if (mode == 1)
                scratch.push_back({});
            else if (Trim(e.InputTypeName).empty())
                continue; // an empty row at the insertion point is not written again
        }
        scratch.push_back({e.InputTypeName, e.AttributeText});
    }
    // rows pushed past row 24 fall off the Page
    for (int i = 0; i <= kLastRow; ++i) {
        Entry& e = GetEntry(store, page, i);
        const Slot& s = scratch[static_cast<size_t>(i)];
        e.InputTypeName = s.name;
        e.AttributeText = s.text;
    }
}

void ClearRow(EditContext& c, int page, int row)
{
    ClearHighlights(c.store);
    EmptyRow(GetEntry(c.store, page, row));
    if (row < kLastRow && IsFollowupName(GetEntry(c.store, page, row + 1).InputTypeName))
        EmptyRow(GetEntry(c.store, page, row + 1));
    if (row > 0 && IsPartner(GetEntry(c.store, page, row - 1).InputTypeName))
        EmptyRow(GetEntry(c.store, page, row - 1));
    c.ui.entriesChanged();
}

bool ClearAllRows(EditContext& c, int mode)
{
    StateRecord& st = c.store.state;
    st.AbortFlag = 0;
    int count = CountFilledRows(c.store);
    if (st.SkipClearPrompt) {
        st.SkipClearPrompt = false;
        count = 0;
    }
    // exactly two filled rows never ask: kept as the program always did
    if (count > 1 && count != 2 && mode != 22 && mode != 2) {
        std::string text = std::string("You have data on one or more pages") + kCR + kCR;
        if (st.NewProjectPending || st.LoadPending) {
            text += st.NewProjectPending ? "Do you want to clear all entries on all pages except for the settings on "
                                           "the SETUP PAGE?"
                                         : "Do you want to clear all entries on all pages";
            text += std::string(1, kCR) + kCR +
                    "Note: If you want to clear all entries and used the default settings then select CLEAR ALL "
                    "from the main edit screen";
        } else {
            text += std::string("Do you want to clear all entries on all pages and reset the SETUP PAGE to the system "
                                "defaults?") +
                    kCR + kCR + "NOTE: If you want to keep the settings on the SETUP PAGE then select" + kCR + "FILE" +
                    kCR + std::string(ModeText(st.ProjectMode)) + kCR + "CREATE " +
                    std::string(ModeText(st.ProjectMode));
        }
        if (c.ui.ask(text, "Clear Entries", Buttons::YesNo, Icon::Question, 1) == Answer::No) {
            st.AbortFlag = 1;
            return false;
        }
    }

    if (!st.KeepSetupRow) {
        const Entry& setup = GetEntry(c.store, 1, 0);
        st.SavedSetupName = setup.InputTypeName;
        st.SavedSetupText = setup.AttributeText;
    }
    ResetEntries(c.store);

    c.ui.showView(View::Page1);
    c.catalogue.PickListIndex = 0;
    c.settings.FontName = "arial";
    c.settings.FontSize = "3";
    c.settings.Italics = "off";
    c.settings.Bold = "off";
    ClearHighlights(c.store);
    ClearEditMarkers(c.store);
    RefreshEditMarkers(c.store);
    c.ui.entriesChanged();
    return true;
}

void ClearAllCommand(EditContext& c)
{
    if (ClearAllRows(c, 1))
        InitSetupRow(c);
}

} // namespace tq::model
