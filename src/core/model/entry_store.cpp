// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/entry_store.h"

#include "model/attribute_text.h"
#include "model/text_ops.h"

#include <string>

namespace tq::model {

namespace {

void CheckRow(int page, int row)
{
    if (page < 1 || page > kPageCount || row < 0 || row >= kRowsPerPage)
        throw InternalError("internal error: no row " + std::to_string(row) + " on page " + std::to_string(page));
}

} // namespace

PageRows MakeDefaultPages()
{
    PageRows pages;
    for (int p = 1; p <= kPageCount; ++p)
        for (int r = 0; r < kRowsPerPage; ++r)
            pages[static_cast<size_t>(p - 1)][static_cast<size_t>(r)].ReferenceNumber =
                std::to_string(RowOrdinal(p, r));
    return pages;
}

const std::string& FlatList::at(int n) const
{
    if (n < 1 || n > kMaxFlatLines)
        throw InternalError("internal error: flat list line " + std::to_string(n) + " out of range");
    return lines[static_cast<size_t>(n - 1)];
}

std::string& FlatList::at(int n)
{
    return const_cast<std::string&>(static_cast<const FlatList&>(*this).at(n));
}

void FlatList::push(std::string line)
{
    if (EntryLineCount >= kMaxFlatLines)
        throw InternalError("internal error: flat list bound " + std::to_string(kMaxFlatLines) + " passed");
    lines[static_cast<size_t>(EntryLineCount)] = std::move(line);
    ++EntryLineCount;
}

void FlatList::clear()
{
    for (std::string& line : lines)
        line.clear();
    EntryLineCount = 0;
}

int RowOrdinal(int page, int row)
{
    return kRowsPerPage * (page - 1) + row + 1;
}

Entry& GetEntry(EntryStore& store, int page, int row)
{
    CheckRow(page, row);
    return store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
}

const Entry& GetEntry(const EntryStore& store, int page, int row)
{
    CheckRow(page, row);
    return store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
}

void SetInputTypeName(EntryStore& store, int page, int row, std::string text)
{
    GetEntry(store, page, row).InputTypeName = std::move(text);
}

void SetAttributeText(EntryStore& store, UiPort& ui, int page, int row, std::string_view text, Stored how)
{
    Entry& e = GetEntry(store, page, row);
    if (how == Stored::AsIs)
        e.AttributeText = std::string(text);
    else
        e.AttributeText = NormalizeAttributeText(ui, text);
}

int CountFilledRows(const EntryStore& store)
{
    int count = 0;
    for (int r = 0; r < kRowsPerPage; ++r)
        for (int p = 1; p <= kPageCount; ++p)
            if (!GetEntry(store, p, r).InputTypeName.empty())
                ++count;
    return count;
}

void FillFlatList(const EntryStore& store, FlatList& list)
{
    list.clear();
    for (int p = 1; p <= kPageCount; ++p)
        for (int r = 0; r < kRowsPerPage; ++r) {
            const Entry& e = GetEntry(store, p, r);
            if (Trim(e.InputTypeName).empty())
                continue;
            list.push(e.InputTypeName);
            list.push(e.AttributeText);
        }
}

RowRef FlatLineToRow(int n)
{
    const int k = (n + 1) / 2;
    // the limits are tested on the line number, not on k
    RowRef r;
    if (n < 51)
        r = {1, k - 1};
    else if (n < 101)
        r = {2, k - 26};
    else if (n < 151)
        r = {3, k - 51};
    else
        r = {4, k - 76};
    if (r.row < 0 || r.row >= kRowsPerPage)
        throw InternalError("internal error: flat list line " + std::to_string(n) + " names no row");
    return r;
}

void ClearHighlights(EntryStore& store)
{
    if (store.state.PreviewFromEdit)
        return;
    for (auto& page : store.pages)
        for (Entry& e : page)
            e.highlight = Highlight::None;
}

void ClearEditMarkers(EntryStore& store)
{
    for (auto& page : store.pages)
        for (Entry& e : page)
            e.EditEnabled = false;
    store.pages[0][0].EditEnabled = true; // the SetupEntry keeps its edit command
}

void RefreshEditMarkers(EntryStore& store)
{
    ClearEditMarkers(store);
    for (auto& page : store.pages)
        for (Entry& e : page)
            if (!e.InputTypeName.empty())
                e.EditEnabled = true;
}

void InitRowBookkeeping(EntryStore& store)
{
    for (int p = 1; p <= kPageCount; ++p)
        for (int r = 0; r < kRowsPerPage; ++r)
            GetEntry(store, p, r).ReferenceNumber = std::to_string(RowOrdinal(p, r));
}

void ResetEntries(EntryStore& store)
{
    for (auto& page : store.pages)
        for (Entry& e : page) {
            e.InputTypeName.clear();
            e.AttributeText.clear();
        }
}

} // namespace tq::model
