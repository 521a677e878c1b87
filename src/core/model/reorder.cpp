// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/reorder.h"

#include "model/text_ops.h"

#include <array>
#include <cmath>
#include <vector>

namespace tq::model {

namespace {
constexpr char kCR = '\r';

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

double LeadingNumber(std::string_view text)
{
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    double sign = 1;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        sign = text[i] == '-' ? -1 : 1;
        ++i;
    }
    double value = 0;
    bool any = false;
    while (i < text.size() && IsDigit(text[i])) {
        value = value * 10 + (text[i] - '0');
        any = true;
        ++i;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        double scale = 0.1;
        while (i < text.size() && IsDigit(text[i])) {
            value += (text[i] - '0') * scale;
            scale /= 10;
            any = true;
            ++i;
        }
    }
    if (!any)
        return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        size_t j = i + 1;
        int expSign = 1;
        if (j < text.size() && (text[j] == '-' || text[j] == '+')) {
            expSign = text[j] == '-' ? -1 : 1;
            ++j;
        }
        int exponent = 0;
        bool digits = false;
        while (j < text.size() && IsDigit(text[j])) {
            if (exponent < 400)
                exponent = exponent * 10 + (text[j] - '0');
            digits = true;
            ++j;
        }
        if (digits)
            value *= std::pow(10.0, expSign * exponent);
    }
    return sign * value;
}

bool AskToReorder(UiPort& ui)
{
    return ui.ask("Do you want to reorder your entries based on the reference numbers below?", "REORDER ENTRIES",
                  Buttons::YesNo, Icon::Question, 1) != Answer::No;
}

bool ReorderEntries(EntryStore& store, UiPort& ui)
{
    StateRecord& st = store.state;
    // 1
    if (st.OrderPrompt) {
        st.OrderPrompt = false;
        if (!AskToReorder(ui))
            return true;
    }

    // 2
    std::array<std::string, kRowsPerPage> page1Names;
    for (int row = 0; row < kRowsPerPage; ++row)
        page1Names[static_cast<size_t>(row)] = GetEntry(store, 1, row).InputTypeName;

    // 3: every pass reads every row's number, so an error on any row stops
    // the run before a row has moved
    struct Moved
    {
        std::string name;
        std::string text;
    };
    std::vector<Moved> sorted;
    const int maxEntries = store.MaxEntries;
    // A row's number is the same in every pass (a cut number reads as the
    // bound it was cut to), so it is read once, in the order of the first pass.
    std::array<double, kPageCount * kRowsPerPage> numbers{};
    std::array<bool, kPageCount * kRowsPerPage> filled{};
    if (maxEntries >= 1)
        for (int page = 1; page <= kPageCount; ++page)
            for (int row = 0; row < kRowsPerPage; ++row) {
                Entry& e = GetEntry(store, page, row);
                double n = LeadingNumber(Trim(e.ReferenceNumber));
                if (n > maxEntries) {
                    e.ReferenceNumber = std::to_string(maxEntries);
                    n = maxEntries;
                }
                if (n == 0) {
                    ui.message("Order number must be greater then 0 and contain a number from 1 to " +
                                   std::to_string(maxEntries),
                               "ORDER ERROR", Icon::Critical);
                    return false;
                }
                const auto at = static_cast<size_t>(RowOrdinal(page, row) - 1);
                numbers[at] = n;
                filled[at] = !Trim(e.InputTypeName).empty();
            }
    for (int k = 1; k <= maxEntries; ++k)
        for (size_t at = 0; at < numbers.size(); ++at)
            // a fractional number matches no k: its row is dropped below
            if (numbers[at] == k && filled[at]) {
                const Entry& e = store.pages[at / kRowsPerPage][at % kRowsPerPage];
                sorted.push_back({e.InputTypeName, e.AttributeText});
            }

    // 5
    for (int j = 1; j <= kPageCount * kRowsPerPage; ++j) {
        Entry& e = GetEntry(store, (j - 1) / kRowsPerPage + 1, (j - 1) % kRowsPerPage);
        const auto at = static_cast<size_t>(j - 1);
        if (at < sorted.size()) {
            e.InputTypeName = sorted[at].name;
            e.AttributeText = sorted[at].text;
        } else {
            e.InputTypeName.clear();
            e.AttributeText.clear();
        }
        e.ReferenceNumber = std::to_string(j);
    }

    // 6
    RefreshEditMarkers(store);
    ui.showView(View::Page1);
    ui.entriesChanged();

    // 7: moves on Pages 2 to 4 alone count as unchanged
    bool changed = false;
    for (int row = 0; row < kRowsPerPage; ++row)
        if (GetEntry(store, 1, row).InputTypeName != page1Names[static_cast<size_t>(row)])
            changed = true;

    // 8
    if (!st.SwitchInProgress) {
        if (!changed)
            ui.message("The " + ToProperCase(ModeText(st.ProjectMode)) +
                           " is already in sequential order and does not need to be sorted." + kCR + kCR +
                           "To change the Order, change the numbers below the Order button.",
                       "NO CHANGES NEEDED", Icon::None);
        else
            ui.message("The Order has been updated", "ORDER UPDATED", Icon::Information);
    }
    return true;
}

bool FollowPartnerNumber(EntryStore& store, int page, int row)
{
    if (page < 1 || page > kPageCount || row < 0 || row >= kRowsPerPage - 1)
        return false;
    const Entry& e = GetEntry(store, page, row);
    const std::string upper = ToUpper(e.InputTypeName);
    // Ten letters never equal the 28 of the name: a Download pair keeps
    // separate numbers. That is how the program has always behaved.
    if (upper.substr(0, 9) != "CONDITION" && upper.substr(0, 10) != "DOWNLOAD FILES WITH PASSWORD")
        return false;
    GetEntry(store, page, row + 1).ReferenceNumber = e.ReferenceNumber;
    return true;
}

} // namespace tq::model
