// SPDX-License-Identifier: GPL-3.0-or-later
// The Setup page's sorts, find buttons, clipboard and Help texts.
#include "model/text_ops.h"
#include "store/setup_store.h"
#include "store/text_file.h"

#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace tq::store {

namespace {

constexpr int kSetupMax = kSetupRows;

/// The leading number of a text, as the Order command reads it: "12abc" is
/// 12, "2.5" is 2.5, a text with no leading number is 0.
double LeadingNumber(std::string_view text)
{
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    size_t start = i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    bool digits = false;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
        ++i;
        digits = true;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
            ++i;
            digits = true;
        }
    }
    if (!digits)
        return 0;
    return std::strtod(std::string(text.substr(start, i - start)).c_str(), nullptr);
}

/// Splits a joined row text at its first three ";": a field holding a ";" of
/// its own is split apart too, as it always was.
SetupRow SplitRowText(const std::string& text)
{
    SetupRow r;
    std::string* fields[] = {&r.MenuName, &r.WebServerPath, &r.WebFolderPath, &r.EmailAddress};
    size_t start = 0;
    for (int f = 0; f < 3; ++f) {
        size_t semi = text.find(';', start);
        if (semi == std::string::npos) {
            *fields[f] = text.substr(start);
            return r;
        }
        *fields[f] = text.substr(start, semi - start);
        start = semi + 1;
    }
    *fields[3] = text.substr(start);
    return r;
}

const char* KindWord(ToolKind kind)
{
    switch (kind) {
    case ToolKind::WebEditor:
        return "WEB EDITOR";
    case ToolKind::FtpProgram:
        return "FTP PROGRAM";
    case ToolKind::Browser:
        return "BROWSER";
    }
    return "";
}

} // namespace

void SortSetupByName(SetupStore& setup, UiPort& ui, bool descending)
{
    if (ui.ask("Do you want to reorder your entries based on the Menu Names below?", "REORDER ENTRIES", Buttons::YesNo,
               Icon::Question, 1) != Answer::Yes)
        return;
    std::vector<std::string> texts;
    for (const SetupRow& r : setup.rows)
        texts.push_back(r.MenuName + ";" + r.WebServerPath + ";" + r.WebFolderPath + ";" + r.EmailAddress);
    // an exchange sort on the whole text: equal names order by the other fields
    for (size_t i = 0; i < texts.size(); ++i)
        for (size_t j = i + 1; j < texts.size(); ++j) {
            const std::string a = model::ToLower(texts[i]);
            const std::string b = model::ToLower(texts[j]);
            if (descending ? a < b : a > b)
                std::swap(texts[i], texts[j]);
        }
    std::vector<SetupRow> used;
    std::vector<SetupRow> unused;
    for (const std::string& t : texts)
        (t.compare(0, 1, ";") == 0 ? unused : used).push_back(SplitRowText(t));
    used.insert(used.end(), unused.begin(), unused.end());
    int changed = 0;
    for (size_t n = 0; n < setup.rows.size(); ++n) {
        SetupRow& r = setup.rows[n];
        if (r.MenuName != used[n].MenuName)
            ++changed;
        r.MenuName = used[n].MenuName;
        r.WebServerPath = used[n].WebServerPath;
        r.WebFolderPath = used[n].WebFolderPath;
        r.EmailAddress = used[n].EmailAddress;
    }
    if (changed == 0)
        ui.message("The list does not require any changes.", "NO CHANGES NEEDED", Icon::Information);
    else
        ui.message("The Order has been updated.\rTotal entries sorted were " + std::to_string(changed) +
                       "\rBe sure to select File and Save as Default to keep these changes",
                   "ORDER UPDATED", Icon::Information);
}

void SortSetupByNumber(SetupStore& setup, UiPort& ui, model::Mode mode)
{
    if (ui.ask("Do you want to reorder your entries based on the reference numbers below?", "REORDER ENTRIES",
               Buttons::YesNo, Icon::Question, 1) != Answer::Yes)
        return;
    std::vector<double> numbers;
    for (SetupRow& r : setup.rows) {
        double n = LeadingNumber(model::Trim(r.OrderNumber));
        if (n > kSetupMax) {
            r.OrderNumber = std::to_string(kSetupMax);
            n = kSetupMax;
        }
        if (n == 0) {
            ui.message("Order number must be greater then 0 and contain a number from 1 to " +
                           std::to_string(kSetupMax),
                       "ORDER ERROR", Icon::Critical);
            return;
        }
        numbers.push_back(n);
    }
    std::vector<SetupRow> list;
    for (int k = 1; k <= kSetupMax; ++k)
        for (size_t n = 0; n < setup.rows.size(); ++n)
            if (numbers[n] == k)
                list.push_back(setup.rows[n]);
    bool changed = false;
    for (size_t j = 0; j < setup.rows.size(); ++j) {
        SetupRow next = j < list.size() ? list[j] : SetupRow{};
        next.OrderNumber = std::to_string(j + 1);
        if (next.MenuName != setup.rows[j].MenuName)
            changed = true;
        setup.rows[j] = next;
    }
    if (!changed) {
        ui.message("The " + model::ToProperCase(model::ModeText(mode)) +
                       " is already in sequential order and does not need to be sorted.\r\rTo change the Order, "
                       "change the numbers below the Order button.",
                   "NO CHANGES NEEDED", Icon::Information);
    } else {
        ui.message("The Order has been updated", "ORDER UPDATED", Icon::Information);
    }
}

void FindToolPath(SetupStore& setup, UiPort& ui, ToolKind kind, bool wow64)
{
    const std::string word = KindWord(kind);
    FileDialogOptions options;
    options.title = word;
    // this platform has no 32-bit program folder: the programs live in one place
    options.initialFolder = wow64 ? "/usr/bin" : "/usr/bin";
    options.filter = "Default Files (*.exe) | *.exe";
    auto chosen = ui.openFileDialog(options);
    if (!chosen || chosen->empty()) {
        ui.message("ABORTED...", "ABORTED", Icon::Exclamation);
        return;
    }
    ui.message("YOUR " + word + " WILL BE\r" + *chosen + " SELECTED", word, Icon::Information);
    switch (kind) {
    case ToolKind::WebEditor:
        setup.WebEditorPath = *chosen;
        break;
    case ToolKind::FtpProgram:
        setup.FTPProgramPath = *chosen;
        break;
    case ToolKind::Browser:
        setup.BrowserPath = *chosen;
        break;
    }
}

void CopyFieldToClipboard(UiPort& ui, std::string_view text)
{
    ui.setClipboard(text);
    // "clipbaord" is spelled so
    ui.message(std::string(text) + "\r\rhas been placed on the clipbaord", "DONE", Icon::Information);
}

std::string SetupHelpText(std::string_view command)
{
    if (command == "Clipboard1")
        return "To put the entire path of any of the selections below on the CLIPBOARD for\rLEFT MOUSE CLICK inside "
               "the text box and then RIGHT MOUSE CLICK and SELECT ALL\rYou can then go to the EDIT PAGE and press "
               "CNTRL V and paste your selection there";
    if (command == "MenuName")
        return "Enter a short Menu Name for each of your web sites. The name appears in the View-Website and "
               "Web-Editor menus";
    if (command == "WebServerPath")
        return "Enter the full address of the page that the browser opens when previewing your Website";
    if (command == "WebFolderPath")
        return "Enter the full path of the folder on your Hard Drive that holds the files of your web site";
    if (command == "WebEditorPath")
        return "Enter your favorite Web Editor full path";
    if (command == "FTPProgramPath")
        return "Enter your favorite FTP Program full path";
    if (command == "DefaultPathBrowser")
        return "Enter your favorite Web Browser full path, such as Internet Explorer or Firefox";
    if (command == "EmailAdrress")
        return "Enter your favorite Email Address for each of your web sites that you want to use";
    return std::string();
}

void ShowSetupHelp(UiPort& ui, std::string_view command)
{
    const std::string text = SetupHelpText(command);
    if (!text.empty())
        ui.message(text, "HELP", Icon::Information);
}

} // namespace tq::store
