// SPDX-License-Identifier: GPL-3.0-or-later
// The page commands that change one attribute on many rows at once.
#include "shell/batch_commands.h"

#include "compose/validation.h"
#include "model/text_ops.h"
#include "session.h"

namespace tq::shell {

namespace {

bool IsTable(const model::Entry& e)
{
    return model::StartsWithNoCase(model::Trim(e.InputTypeName), "TABLE");
}

bool HasEntries(const Session& s)
{
    for (const auto& page : s.store.pages)
        for (const auto& e : page)
            if (!model::Trim(e.InputTypeName).empty() && !model::EqualsNoCase(model::Trim(e.InputTypeName), "SETUP"))
                return true;
    return false;
}

bool HasTable(const Session& s)
{
    for (const auto& page : s.store.pages)
        for (const auto& e : page)
            if (IsTable(e))
                return true;
    return false;
}

} // namespace

int RewriteOnAllRows(Session& s, std::string_view key, std::string_view value, bool tablesOnly)
{
    int changed = 0;
    for (auto& page : s.store.pages)
        for (auto& e : page) {
            if (model::Trim(e.InputTypeName).empty() || (tablesOnly && !IsTable(e)) ||
                model::FindNoCase(e.AttributeText, key) == std::string::npos)
                continue;
            std::string text = e.AttributeText;
            compose::RewriteAttribute(s, key, value, text);
            if (s.build.buildError != 0)
                return changed;
            e.AttributeText = std::move(text);
            ++changed;
        }
    return changed;
}

int SetAlignmentOnAll(Session& s, UiPort& ui, std::string_view key)
{
    if (!HasEntries(s)) {
        ui.message("You must add an entry to the list before you can make changes", "ERROR", Icon::Exclamation);
        return -1;
    }
    const std::string name = model::ToUpper(model::LTrim(key, "["));
    std::string value;
    for (;;) {
        const auto typed = ui.inputBox("Enter left, right or center", name, "center");
        if (!typed || model::Trim(*typed).empty())
            return -1;
        value = model::ToLower(model::Trim(*typed));
        if (value == "left" || value == "right" || value == "center")
            break;
        ui.message("Value must be left, right or center", "ERROR", Icon::Exclamation);
    }
    const int changed = RewriteOnAllRows(s, key, value, false);
    if (changed == 0 && s.build.buildError == 0)
        ui.message("None of the input types that have been added contain a " + name + "\r\r" + name + " NOT FOUND",
                   "NO CHANGES MADE", Icon::Information);
    ui.entriesChanged();
    return changed;
}

int SetTableColor(Session& s, UiPort& ui, bool foreground)
{
    if (!HasTable(s)) {
        ui.message("You must first add a table to the list before you can change the foreground and background "
                   "colors\r\rBe sure to add a table to the list before continuing",
                   "No table has been added to the list", Icon::Exclamation);
        return -1;
    }
    // both commands carry the foreground title
    constexpr std::string_view title = "CHOOSE A FOREGROUND COLOR";
    ui.message(foreground ? "Select the table Foreground color" : "Select the table Background color", title,
               Icon::Information);
    const auto color = ui.chooseColor(foreground ? 0 : 12632256, title);
    if (!color)
        return -1;
    const int changed =
        RewriteOnAllRows(s, foreground ? "[TEXT COLOR" : "[ANSWER BACK COLOR", std::to_string(*color), true);
    ui.entriesChanged();
    return changed;
}

void ShowDragDropHelp(UiPort& ui)
{
    ui.message("To insert a Input Type in the current form, highlight the Input you want to add from the list on the "
               "left and then hold the left mouse button and drag it into the Input Type column that you want to "
               "inserted into",
               "INSERTING INPUT TO THE FORM", Icon::Information);
}

} // namespace tq::shell
