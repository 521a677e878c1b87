// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/validation.h"

#include "model/reorder.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "store/text_file.h"

#include <exception>
#include <filesystem>

namespace tq::compose {

void LocateEntry(int slot, int& row, int& page)
{
    const int entry = (slot + 1) / 2; // counted from 1
    if (slot < 51) {
        page = 1;
        row = entry - 1;
    } else if (slot < 101) {
        page = 2;
        row = entry - 25 - 1;
    } else if (slot < 151) {
        page = 3;
        row = entry - 50 - 1;
    } else {
        page = 4;
        row = entry - 75 - 1;
    }
}

void ReportBuildFault(Session& s, UiPort& ui, int slot)
{
    int row = 0;
    int page = 1;
    LocateEntry(slot, row, page);
    ui.showView(ViewOfPageNumber(page + 1, View::Page1));
    ui.selectRow(page, row);
    s.store.state.EditPage = page;
    s.store.state.EditRow = row;
    ui.openEditPage(page, row, "");
}

void ReportUnknownType(Session& s, UiPort& ui, int slot, std::string_view inputType)
{
    s.build.buildError = 1;
    s.build.channels.closeAll();
    try {
        int row = 0;
        int page = 1;
        LocateEntry(slot, row, page);
        ui.showView(ViewOfPageNumber(page + 1, View::Page1)); // the port hides the other views
        ui.selectRow(page, row);
        const std::string type = model::ToUpper(inputType);
        ui.message(type + " is not a valid input type.\r\rPlease remove the " + type + " from the list", "ERROR",
                   Icon::Critical);
    } catch (const std::exception& e) {
        ui.message(e.what(), "FATAL ERROR", Icon::Critical);
        s.build.channels.closeAll();
    }
}

void FixLineBreaks(std::string& text)
{
    // Taking out the first pair and starting again from the front ends where
    // a single walk that cancels each LF against a CR just before it ends.
    std::string out;
    out.reserve(text.size());
    size_t start = 0;
    for (size_t lf = text.find('\n'); lf != std::string::npos; lf = text.find('\n', start)) {
        out.append(text, start, lf - start);
        if (!out.empty() && out.back() == '\r')
            out.pop_back();
        else
            out += '\n';
        start = lf + 1;
    }
    out.append(text, start, std::string::npos);
    text = std::move(out);
}

void RewriteAttribute(Session& s, std::string_view key, std::string_view value, std::string& text)
{
    const std::string scratch = platform::JoinPath(s.DataFolder, "\\temp11.txt");
    const std::string rewritten = platform::JoinPath(s.DataFolder, "\\temp.txt");
    const std::string upperKey = model::ToUpper(key);
    try {
        write::LineWriter& ch3 = s.build.channels[3];
        ch3.close();
        if (!ch3.open(scratch))
            throw std::runtime_error("cannot open " + scratch);
        const bool ended = text.size() >= 2 && text.compare(text.size() - 2, 2, "\r\n") == 0;
        ch3.piece(text);
        if (!ended)
            ch3.piece("\r\n");
        const bool good = ch3.good();
        ch3.close();
        if (!good)
            throw std::runtime_error("cannot write " + scratch);

        const std::string bytes = store::ReadWholeFile(scratch).value_or(std::string());
        write::LineWriter& ch2 = s.build.channels[2];
        ch2.close();
        if (!ch2.open(rewritten))
            throw std::runtime_error("cannot open " + rewritten);
        std::string result;
        for (const std::string& line : store::SplitFileLines(bytes)) {
            std::string out = line;
            const size_t pos = model::ToUpper(line).find(upperKey);
            if (pos != std::string::npos)
                out = line.substr(pos, upperKey.size()) + "=" + std::string(value) + "]";
            ch2.line(out);
            result += out + "\r\n";
        }
        const bool good2 = ch2.good();
        ch2.close();
        if (!good2)
            throw std::runtime_error("cannot write " + rewritten);
        std::filesystem::copy_file(rewritten, scratch, std::filesystem::copy_options::overwrite_existing);
        text = std::move(result);
        s.build.buildError = 0;
    } catch (const std::exception&) {
        s.build.channels[2].close();
        s.build.channels[3].close();
        s.build.buildError = 1;
    }
}

bool KeepPairTogether(model::EntryStore& store, int page, int row)
{
    return model::FollowPartnerNumber(store, page, row);
}

bool IsConditionType(std::string_view inputType)
{
    return model::EqualsNoCase(inputType.substr(0, 9), "CONDITION");
}

bool IsFollowupType(std::string_view inputType)
{
    return model::EqualsNoCase(inputType.substr(0, 8), "FOLLOWUP");
}

bool IsDownloadKey(std::string_view key)
{
    return model::EqualsNoCase(key.substr(0, 5), "DOWNL");
}

bool IsConditionKey(std::string_view key)
{
    return model::EqualsNoCase(key.substr(0, 5), "CONDI");
}

} // namespace tq::compose
