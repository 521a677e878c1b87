// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/edit_page.h"

#include "compose/setup_checks.h"
#include "model/attribute_text.h"
#include "model/internal_error.h"
#include "model/new_project.h"
#include "model/text_ops.h"
#include "session.h"
#include "shell/quiet_port.h"

#include <algorithm>
#include <initializer_list>

namespace tq::shell {

namespace {

using model::EqualsNoCase;
using model::StartsWithNoCase;
using model::ToUpper;

bool IsOneOf(std::string_view upperKey, std::initializer_list<std::string_view> keys)
{
    return std::find(keys.begin(), keys.end(), upperKey) != keys.end();
}

/// Lines of a text: CR LF, a lone LF or a lone CR end a line.
std::vector<std::string> TextLines(std::string_view text)
{
    std::vector<std::string> lines;
    std::string cur;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            lines.push_back(std::move(cur));
            cur.clear();
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            cur += c;
        }
    }
    if (!cur.empty())
        lines.push_back(std::move(cur));
    return lines;
}

int FindRow(const EditState& st, std::string_view upperKey)
{
    for (size_t i = 0; i < st.fields.size(); ++i)
        if (UpperKey(st.fields[i].Key) == upperKey)
            return static_cast<int>(i);
    return -1;
}

void ShowFrameRows(EditState& st, bool show)
{
    for (auto& f : st.fields)
        if (IsFrameRow(f.Key))
            f.visible = show;
}

} // namespace

std::string UpperKey(std::string_view key)
{
    return ToUpper(model::Trim(key));
}

FieldKind KindOfKey(std::string_view key)
{
    const std::string k = UpperKey(key);
    if (IsOneOf(k, {"TOTAL FRAMES", "TITLE SHADE WIDTH", "SHADE WIDTH", "COMMENTS WIDTH", "NEW LINE", "TITLE SIZE",
                    "LINE SIZE", "LINE WIDTH", "WIDTH", "COMMENTS HEIGHT", "FOLLOWUP WIDTH", "FOLLOWUP HEIGHT",
                    "PICTURE HEIGHT", "PICTURE WIDTH", "VIDEO WIDTH", "VIDEO HEIGHT"}))
        return FieldKind::NumberList;
    if (IsOneOf(k, {"ALIGN", "PICTURE ALIGN", "SUBMIT ALIGN", "GLOBAL ALIGN"}))
        return FieldKind::AlignList;
    if (k == "LOOP")
        return FieldKind::LoopList;
    if (IsOneOf(k, {"ITALICS", "BOLD", "AUTOSTART"}))
        return FieldKind::OnOffList;
    if (IsOneOf(k, {"SHOW FILE LABELS", "NUMBER EACH QUESTION", "SHOW TOOL TIPS", "INCLUDE FRAME WITH FORM", "REQUIRED",
                    "VISIBLE DOWNLOAD", "REQUIRED TABLE"}))
        return FieldKind::YesNoList;
    if (IsOneOf(k, {"GLOBAL TEXT COLOR", "FRAME COLOR", "FRAME BORDER COLOR", "SUBMIT BUTTON COLOR", "BACKGROUND COLOR",
                    "SHADE COLOR", "TEXT COLOR", "DEFAULT COLOR", "LINE COLOR", "CHOICES BACK COLOR",
                    "RESPONSE TEXT COLOR", "ANSWER BACK COLOR"}))
        return FieldKind::ColorField;
    return FieldKind::TextField;
}

std::vector<std::string> PullDownItems(const EditField& field)
{
    const std::string k = UpperKey(field.Key);
    std::vector<std::string> items;
    switch (field.Kind) {
    case FieldKind::NumberList: {
        const bool percent = IsOneOf(k, {"TITLE SHADE WIDTH", "LINE WIDTH", "SHADE WIDTH"});
        items.reserve(1000);
        for (int i = 1; i <= 1000; ++i)
            items.push_back(std::to_string(i) + (percent ? "%" : ""));
        break;
    }
    case FieldKind::AlignList:
        items = {"LEFT", "RIGHT", "CENTER"};
        if (k == "GLOBAL ALIGN")
            items.push_back("NONE");
        break;
    case FieldKind::LoopList:
        for (int i = 1; i <= 50; ++i)
            items.push_back(std::to_string(i));
        items.push_back("infinite");
        break;
    case FieldKind::OnOffList:
        items = {"on", "off"};
        if (k == "AUTOSTART")
            items.push_back("mouseover");
        break;
    case FieldKind::YesNoList:
        items = {"YES", "NO"};
        break;
    default:
        break;
    }
    return items;
}

std::vector<EditField> ReadEditFields(std::string_view text)
{
    const std::vector<std::string> lines = TextLines(text);
    auto lineAt = [&](size_t i) { return i < lines.size() ? lines[i] : std::string(); };
    std::vector<EditField> fields;
    for (size_t i = 0;; i += 3) {
        const std::string item = lineAt(i);
        const std::string help = lineAt(i + 1);
        if (item.empty() && help.empty())
            break;
        if (static_cast<int>(fields.size()) >= kMaxEditFields)
            throw model::InternalError("internal error: the edit page holds at most " + std::to_string(kMaxEditFields) +
                                       " rows");
        EditField f;
        f.ItemText = item;
        f.HelpLine = help;
        const size_t open = item.find('[');
        const size_t eq = item.find('=');
        if (eq != std::string::npos) {
            const size_t from = open == std::string::npos || open > eq ? 0 : open + 1;
            f.Key = item.substr(from, eq - from);
            // the value stops before the line's last character, the "]"
            f.Value = eq + 1 < item.size() ? item.substr(eq + 1, item.size() - eq - 2) : std::string();
        }
        f.HelpText = f.Key + " - " + f.HelpLine;
        f.Kind = KindOfKey(f.Key);
        if (f.Kind == FieldKind::AlignList && StartsWithNoCase(model::LTrim(help), "[CHOICES")) {
            QuietPort quiet;
            std::string copy = help;
            model::ChoiceList list;
            int err = 0;
            model::TakeChoiceList(quiet, "CHOICES", copy, list, err);
            if (err == 0)
                f.helpChoices = list.items;
        }
        fields.push_back(std::move(f));
    }
    return fields;
}

bool IsFrameRow(std::string_view key)
{
    const std::string k = UpperKey(key);
    return k == "FRAME BORDER COLOR" || k == "FRAME COLOR" || k == "TOTAL FRAMES";
}

void ApplySetupVisibility(EditState& st, model::Mode mode)
{
    for (auto& f : st.fields)
        f.visible = true;
    if (!EqualsNoCase(model::Trim(st.EntryName), "SETUP"))
        return;
    const int frameRow = FindRow(st, "INCLUDE FRAME WITH FORM");
    if (frameRow < 0)
        return;
    if (mode == model::Mode::Survey) {
        for (size_t i = static_cast<size_t>(frameRow); i < st.fields.size(); ++i)
            st.fields[i].visible = false;
    } else if (EqualsNoCase(model::Trim(st.fields[static_cast<size_t>(frameRow)].Value), "NO")) {
        ShowFrameRows(st, false);
    }
}

EditState OpenEditPage(Session& s, UiPort& ui, int page, int row)
{
    auto& entry = s.store.pages.at(static_cast<size_t>(page - 1)).at(static_cast<size_t>(row));
    EditState st;
    st.EntryName = entry.InputTypeName;
    st.TextAtOpen = entry.AttributeText;
    st.EditPage = page;
    st.EditRow = row;
    st.fields = ReadEditFields(st.TextAtOpen);
    st.Caption = "Make your changes for " + st.EntryName + " and then select Exit";
    ApplySetupVisibility(st, s.store.state.ProjectMode);
    s.store.state.EditPage = page;
    s.store.state.EditRow = row;
    entry.highlight = model::Highlight::Red;
    ui.showView(View::EditPage);
    return st;
}

void SetPullDownValue(Session& s, UiPort& ui, EditState& st, int row, std::string_view text)
{
    st.fields.at(static_cast<size_t>(row)).Value = std::string(text);
    ApplyToggle(s, ui, st, row);
}

void ApplyToggle(Session& s, UiPort& ui, EditState& st, int row)
{
    const EditField& f = st.fields.at(static_cast<size_t>(row));
    const std::string k = UpperKey(f.Key);
    const bool yes = EqualsNoCase(model::Trim(f.Value), "YES");
    auto& settings = s.settings;
    if (k == "INCLUDE FRAME WITH FORM" && s.store.state.ProjectMode == model::Mode::Form) {
        if (yes) {
            // the warning of the mode switch: the colours of the rows are not changed here
            ui.message(model::kFrameSwitchWarning, "ABORTED", Icon::Information);
            settings.FrameOff = 0;
        } else {
            settings.FrameOff = 1;
        }
        ShowFrameRows(st, yes);
    } else if (k == "SHOW TOOL TIPS") {
        settings.ShowToolTips = yes ? 1 : 0;
    } else if (k == "NUMBER EACH QUESTION") {
        settings.NumberEachQuestion = yes ? 1 : 0;
    }
}

long FieldColor(const EditField& field)
{
    const std::string_view v = model::Trim(field.Value);
    if (v.empty() || EqualsNoCase(v, "NONE") ||
        !std::all_of(v.begin(), v.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return 16777215;
    return static_cast<long>(std::clamp<long long>(model::ValLong(v), 0, 16777215));
}

bool ChangeColor(Session& s, UiPort& ui, EditState& st, int row)
{
    EditField& f = st.fields.at(static_cast<size_t>(row));
    const std::optional<long> chosen = ui.chooseColor(FieldColor(f), "COLORS");
    if (!chosen)
        return false;
    f.Value = std::to_string(*chosen);
    // later Entries start with the chosen colour
    auto& settings = s.settings;
    const std::string k = UpperKey(f.Key);
    if (k == "FRAME BORDER COLOR")
        settings.FrameBorderColor = f.Value;
    else if (k == "FRAME COLOR")
        settings.FrameColor = f.Value;
    else if (k == "GLOBAL TEXT COLOR")
        settings.GlobalTextColor = f.Value;
    else if (k == "BACKGROUND COLOR")
        settings.BackgroundColor = f.Value;
    else if (k == "TEXT COLOR")
        settings.TextColor = f.Value;
    else if (k == "SHADE COLOR")
        settings.ShadeColor = f.Value;
    return true;
}

void ClearGlobalTextColor(Session& s, UiPort& ui, EditState& st, int row)
{
    EditField& f = st.fields.at(static_cast<size_t>(row));
    if (UpperKey(f.Key) != "GLOBAL TEXT COLOR")
        return;
    const std::string mode(model::ModeText(s.store.state.ProjectMode));
    if (EqualsNoCase(model::Trim(f.Value), "NONE")) {
        ui.message("The Global Text Color is already set to NONE\r\rThis means that all of the Text Colors in your "
                   "entire " +
                       mode +
                       " will default to their individual Text Colors that you set and will not be effected by this "
                       "global Text Color\r\rTo replace all of your Text Colors on your " +
                       mode + ", click on the Change Color button",
                   "SET", Icon::Information);
        return;
    }
    if (ui.ask("Do you want to set the Global Text Color to NONE?", "CHANGE GLOBAL TEXT COLOR", Buttons::YesNo,
               Icon::Question, 1) == Answer::Yes) {
        f.Value = "NONE";
        s.settings.GlobalTextColor = "NONE";
        ui.message("Done..", "COMPLETE", Icon::Information);
    } else {
        ui.message("Aborted...", "ABORTED", Icon::Information);
    }
}

EditAction EditTextField(Session& s, UiPort& ui, EditState& st, int row)
{
    EditField& f = st.fields.at(static_cast<size_t>(row));
    const std::string k = UpperKey(f.Key);
    const std::string mode(model::ModeText(s.store.state.ProjectMode));
    if (k == "COMPLETED") {
        // the thank-you page is a file of the web folder: its name is the value
        FileDialogOptions options;
        options.title = "COMPLETED";
        options.initialFolder = s.build.setupValues.WebFolder;
        options.filter = "HTML Files (*.htm) | *.htm";
        const auto chosen = ui.openFileDialog(options);
        if (!chosen || chosen->empty()) {
            ui.message("ABORTED...", "ABORTED", Icon::Information);
            return EditAction::Done;
        }
        const size_t cut = chosen->find_last_of("/\\");
        const std::string name = cut == std::string::npos ? *chosen : chosen->substr(cut + 1);
        ui.message("YOUR COMPLETED FILE WILL BE\r" + name + " SELECTED", "COMPLETED", Icon::Information);
        f.Value = name;
        return EditAction::Done;
    }
    if ((k == "BACKGROUND IMAGE PATH" || k == "PICTURE") && !f.Value.empty() && f.Value.front() == ';')
        ui.message("This is a example of how you insert a image\r\rThe semi colon (;) means that it's commented "
                   "out.\r\rIf you wish to add an image to the background of your " +
                       mode + " then remove the semi colon and replace the link with your own image",
                   "BACKGROUND IMAGE HELP", Icon::Information);
    if (k == "DRIVE FOLDER PATH") {
        const auto folder = ui.browseForFolder(
            "Please select a DRIVE FOLDER PATH where the output files created by Tarnquill will be stored", f.Value);
        if (folder && !folder->empty())
            f.Value = *folder;
        return EditAction::Done;
    }
    return EditAction::OpenEditWindow;
}

bool IsPlainValueKey(std::string_view key)
{
    const std::string k = UpperKey(key);
    return k == "USERNAME" || k == "PASSWORD" || StartsWithNoCase(k, "DEFAULT") || StartsWithNoCase(k, "EMAIL #") ||
           k == "LINK TO" || StartsWithNoCase(k, "SERVER") || k == "THANK YOU FILE" || k == "FROM" ||
           k == "TQL OUTPUT FILE" || k == "ERROR MESSAGE" || k == "BLANK ERROR" || k == "INSTRUCTIONS" ||
           k == "PHONE # DEFAULT VALUE";
}

std::string ValueToWindow(std::string_view key, std::string_view value)
{
    std::string out;
    const bool plain = IsPlainValueKey(key);
    for (size_t i = 0; i < value.size();) {
        if (value[i] == '\\' && i + 1 < value.size() && (value[i + 1] == 'n' || value[i + 1] == 'N')) {
            out += "\r\n";
            i += 2;
        } else if (!plain && StartsWithNoCase(value.substr(i), "&nbsp;")) {
            out += "  ";
            i += 6;
        } else {
            out += value[i++];
        }
    }
    return out;
}

std::string WindowToValue(std::string_view key, std::string_view text)
{
    if (EqualsNoCase(text, "NONE"))
        return std::string(text);
    // written out and read back: every line ends in CR LF, the last one too
    std::string t;
    for (const std::string& line : TextLines(text))
        t += line + "\r\n";
    if (text.empty())
        t = "\r\n";
    if (t.size() >= 5) {
        std::string v;
        for (size_t i = 0; i < t.size(); ++i) {
            if (t[i] == '\r') {
                v += "\\n";
                if (i + 1 < t.size() && t[i + 1] == '\n')
                    ++i;
            } else {
                v += t[i];
            }
        }
        t = std::move(v);
    } else {
        // too short for the line-break step: a CR LF left here would split the item
        t.erase(std::remove_if(t.begin(), t.end(), [](char c) { return c == '\r' || c == '\n'; }), t.end());
    }
    while (t.size() >= 3 && t.compare(t.size() - 2, 2, "\\n") == 0)
        t.erase(t.size() - 2);
    if (IsPlainValueKey(key))
        return t;
    std::string out;
    for (size_t i = 0; i < t.size(); ++i) {
        if (t[i] == '\t') {
            out += "&nbsp;";
        } else if (t[i] == ' ' && i + 1 < t.size() && t[i + 1] == ' ') {
            out += "&nbsp;";
            ++i;
        } else {
            out += t[i];
        }
    }
    return out;
}

} // namespace tq::shell
