// SPDX-License-Identifier: GPL-3.0-or-later
// The edit page's help texts, its commit and its two ways out.
#include "compose/setup_checks.h"
#include "model/text_ops.h"
#include "session.h"
#include "shell/edit_page.h"
#include "shell/quiet_port.h"

namespace tq::shell {

namespace {

using model::EqualsNoCase;

constexpr size_t kHelpWrap = 60;

/// Wraps one paragraph on word boundaries into CR-separated lines.
std::string Wrap(std::string_view text, size_t width)
{
    std::string out;
    std::string line;
    size_t i = 0;
    while (i < text.size()) {
        size_t end = text.find(' ', i);
        if (end == std::string_view::npos)
            end = text.size();
        const std::string_view word = text.substr(i, end - i);
        if (!line.empty() && line.size() + 1 + word.size() > width) {
            out += line + "\r";
            line.clear();
        }
        if (!word.empty()) {
            if (!line.empty())
                line += ' ';
            line += word;
        }
        i = end + 1;
    }
    out += line;
    return out;
}

/// The help line cut at each backslash-n, each piece wrapped.
std::string WrapHelp(std::string_view help)
{
    std::string out;
    size_t start = 0;
    for (;;) {
        size_t cut = model::FindNoCase(help, "\\n", start);
        const std::string_view piece = help.substr(start, cut == std::string_view::npos ? cut : cut - start);
        out += Wrap(piece, kHelpWrap);
        if (cut == std::string_view::npos)
            break;
        out += "\r";
        start = cut + 2;
    }
    return out;
}

void CopySetupValues(Session& s, const EditState& st)
{
    auto& settings = s.settings;
    for (const auto& f : st.fields) {
        const std::string k = UpperKey(f.Key);
        const std::string v(model::Trim(f.Value));
        const bool yes = EqualsNoCase(v, "YES");
        if (k == "EMAIL #1")
            settings.Email1 = v;
        else if (k == "BACKGROUND IMAGE PATH")
            settings.BackgroundImagePath = v;
        else if (k == "INCLUDE FRAME WITH FORM")
            settings.FrameOff = yes && s.store.state.ProjectMode == model::Mode::Form ? 0 : 1;
        else if (k == "FRAME BORDER COLOR")
            settings.FrameBorderColor = v;
        else if (k == "FRAME COLOR")
            settings.FrameColor = v;
        else if (k == "TOTAL FRAMES")
            settings.TotalFrames = v;
        else if (k == "NUMBER EACH QUESTION")
            settings.NumberEachQuestion = yes ? 1 : 0;
        else if (k == "SHOW TOOL TIPS")
            settings.ShowToolTips = yes ? 1 : 0;
    }
}

void BackToCreatePage(UiPort& ui, const EditState& st)
{
    ui.showView(static_cast<View>(static_cast<int>(View::Page1) + st.EditPage - 1));
    ui.selectRow(st.EditPage, st.EditRow);
    ui.entriesChanged();
}

} // namespace

std::string FieldHelpMessage(const EditField& field)
{
    std::string head;
    if (field.Kind == FieldKind::ColorField)
        head = "Click on the Change Color Button to change the color.";
    else if (field.Kind == FieldKind::TextField)
        head = "Click on the Edit Button to make changes.";
    else
        head = "Use the Pull Down Menu to make your changes";
    const std::string& help = field.HelpText;
    const size_t mark = help.find(" -");
    std::string body;
    if (mark == std::string::npos) {
        body = WrapHelp(help);
    } else {
        std::string rest = help.substr(mark + 2);
        body = "---> " + help.substr(0, mark) + " <---\r" + WrapHelp(model::LTrim(rest));
    }
    return head + "\r\r" + body;
}

void ShowFieldHelp(UiPort& ui, const EditField& field)
{
    ui.message(FieldHelpMessage(field), "HELP", Icon::Exclamation);
}

std::string PageHelpMessage(std::string_view entryName)
{
    std::string text;
    if (EqualsNoCase(model::Trim(entryName), "SETUP"))
        text = "In this Setup Screen, you have the option to change all of the colors and the alignment to a global "
               "settings by left mouse clicking on CHANGE COLOR below GLOBAL ALIGN and GLOBAL TEXT COLOR\r"
               "The default is not enabled\r"
               "If you turned it on, you can disable each one by right mouse clicking on the CHANGE COLOR and it "
               "will disable it\r";
    return text + "Click on the GREEN HELP BUTTON to get help on each individual attribute\r"
                  "The EDIT BUTTON allows you to change each individual attribute\r"
                  "If there's no EDIT BUTTON then use the DROP DOWN MENU located below where the EDIT BUTTON would "
                  "normally be";
}

void ShowPageHelp(UiPort& ui, const EditState& st)
{
    ui.message(PageHelpMessage(st.EntryName), "HELP", Icon::Information);
}

std::string ComposeEditText(const EditState& st)
{
    std::string text;
    for (const auto& f : st.fields) {
        // the rows end at the first one without a key
        if (model::Trim(f.Key).empty())
            break;
        const size_t eq = f.ItemText.find('=');
        const std::string item = eq == std::string::npos
                                     ? f.ItemText
                                     : f.ItemText.substr(0, eq + 1) + std::string(model::Trim(f.Value)) + "]";
        text += item + "\r\n" + f.HelpLine + "\r\n\r\n";
    }
    return text;
}

int CheckEditRows(Session& s, UiPort& ui, EditState& st, bool keepValues)
{
    st.failedRow = -1;
    for (auto& f : st.fields)
        f.failed = false;
    for (size_t i = 0; i < st.fields.size(); ++i) {
        EditField& f = st.fields[i];
        if (model::Trim(f.Key).empty())
            break;
        if (!f.visible || s.store.state.QuickPreviewActive)
            continue;
        std::string value(model::Trim(f.Value));
        int err = 0;
        compose::CheckAttribute(s, ui, f.Key, value, err);
        if (keepValues)
            f.Value = value; // two e-mail tests put "none" into the row
        if (err != 0) {
            f.failed = true;
            st.failedRow = static_cast<int>(i);
            return 1;
        }
    }
    return 0;
}

int CommitEditPage(Session& s, UiPort& ui, EditState& st, bool dryRun)
{
    if (dryRun) {
        QuietPort quiet;
        return CheckEditRows(s, quiet, st, false);
    }
    if (CheckEditRows(s, ui, st, true) != 0)
        return 1;
    if (EqualsNoCase(model::Trim(st.EntryName), "SETUP"))
        CopySetupValues(s, st);
    // stored as the rows make it: the normaliser would rebuild the groups
    s.store.pages.at(static_cast<size_t>(st.EditPage - 1)).at(static_cast<size_t>(st.EditRow)).AttributeText =
        ComposeEditText(st);
    return 0;
}

bool ExitEditPage(Session& s, UiPort& ui, EditState& st)
{
    auto& state = s.store.state;
    state.commitMode = model::CommitMode::Exit;
    const int err = CommitEditPage(s, ui, st);
    state.commitMode = model::CommitMode::Plain;
    if (err != 0)
        return false;
    for (auto& page : s.store.pages)
        for (auto& e : page)
            e.highlight = model::Highlight::None;
    s.store.pages.at(static_cast<size_t>(st.EditPage - 1)).at(static_cast<size_t>(st.EditRow)).highlight =
        model::Highlight::Green;
    BackToCreatePage(ui, st);
    return true;
}

bool AbortEditPage(Session& s, UiPort& ui, EditState& st)
{
    if (CommitEditPage(s, ui, st, true) != 0) {
        const std::string mode(model::ModeText(s.store.state.ProjectMode));
        if (ui.ask("THERE ARE ERRORS ON THE EDIT PAGE\rYOUR " + mode +
                       " WILL NOT BUILD CORRECTLY\r\rARE YOU SURE YOU WANT TO ABORT?",
                   "ABORT", Buttons::YesNo, Icon::Question, 2) != Answer::Yes)
            return false;
    }
    auto& entry = s.store.pages.at(static_cast<size_t>(st.EditPage - 1)).at(static_cast<size_t>(st.EditRow));
    entry.highlight = model::Highlight::None;
    BackToCreatePage(ui, st);
    return true;
}

} // namespace tq::shell
