// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/extraction.h"

#include "compose/globals.h"
#include "compose/setup_checks.h"
#include "compose/validation.h"
#include "model/attribute_text.h"
#include "model/input_types.h"
#include "model/text_ops.h"
#include "session.h"

namespace tq::compose {

namespace {

const char kSemicolonText[] = "CANNOT CONTAIN A SEMI-COLON (;)";
const char kBackslashText[] =
    "The path cannot contain a back slash (\\).\r\rPlease change the back slash to a forward slash (/)";

/// The reads of one Entry: each step returns false once `buildError` is 1, so
/// that a row is a chain of steps joined by &&.
struct Reader
{
    Session& s;
    UiPort& ui;
    std::string& text;
    write::WorkingValues& v;

    bool key(std::string_view k, std::string& out) { return TakeKey(s, ui, text, k, out); }
    bool info() { return TakeEndMark(s, ui, text, "[INFO:"); }
    bool choices() { return TakeEndMark(s, ui, text, "[CHOICES"); }
    bool ki(std::string_view k, std::string& out) { return key(k, out) && info(); }
    bool kc(std::string_view k, std::string& out) { return key(k, out) && choices(); }

    bool color(std::string_view k, std::string& raw, std::string& hex)
    {
        if (!key(k, raw))
            return false;
        hex = model::ColorToHex(raw);
        return true;
    }

    /// An item read and dropped, only when the text starts with it.
    bool optional(std::string_view k)
    {
        if (!model::StartsWithNoCase(model::LTrim(text), k))
            return true;
        std::string dropped;
        return key(k, dropped);
    }

    bool list(std::string_view k, model::ChoiceList& out)
    {
        int err = 0;
        model::TakeChoiceList(ui, k, text, out, err);
        if (err != 0) {
            s.build.buildError = 1;
            return false;
        }
        return true;
    }

    /// The shade pair, read only when the text starts with it.
    bool shade()
    {
        if (!model::StartsWithNoCase(model::LTrim(text), "[SHADE WIDTH"))
            return true;
        if (!kc("[SHADE WIDTH", v.ShadeWidth))
            return false;
        if (!model::Contains(v.ShadeWidth, "%"))
            v.ShadeWidth = model::ColorToHex(v.ShadeWidth);
        if (!kc("[SHADE COLOR", v.ShadeColor))
            return false;
        v.ShadeColorHex = model::ColorToHex(v.ShadeColor);
        return true;
    }

    /// The default value of a type: NONE reads as empty; behind a list type's
    /// default a leading comma of the rest is dropped; `split` fills the
    /// default lines from a copy, so the value itself stays for the writers.
    bool defaultValue(std::string_view k, bool split, bool listType)
    {
        std::string value;
        if (!key(k, value))
            return false;
        if (model::EqualsNoCase(value, "NONE"))
            value.clear();
        if (listType && !text.empty() && text.front() == ',')
            text = std::string(model::LTrim(std::string_view(text).substr(1)));
        v.DefaultValue = value;
        if (split)
            v.DefaultLines = model::SplitLines(value);
        return true;
    }

    /// [ITALICS i, [BOLD i, then [TEXT COLOR with its colour copy.
    bool styles()
    {
        return ki("[ITALICS", v.Italics) && ki("[BOLD", v.Bold) && color("[TEXT COLOR", v.TextColor, v.TextColorHex);
    }

    bool fail(std::string_view message, std::string_view title, Icon icon)
    {
        ui.message(message, title, icon);
        s.build.buildError = 1;
        return false;
    }

    /// The path checks: a backslash always, a leading semi-colon unless the
    /// build is an Entry preview.
    bool checkBackslash(const std::string& value)
    {
        return !model::Contains(value, "\\") || fail(kBackslashText, "ERROR", Icon::Critical);
    }
    bool checkSemicolon(const std::string& value)
    {
        if (s.build.entryPreview || value.empty() || value.front() != ';')
            return true;
        return fail(value + "\r\r" + kSemicolonText, "ERROR", Icon::Exclamation);
    }

    bool checkLinkTo(std::string_view type)
    {
        if (s.build.entryPreview)
            return true;
        const std::string head = "INPUT TYPE -> " + model::ToUpper(type) + "\r FOR ->LINK TO\r";
        if (model::EqualsNoCase(v.LinkTo, "NONE"))
            return fail(head + "CANNOT BE SET TO " + model::ToUpper(v.LinkTo) +
                            "\r YOU MUST HAVE WEB PAGE LINK.\r\r"
                            "NOTE: THIS IS THE WEB PAGE THAT THE USER IS TAKEN TO WHEN HE CLICKS ON THE CANCEL BUTTON"
                            "\r\rExample: index.htm\r\rCLICK ON EDIT AND ADD A WEB LINK",
                        "CANCEL INPUT TYPE HAS AN ERROR", Icon::Exclamation);
        if (!model::Contains(v.LinkTo, "."))
            return fail(head + "DOES NOT HAVE A VALID URL WEB LINK. MISSING THE PERIOD\r\rExample: index.htm\r\r"
                               "CLICK ON EDIT AND CORRECT THE PROBLEM",
                        "CANCEL INPUT TYPE HAS AN ERROR", Icon::Exclamation);
        return true;
    }

    /// The download keys shared by both download types, up to [INSTRUCTIONS i.
    bool downloadKeys(std::string& visible)
    {
        model::ChoiceList files;
        std::string instructions;
        const bool ok = ki("[TITLE", v.Title) && ki("[TITLE SIZE", v.TitleSize) && kc("[ALIGN", v.ALIGN) &&
                        serverDownload() && list("[FILES", files) && info() &&
                        ki("[SHOW FILE LABELS", v.ShowFileLabels) && kc("[VISIBLE DOWNLOAD", visible) &&
                        ki("[THANK YOU FILE", v.ThankYouFile) && checkBackslash(v.ThankYouFile) &&
                        checkSemicolon(v.ThankYouFile) && ki("[INSTRUCTIONS", instructions);
        if (!ok)
            return false;
        if (files.count() > write::kDownloadFileSlots)
            throw model::InternalError("internal error: more than 50 download files");
        s.build.downloadFileCount = files.count();
        for (int i = 1; i <= files.count(); ++i)
            s.build.downloadFiles[static_cast<size_t>(i)] = files.at(i);
        s.build.homePage = v.ThankYouFile;
        const model::LineList lines = model::SplitLines(instructions);
        if (lines.count() > write::kDownloadTextSlots)
            throw model::InternalError("internal error: more than 150 download texts");
        s.build.downloadTextCount = lines.count();
        for (int i = 1; i <= lines.count(); ++i)
            s.build.downloadTexts[static_cast<size_t>(i)] = lines.at(i);
        return true;
    }

    bool serverDownload()
    {
        int err = 0;
        model::TakeAttribute(ui, "[SERVER DOWNLOAD", v.ServerDownload, text, err, &v.ServerFolderPath);
        if (err != 0) {
            s.build.buildError = 1;
            return false;
        }
        return info() && checkBackslash(v.ServerDownload) && checkSemicolon(v.ServerDownload);
    }
};

/// NAME, SUBJECT, the two phone types and EMAIL: one row with its default key.
bool ReadTextRow(Reader& r, std::string_view defaultKey, bool blankError)
{
    write::WorkingValues& v = r.v;
    return r.ki("[TITLE", v.Title) && (!blankError || r.ki("[BLANK ERROR", v.MSG2)) && r.ki("[ERROR MESSAGE", v.MSG) &&
           r.ki("[TITLE SIZE", v.TitleSize) && r.defaultValue(defaultKey, false, false) && r.info() &&
           r.kc("[ALIGN", v.ALIGN) && r.ki("[WIDTH", v.Width) && r.shade() && r.styles() && r.choices() &&
           r.ki("[REQUIRED", v.REQ);
}

/// USER NAME, PASSWORD and SECURITY CODE.
bool ReadLoginRow(Reader& r,
                  std::string_view defaultKey,
                  bool optionalDefault,
                  std::string_view secretKey,
                  std::string& secret,
                  bool shade)
{
    write::WorkingValues& v = r.v;
    return r.ki("[TITLE", v.Title) && r.ki("[BLANK ERROR", v.MSG2) && r.ki("[ERROR MESSAGE", v.MSG) &&
           r.ki("[TITLE SIZE", v.TitleSize) && r.defaultValue(defaultKey, true, false) && r.info() &&
           (!optionalDefault || r.optional("[DEFAULT VALUE")) && r.kc("[ALIGN", v.ALIGN) && r.ki(secretKey, secret) &&
           r.ki("[WIDTH", v.Width) && (!shade || r.shade()) && r.styles() && r.choices() && r.ki("[REQUIRED", v.REQ);
}

/// The three CONDITION types; `comment` is CONDITION WITH COMMENT.
bool ReadConditionRow(Reader& r, bool comment, bool split, std::string_view listKey)
{
    write::WorkingValues& v = r.v;
    const bool head = r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
                      r.defaultValue("[DEFAULT CONDITION", split, true) && r.choices() && r.list(listKey, v.Choices);
    if (!head)
        return false;
    if (comment)
        return r.info() && r.kc("[ALIGN", v.ALIGN) && r.shade() && r.styles() && r.choices() &&
               r.kc("[REQUIRED", v.REQ);
    return r.optional("[DEFAULT VALUE") && r.info() && r.kc("[ALIGN", v.ALIGN) && r.shade() && r.styles() &&
           r.choices() && r.ki("[REQUIRED", v.REQ);
}

/// Reads the keys of `recipe` in their order; false for a type without one.
bool ReadRow(Reader& r, model::Recipe recipe, std::string_view inputType)
{
    using model::Recipe;
    write::WorkingValues& v = r.v;
    switch (recipe) {
    case Recipe::Video:
        r.ki("[SERVER VIDEO PATH", v.ServerPath) && r.checkSemicolon(v.ServerPath) && r.kc("[ALIGN", v.VideoAlign) &&
            r.ki("[VIDEO WIDTH", v.VideoWidth) && r.ki("[VIDEO HEIGHT", v.VideoHeight) &&
            r.kc("[AUTOSTART", v.Autostart) && r.kc("[LOOP", v.Loop);
        break;
    case Recipe::Picture:
        if (r.ki("[SERVER PICTURE PATH", v.ServerPath) && r.checkBackslash(v.ServerPath) && r.kc("[ALIGN", v.ALIGN) &&
            r.ki("[PICTURE WIDTH", v.PictureWidth))
            r.ki("[PICTURE HEIGHT", v.PictureHeight);
        v.PictureAlign = v.ALIGN;
        break;
    case Recipe::BlankLine:
        r.key("[NEW LINE", v.NewLine);
        break;
    case Recipe::SurveyIntro:
        if (r.ki("[TITLE", v.Title)) {
            v.IntroLines = model::SplitLines(v.Title);
            r.ki("[TITLE SIZE", v.TitleSize) && r.kc("[ALIGN", v.ALIGN) && r.styles() && r.choices();
        }
        break;
    case Recipe::Table:
        r.ki("[COLCHOICE", v.ColChoice) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            r.list("ROW CHOICES", v.RowChoices) && r.info() && r.kc("[ALIGN", v.ALIGN) &&
            r.color("[CHOICES BACK COLOR", v.ChoicesBackColor, v.ChoicesBackColorHex) && r.choices() &&
            r.color("[TEXT COLOR", v.TableTextColor, v.TableTextColorHex) && r.choices() &&
            r.color("[ANSWER BACK COLOR", v.AnswerBackColor, v.AnswerBackColorHex) && r.choices() &&
            r.ki("[ITALICS", v.TableItalics) && r.ki("[BOLD", v.TableBold) && r.ki("[REQUIRED TABLE", v.RequiredTable);
        v.REQ = v.RequiredTable;
        break;
    case Recipe::TitleShade:
        r.ki("[TITLE", v.Title) && r.ki("[TITLE SIZE", v.TitleSize) && r.ki("[TITLE SHADE WIDTH", v.TitleShadeWidth) &&
            r.ki("[HEIGHT", v.Height) && r.kc("[ALIGN", v.ALIGN) && r.styles() && r.info();
        break;
    case Recipe::Title:
        r.ki("[TITLE", v.Title) && r.ki("[TITLE SIZE", v.TitleSize) && r.kc("[ALIGN", v.ALIGN) && r.styles() &&
            r.choices();
        break;
    case Recipe::NameSubject:
        ReadTextRow(r, "[DEFAULT NAME", false);
        break;
    case Recipe::Phone:
        ReadTextRow(r, "[PHONE # DEFAULT VALUE", false);
        break;
    case Recipe::Email:
        ReadTextRow(r, "[DEFAULT EMAIL ADDRESS", true);
        break;
    case Recipe::Checkbox:
        r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            r.defaultValue("[DEFAULT CHECK BOX", true, true) && r.info() && r.list("CHECK BOX", v.CheckBoxes) &&
            r.choices() && r.kc("[ALIGN", v.ALIGN) && r.shade() && r.styles() && r.choices() &&
            r.ki("[REQUIRED", v.REQ);
        break;
    case Recipe::Comments:
        r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            r.defaultValue("[DEFAULT COMMENTS", true, false) && r.optional("[DEFAULT VALUE") && r.info() &&
            r.kc("[ALIGN", v.ALIGN) && r.optional("[DEFAULT VALUE") && r.ki("[COMMENTS WIDTH", v.Width) &&
            r.ki("[COMMENTS HEIGHT", v.Height) && r.shade() && r.styles() && r.choices() && r.ki("[REQUIRED", v.REQ);
        break;
    case Recipe::ConditionComment:
        ReadConditionRow(r, true, true, "CONDITION CHOICES");
        break;
    case Recipe::ConditionDropdown:
        ReadConditionRow(r, false, false, "CHOICES");
        break;
    case Recipe::ConditionChoices:
        ReadConditionRow(r, false, true, "CONDITION CHOICES");
        break;
    case Recipe::FollowupComment:
        r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            r.kc("[ALIGN", v.ALIGN) && r.ki("[FOLLOWUP WIDTH", v.Width) && r.ki("[FOLLOWUP HEIGHT", v.Height) &&
            r.shade() && r.styles() && r.info();
        break;
    case Recipe::FollowupChoices:
        r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            r.list("DEFAULT FOLLOWUP", v.Choices) && r.choices() && r.kc("[ALIGN", v.ALIGN) && r.shade() &&
            r.styles() && r.choices();
        break;
    case Recipe::DownloadFiles:
        r.downloadKeys(v.VisibleDownload) && r.styles() && r.choices();
        break;
    case Recipe::DownloadFilesPassword:
        r.downloadKeys(v.VisibleDownloadPassword) && r.shade() && r.styles() && r.info();
        break;
    case Recipe::FollowupFilesPassword:
        r.ki("[TITLE", v.Title) && r.ki("[BLANK ERROR", v.MSG2) && r.ki("[ERROR MESSAGE", v.MSG) &&
            r.ki("[TITLE SIZE", v.TitleSize) && r.defaultValue("[DEFAULT DOWNLOAD VALUE", true, false) &&
            r.optional("[DEFAULT VALUE") && r.kc("[ALIGN", v.ALIGN) && r.ki("[PASSWORD", v.PASSWORD) &&
            r.ki("[WIDTH", v.Width) && r.shade() && r.styles() && r.choices();
        break;
    case Recipe::Dropdown:
        r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            r.list("[", v.Choices) && r.choices() && r.kc("[ALIGN", v.ALIGN) && r.shade() && r.styles() &&
            r.choices() && r.ki("[REQUIRED", v.REQ);
        break;
    case Recipe::Question:
        r.ki("[TITLE", v.Title) && r.ki("[ERROR MESSAGE", v.MSG) && r.ki("[TITLE SIZE", v.TitleSize) &&
            (!model::StartsWithNoCase(model::LTrim(r.text), "[DEFAULT QUESTION") ||
             r.defaultValue("[DEFAULT QUESTION", true, true)) &&
            r.info() && r.list("[", v.Choices) && r.info() && r.optional("[DEFAULT VALUE") && r.kc("[ALIGN", v.ALIGN) &&
            r.shade() && r.styles() && r.choices() && r.ki("[REQUIRED", v.REQ);
        break;
    case Recipe::UserName:
        ReadLoginRow(r, "[DEFAULT USER NAME", true, "[USERNAME", v.USERNAME, true);
        break;
    case Recipe::Password:
        ReadLoginRow(r, "[PASSWORD DEFAULT VALUE", false, "[PASSWORD", v.PASSWORD, true);
        break;
    case Recipe::SecurityCode:
        ReadLoginRow(r, "[DEFAULT SECURITY VALUE", false, "[PASSWORD", v.PASSWORD, false);
        break;
    case Recipe::CancelButton:
        r.ki("[BUTTON NAME", v.ButtonName) && r.color("[DEFAULT COLOR", v.DefaultColor, v.DefaultColorHex) &&
            r.choices() && r.kc("[ALIGN", v.ALIGN) && r.ki("[LINK TO", v.LinkTo) && r.checkLinkTo(inputType);
        break;
    default:
        return false;
    }
    return true;
}

} // namespace

bool TakeKey(Session& s, UiPort& ui, std::string& text, std::string_view key, std::string& value)
{
    int err = 0;
    model::TakeAttribute(ui, key, value, text, err);
    if (err != 0) {
        s.build.buildError = 1;
        return false;
    }
    return true;
}

bool TakeEndMark(Session& s, UiPort& ui, std::string& text, std::string_view expected)
{
    // The help item behind a key may be of either kind: the one that stands
    // there is taken. Anything else is read as the expected kind and refused.
    const std::string_view front = model::LTrim(text);
    std::string_view key = expected;
    if (model::StartsWithNoCase(front, "[INFO"))
        key = "[INFO:";
    else if (model::StartsWithNoCase(front, "[CHOICES"))
        key = "[CHOICES";
    std::string dropped;
    return TakeKey(s, ui, text, key, dropped);
}

void ExtractEntry(Session& s, UiPort& ui, std::string_view inputType, std::string& text)
{
    FixLineBreaks(text);
    const model::Recipe recipe = model::RecipeFor(inputType);
    if (recipe == model::Recipe::Setup) {
        ExtractSetupEntry(s, ui, text);
        return;
    }
    if (recipe == model::Recipe::HorizontalLine) {
        ExtractHorizontalLine(s, ui, text);
        return;
    }
    Reader r{s, ui, text, s.build.values};
    if (!ReadRow(r, recipe, inputType)) {
        s.build.buildError = 5;
        return;
    }
    if (s.build.buildError == 0)
        ApplyGlobals(s.build.setupValues, s.build.values, s.store.state.ProjectMode);
}

void ExtractHorizontalLine(Session& s, UiPort& ui, std::string& text)
{
    // The stored form keeps one item per line: the line group reads it as one line.
    std::string joined;
    for (char c : text)
        if (c != '\r' && c != '\n')
            joined += c;
    text = joined;
    write::WorkingValues& v = s.build.values;
    Reader r{s, ui, text, v};
    const bool ok = r.ki("[LINE WIDTH", v.LineWidth) && r.ki("[LINE SIZE", v.LineSize) && r.kc("[ALIGN", v.LineAlign) &&
                    r.kc("[LINE COLOR", v.LineColor);
    if (!ok)
        return;
    v.LineColorHex = model::ColorToHex(v.LineColor);
    ApplyGlobals(s.build.setupValues, s.build.values, s.store.state.ProjectMode);
}

} // namespace tq::compose
