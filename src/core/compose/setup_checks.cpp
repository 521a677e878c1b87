// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/setup_checks.h"

#include "compose/extraction.h"
#include "model/attribute_text.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"

#include <filesystem>
#include <system_error>

namespace tq::compose {

namespace {

std::string InvalidEntriesText(std::string_view mode)
{
    return "THERE ARE ERRORS THAT NEED TO BE CORRECTED BEFORE YOU CAN BUILD YOUR " + std::string(mode) +
           " IN SETUP\r\r"
           "A SEMI-COLON(;) WAS PLACED IN THE FIRST COLUMN AS A FLAG FOR YOU TO MAKE CHANGES\r\r"
           "YOU CAN CLICK ON HELP IN THE EDIT WINDOW TO HELP YOU WITH THE DESCRIPTION OF EACH ENTRY\r\r"
           "THE FOLLOWING NEED CORRECTIONS\r\r"
           "FROM\r;My Web Page\r\r"
           "Completed\r;thankyou.htm\r\r"
           "EMAIL #1\r;" +
           std::string(platform::kSampleEmail) +
           "\r\r"
           "CLICK OK AND WE WILL TAKE YOU TO THE EDIT SCREEN. THEN REMOVE THE SEMI-COLON AND CORRECT THE ERRORS ON "
           "ALL ENTRIES THAT ARE HIGHLIGHTED IN RED\r\r";
}

std::string NameInvalidText(std::string_view mode)
{
    return "INPUT TYPE ---> SETUP ---> COMPLETED <---\r\r"
           "CANNOT HAVE A SEMI COLON. (;thankyou.htm)\r\r"
           "CLICK ON THE EDIT BUTTON NEXT TO THE SETUP INPUT TYPE AND REPLACE IT WITH YOUR OWN THANK YOU PAGE\r\r"
           "NOTE: THIS IS THE FILE THAT COMES UP ON THE USER'S WEB PAGE AFTER THE USER COMPLETES THE " +
           std::string(mode);
}

/// One SetupEntry key and the help item behind it.
bool ReadSetupKey(Session& s, UiPort& ui, std::string& text, std::string_view key, std::string& value)
{
    return TakeKey(s, ui, text, key, value) && TakeEndMark(s, ui, text, "[INFO:");
}

bool StartsWithSemicolon(const std::string& value)
{
    return !value.empty() && value.front() == ';';
}

} // namespace

void ExtractSetupEntry(Session& s, UiPort& ui, std::string& text)
{
    write::SetupValues& v = s.build.setupValues;
    const std::string mode(model::ModeText(s.store.state.ProjectMode));
    const bool preview = s.build.entryPreview;

    if (model::StartsWithNoCase(model::LTrim(text), "[BACKGROUND COLOR=") &&
        !ReadSetupKey(s, ui, text, "[BACKGROUND COLOR", v.BackgroundColor))
        return;
    if (!ReadSetupKey(s, ui, text, "[DRIVE FOLDER PATH", v.WebFolder) ||
        !ReadSetupKey(s, ui, text, "[TQL OUTPUT FILE", v.OutputName) || !ReadSetupKey(s, ui, text, "[FROM", v.FROM))
        return;
    if (!preview && StartsWithSemicolon(v.FROM)) {
        ui.openEditPage(1, 0, "");
        ui.message(InvalidEntriesText(mode), "INVALID ENTRIES", Icon::Exclamation);
        s.build.setupHold = true;
        return;
    }
    if (!ReadSetupKey(s, ui, text, "[COMPLETED", v.COMPLETED))
        return;
    if (!preview && StartsWithSemicolon(v.COMPLETED)) {
        ui.message(NameInvalidText(mode), "NAME INVALID", Icon::Exclamation);
        s.build.buildError = 1;
        return;
    }
    std::string totalFrames;
    const bool ok = ReadSetupKey(s, ui, text, "[GLOBAL ALIGN", v.GlobalAlign) &&
                    ReadSetupKey(s, ui, text, "[GLOBAL TEXT COLOR", v.GlobalTextColor) &&
                    ReadSetupKey(s, ui, text, "[SUBMIT NAME", v.SubmitName) &&
                    ReadSetupKey(s, ui, text, "[SUBMIT ALIGN", v.SubmitAlign) &&
                    ReadSetupKey(s, ui, text, "[SUBMIT BUTTON COLOR", v.SubmitButtonColor) &&
                    ReadSetupKey(s, ui, text, "[BACKGROUND IMAGE PATH", v.BackgroundImagePath) &&
                    ReadSetupKey(s, ui, text, "[EMAIL #1", v.EMAIL1) &&
                    ReadSetupKey(s, ui, text, "[EMAIL #2", v.EMAIL2) &&
                    ReadSetupKey(s, ui, text, "[EMAIL #3", v.EMAIL3) &&
                    ReadSetupKey(s, ui, text, "[NUMBER EACH QUESTION", v.NumberEachQuestion) &&
                    ReadSetupKey(s, ui, text, "[SHOW TOOL TIPS", v.ShowToolTips) &&
                    ReadSetupKey(s, ui, text, "[INCLUDE FRAME WITH FORM", v.IncludeFrame) &&
                    ReadSetupKey(s, ui, text, "[FRAME BORDER COLOR", v.FrameBorderColor) &&
                    ReadSetupKey(s, ui, text, "[FRAME COLOR", v.FrameColor) &&
                    ReadSetupKey(s, ui, text, "[TOTAL FRAMES", totalFrames);
    if (!ok)
        return;
    if (model::EqualsNoCase(v.EMAIL2, "NONE"))
        v.EMAIL2.clear();
    if (model::EqualsNoCase(v.EMAIL3, "NONE"))
        v.EMAIL3.clear();
    v.TotalFrames = static_cast<int>(model::LeadingWhole(totalFrames, 100000000L));

    // The mode's own values: the frame belongs to a FORM only.
    v.FrameOff = (model::EqualsNoCase(mode, "FORM") && model::EqualsNoCase(v.IncludeFrame, "YES")) ? 0 : 1;
    v.BackgroundColorHex = model::ColorToHex(v.BackgroundColor);
    v.SubmitButtonColorHex = model::ColorToHex(v.SubmitButtonColor);
    v.FrameBorderColorHex = model::ColorToHex(v.FrameBorderColor);
    v.FrameColorHex = model::ColorToHex(v.FrameColor);
}

namespace {

/// The texts of the edit-page tests; each returns the fault text or "".
struct LineCheck
{
    std::string key;   // as written
    std::string K;     // upper case
    std::string value; // trimmed
    std::string V;     // upper case
    std::string mode;
    model::CommitMode commitMode = model::CommitMode::Plain;

    std::string spaceTest() const
    {
        if (!value.empty() && value.front() == '&')
            return K + "\rCANNOT START WITH A SPACE\r\rPLEASE REMOVE THE SPACE";
        return {};
    }

    bool is(std::initializer_list<std::string_view> keys) const
    {
        for (std::string_view k : keys)
            if (K == k)
                return true;
        return false;
    }

    bool semicolon() const { return !value.empty() && value.front() == ';'; }

    std::string fileNameTests() const
    {
        if (!model::Contains(V, ".HTM"))
            return K + "\rMUST CONTAIN AN EXTENSION OF .HTM";
        if (model::Contains(V, "\\"))
            return K + "\rCANNOT CONTAIN A \\ IN THE FILENAME";
        if (model::Contains(V, ":"))
            return K + "\rCANNOT CONTAIN A : IN THE FILENAME";
        return {};
    }

    std::string serverPathTests() const
    {
        const bool thankYou = K == "THANK YOU FILE";
        const std::string note =
            thankYou ? "NOTE: THIS IS THE FILE THAT THE USER IS TAKEN TO AFTER THE USER DOWNLOADS THE FILES"
                     : "NOTE: THIS IS THE ABSOLUTE PATH WHERE YOUR FILES THAT YOU WISH THE USER TO "
                       "DOWNLOAD ARE LOCATED";
        const std::string example =
            "\r\rExample: " + std::string(platform::kSampleSite) + (thankYou ? "/thankyou.htm" : "/test");
        if (semicolon())
            return K + "\rMUST NOT HAVE A SEMI COLON(;) AND MUST HAVE A VALID WEB SERVER PATH\r\r" + note + example +
                   "\r\rPLEASE REMOVE THE SEMI-COLON(;) AND ENTER YOUR OWN WEB SERVER PATH";
        if (!model::Contains(value, "."))
            return K + "\rDOES NOT HAVE A VALID URL WEB LINK. MISSING\rwww." + example;
        return spaceTest();
    }

    std::string mediaPathTests(std::string_view what) const
    {
        if (semicolon())
            return "--- " + key +
                   " --- \rMUST NOT START WITH A SEMI COLON (;)\r\rPLEASE REMOVE THE SEMI COLON AND "
                   "ENTER YOUR OWN " +
                   std::string(what) +
                   ".\r\rTHIS IS THE ABSOLUTE PATH THAT'S LOCATED ON YOUR WEB SERVER\r\r"
                   "REMOVE THE SEMI COLON (;) WHEN DONE";
        return spaceTest();
    }

    std::string otherEmailText(std::string_view requirement) const
    {
        return V + "\rIS NOT A VALID EMAIL ADDRESS\r" + std::string(requirement) +
               "\r\rIF YOU DON'T WANT TO ADD ANOTHER EMAIL ADDRESS, THEN NONE MUST BE THE DEFAULT\r\r"
               "WE HAVE CHANGED THE DEFAULT TO NONE";
    }

    /// The tests in their order. `noneValue` is set when the row's value
    /// becomes "none"; `passed` when a test passes and ends the check.
    std::string run(bool& noneValue) const
    {
        std::string t;
        // 1
        if (value.size() == 2 && (model::Contains(value, "\r") || model::Contains(value, "\n")))
            return K + "\rCANNOT BE LEFT BLANK";
        // 2, 3
        if (K == "TITLE" && value.size() < 3)
            return key + "\rcannot be left blank";
        if (K == "LOOP" && !(V.size() == 1 && V[0] >= '1' && V[0] <= '9') && V != "INFINITE")
            return K + "\rMUST BE SET TO 1,2,3,4,5,6,7,8,9 or Infinite";
        // 4 to 6
        if (K == "LINK TO") {
            if (semicolon())
                return K + "\rMUST NOT HAVE A SEMI COLON(;) AND MUST HAVE A VALID WEB PAGE LINK.\r\r"
                           "NOTE: THIS IS THE WEB PAGE THAT THE USER IS TAKEN TO WHEN THE USER CLICKS ON THE CANCEL "
                           "BUTTON\r\rExample: index.htm";
            if (!model::Contains(value, "."))
                return K + "\rDOES NOT HAVE A VALID URL WEB LINK. MISSING THE PERIOD\r\rExample: index.htm";
            if (!(t = spaceTest()).empty())
                return t;
        }
        // 7 to 9
        if (is({"SERVER DOWNLOAD", "THANK YOU FILE"}) && !(t = serverPathTests()).empty())
            return t;
        // 10
        if (K == "FROM" && commitMode == model::CommitMode::Exit && semicolon())
            return "--- " + key +
                   " --- \rPLEASE CHANGE THE FROM TITLE TO YOUR OWN PERSONAL TITLE.\r\r"
                   "THE FROM TITLE IS THE EMAIL FROM TITLE THAT YOU RECEIVE WHEN THE USER COMPLETES THE " +
                   mode + "\r\rREMOVE THE SEMI COLON (;) WHEN DONE";
        // 11 to 13
        if (K == "SERVER PICTURE PATH" && !(t = mediaPathTests("PICTURE")).empty())
            return t;
        if (K == "SERVER VIDEO PATH" && !(t = mediaPathTests("VIDEO")).empty())
            return t;
        // 14 to 17
        if (K == "COMPLETED") {
            if (commitMode == model::CommitMode::Exit && semicolon())
                return "--- " + K +
                       " --- \rPLEASE CHANGE THE COMPLETED ;THANKYOU.HTM FILE TO MATCH YOUR OWN THANK YOU FILE.\r\r"
                       "NOTE: THIS IS THE FILE THAT COMES UP ON THE USER'S WEB PAGE AFTER THE USER COMPLETES THE " +
                       mode + "\r\rREMOVE THE SEMI COLON (;) WHEN DONE";
            if (!(t = fileNameTests()).empty())
                return t;
        }
        // 18, 19
        if (K == "AUTOSTART" && V != "ON" && V != "OFF" && V != "MOUSEOVER")
            return K + "\rMUST BE SET TO EITHER ON, OFF OR MOUSEOVER";
        if (is({"INCLUDE FRAME WITH FORM", "NUMBER EACH QUESTION", "SHOW TOOL TIPS", "REQUIRED TABLE", "REQUIRED",
                "VISIBLE DOWNLOAD"}) &&
            V != "YES" && V != "NO")
            return K + "\rMUST BE SET TO EITHER YES OR NO";
        // 20, 21
        if (is({"LINE WIDTH", "TITLE SHADE WIDTH"})) {
            const size_t percent = value.find('%');
            if (percent == std::string::npos)
                return K + "\rMUST HAVE A % AFTER THE " + K + "\rEXAMPLE: 40%";
            if (!model::IsNumeric(value.substr(0, percent)))
                return K + "\rMUST HAVE A NUMBER";
        }
        // 22
        if (is({"TOTAL FRAMES", "BLANK LINE", "LINE SIZE", "COMMENTS HEIGHT", "COMMENTS WIDTH", "WIDTH",
                "FOLLOWUP WIDTH", "FOLLOWUP HEIGHT", "TITLE SIZE", "PICTURE WIDTH", "PICTURE HEIGHT", "VIDEO WIDTH",
                "VIDEO HEIGHT"}) &&
            !model::IsNumeric(value))
            return K + "\rMUST HAVE A NUMBER";
        // 23, 24
        if (is({"BOLD", "ITALICS"}) && V != "ON" && V != "OFF")
            return K + "\rMUST BE SET TO EITHER ON OR OFF";
        if (is({"ALIGN", "PICTURE ALIGN", "SURVEY ALIGN"}) && V != "LEFT" && V != "RIGHT" && V != "CENTER")
            return K + "\rMUST BE SET TO LEFT, RIGHT OR CENTER";
        // 25
        if (K == "TQL OUTPUT FILE") {
            if (!(t = spaceTest()).empty() || !(t = fileNameTests()).empty())
                return t;
        }
        // 26
        if (K == "DRIVE FOLDER PATH") {
            if (!(t = spaceTest()).empty())
                return t;
            std::error_code ec;
            if (!std::filesystem::is_directory(value, ec))
                return V + "\rFOLDER DOES NOT EXIST\r\rCHANGE THE FOLDER PATH TO A VALID FOLDER\r\r"
                           "USE THE EDIT BUTTON TO BROWSE FOR YOUR FOLDER PATH";
        }
        // 27, 28
        if (K == "FROM" && model::Contains(value, "????"))
            return K + "\rCANNOT HAVE ????\r\rCHANGE THE ????? TO A VALID NAME";
        if (K == "FROM" && model::Contains(value, "@"))
            return K + "\rCANNOT HAVE A @ SYMBOL\r\rREMOVE THE " + value + "\r SYMBOL";
        // 29 to 33
        if (K == "EMAIL #1") {
            if (!(t = spaceTest()).empty())
                return t;
            if (semicolon())
                return K +
                       "\rMUST NOT HAVE A SEMI COLON(;)\r\rNOTE: PLEASE CHANGE THE EMAIL ADDRESS AND REPLACE IT "
                       "WITH YOUR OWN PERSONAL EMAIL ADDRESS AND LEAVE OUT THE SEMI-COLON (;)\r\rExample: " +
                       std::string(platform::kSampleEmail);
            if (V == "NONE" || V == "????")
                return V + "\rIS NOT A VALID EMAIL ADDRESS\r\rREPLACE " + V + "\r WITH A VALID EMAIL ADDRESS";
            if (model::Trim(value).empty())
                return K + "\rCANNOT BE LEFT BLANK";
            if (!model::Contains(value, "@"))
                return V + "\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ SYMBOL";
            if (!model::Contains(value, "."))
                return V + "\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ PERIOD";
            // A third test for a missing "." ("REQUIRES A dot") stood here; the
            // test above catches every such value first, so it is left out.
        }
        // 34 to 36
        if (is({"EMAIL #2", "EMAIL #3", "DEFAULT EMAIL ADDRESS"})) {
            if (!(t = spaceTest()).empty())
                return t;
            if (V == "NONE")
                return {};
            if (!model::Contains(value, ".")) {
                noneValue = true;
                return otherEmailText("REQUIRES A @ PERIOD");
            }
            if (!model::Contains(value, "@")) {
                noneValue = true;
                return otherEmailText("REQUIRES A @ SYMBOL");
            }
        }
        // 37, 38
        if (K != "GLOBAL TEXT COLOR") {
            if (model::Trim(value).empty())
                return K + "\rCANNOT BE LEFT BLANK";
            if (value == "????")
                return K + "\rCANNOT HAVE A ????";
        }
        return {};
    }
};

} // namespace

void CheckAttribute(Session& s, UiPort& ui, std::string_view key, std::string& value, int& err)
{
    err = 0;
    if (s.store.state.commitMode == model::CommitMode::EntryPreview)
        return;
    LineCheck check;
    check.key = model::Trim(key);
    check.K = model::ToUpper(check.key);
    check.value = value;
    check.V = model::ToUpper(value);
    check.mode = model::ModeText(s.store.state.ProjectMode);
    check.commitMode = s.store.state.commitMode;
    bool noneValue = false;
    const std::string fault = check.run(noneValue);
    if (fault.empty())
        return;
    if (noneValue)
        value = "none";
    err = 1;
    s.build.channels[3].close();
    ui.message(fault, "ERROR", Icon::Exclamation);
    // the AttributeText stands as it stood before the edit
    std::error_code ec;
    std::filesystem::copy_file(platform::JoinPath(s.DataFolder, "\\tempStore.txt"),
                               platform::JoinPath(s.DataFolder, "\\temp11.txt"),
                               std::filesystem::copy_options::overwrite_existing, ec);
    s.store.state.CommitFailed = true;
}

} // namespace tq::compose
