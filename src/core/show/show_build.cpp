// SPDX-License-Identifier: GPL-3.0-or-later
#include "show/show_build.h"

#include "model/text_ops.h"
#include "port/platform.h"
#include "show/show_file.h"
#include "store/recent_history.h"
#include "write/line_writer.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tq::show {

namespace {

constexpr std::string_view kExampleLink = "https://www.tarnquill.example/pictures/photoshow.php";

template <size_t N> bool InUpperList(std::string_view value, const std::array<std::string_view, N>& list)
{
    const std::string v = model::ToUpper(value);
    return std::any_of(list.begin(), list.end(), [&](std::string_view item) { return model::ToUpper(item) == v; });
}

bool FolderExists(const std::string& folder)
{
    std::error_code ec;
    return !folder.empty() && std::filesystem::is_directory(folder, ec);
}

std::string ErrorText(int err)
{
    return err != 0 ? std::strerror(err) : "Input/output error";
}

void ReportFileError(int err, const std::string& name, UiPort& ui)
{
    // the same words for a failed write: the format says " when reading " for both
    ui.message(ErrorText(err) + " when reading " + name, "ERROR", Icon::Exclamation);
}

} // namespace

std::string PhpStringText(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        if (c == '\\' || c == '"' || c == '$')
            out += '\\';
        out += c;
    }
    return out;
}

void ValidateShow(const ShowSettings& s, bool& failed, UiPort& ui)
{
    failed = true;
    const std::string fading = model::ToUpper(s.UseFading);
    if (fading != "YES" && fading != "NO") {
        ui.message(std::string(kUseFadingLabel) + " MUST BE EITHER YES OR NO", "ERROR", Icon::Exclamation);
        return;
    }
    if (!FolderExists(s.ImageFolder)) {
        ui.message(s.ImageFolder + " DOES NOT EXIST\r\rCHECK THE FOLDER PATH AND TRY AGAIN", "ERROR",
                   Icon::Exclamation);
        return;
    }
    const std::string zip = model::ToUpper(s.AllowZip);
    if (zip != "YES" && zip != "NO") {
        ui.message(std::string(kAllowZipLabel) + " MUST BE EITHER YES OR NO", "ERROR", Icon::Exclamation);
        return;
    }
    const std::string* bad = nullptr;
    if (!InUpperList(s.FadeMode, kFadeModeList))
        bad = &s.FadeMode;
    else if (!InUpperList(s.FadeSteps, kFadeStepsList))
        bad = &s.FadeSteps;
    else if (!InUpperList(s.FadeDelay, kFadeDelayList))
        bad = &s.FadeDelay;
    else if (!InUpperList(s.ImagesPerLine, kImagesPerLineList))
        bad = &s.ImagesPerLine;
    else if (!InUpperList(s.ColumnsPerLine, kColumnsPerLineList))
        bad = &s.ColumnsPerLine;
    if (bad) {
        ui.message(*bad + " IS NOT A VALID ENTRY", "ERROR", Icon::Exclamation);
        return;
    }
    failed = false;
}

void FindTemplate(std::string& path, bool& failed, std::string_view programFolder, store::RunValues& run, UiPort& ui)
{
    FileDialogOptions options;
    options.title = "Where is photodata.php located?";
    options.filter = "Default File (*.php) | photodata.php";
    options.initialName = "photodata.php";
    options.initialFolder = std::string(programFolder);
    std::optional<std::string> chosen = ui.openFileDialog(options);
    if (!chosen) {
        ui.message("ABORTED...", "ABORTED", Icon::Information);
        failed = true;
        return;
    }
    SetFontDefaults(run);
    path = *chosen;
    failed = false;
}

std::vector<std::string> RewriteTemplateLine(std::string_view line, const ShowSettings& s)
{
    auto has = [&](std::string_view mark) { return line.find(mark) != std::string_view::npos; };
    if (has("<b>RETURN TO HOME PAGE</b>"))
        return {"<b>" + s.HomeLinkText + "</b>"};
    if (has("do you want to blend between images?"))
        return {model::EqualsNoCase(s.UseFading, "YES") ? "$useFading =true;" : "$useFading =false;"};
    if (has("$imgsperline=5"))
        return {"$imgsperline=" + CutListValue(s.ImagesPerLine, 2) + ";"};
    if (has("  $imgspercolumn"))
        return {"$imgspercolumn=" + CutListValue(s.ColumnsPerLine, 2) + ";"};
    if (has("  $allowZip=true;"))
        // the two leading blanks stay, unlike the other lines written here
        return {model::EqualsNoCase(s.AllowZip, "YES") ? "  $allowZip=true;" : "  $allowZip=false;"};
    if (has("Image browser"))
        return {"$browsertitle=\"" + PhpStringText(s.BrowserTitle) + "\";"};
    if (has("$fadeMode  =rand(0,4)")) {
        if (s.FadeMode == "classic - default")
            return {"$fadeMode=0;"};
        if (s.FadeMode == "right to left")
            return {"$fadeMode=1;"};
        if (s.FadeMode == "left to right")
            return {"$fadeMode=2;"};
        if (s.FadeMode == "square")
            return {"$fadeMode=3;"};
        if (s.FadeMode == "random")
            return {"$fadeMode  =rand(0,4);"};
        return {}; // the exact texts only: any other spelling drops the line
    }
    if (has("$fadeSteps =6;"))
        return {"$fadeSteps =" + CutListValue(s.FadeSteps, 2) + ";"};
    if (has("$fadeTime  =70;"))
        return {"$fadeTime  =" + CutListValue(s.FadeDelay, 3) + ";"};
    if (has("<?PHP"))
        return {std::string(line), "$bgcolor=\"#" + ShowColorHex(s.BackgroundColor) + "\";"};
    if (has(kHomeLinkMark))
        // no blank between the two attributes: the line is written as it always was
        return {"             <i><a target=\\\"_blank\\\"href=\\\"" + RemoveTrailingSeparator(s.HomeFile) + "\\\">"};
    return {std::string(line)};
}

std::vector<std::string> ReadmeShowLines(const ShowSettings& s, std::string_view imageFolder)
{
    const std::string web = ShowWebPath(s);
    const std::string folder(imageFolder);
    return {
        "1. FTP all of your images to your web server to " + web,
        "",
        "Be sure to set the size of your images to 640x480 or it will take too long to view them on your web site by "
        "others with a slow internet connection",
        "",
        "    Note: To keep your images in your preferred order, name them with a UPPER CASE LETTER instead of a "
        "number. "
        "(Image1A.jpg instead of Image1.jpg). When you get to Z then use ZA, ZB",
        "",
        // "slideshow.php" is the name this file has always given; the file written is photoshow.php
        "2. FTP file " + folder + "/slideshow.php to Your web server to " + web,
        "",
        "3. Copy and paste the link on this page below VIEW PHOTOSHOW LIVE ON YOUR WEB SITE and put it in your html "
        "file and FTP it to your Web Server",
        "It's not necessary to include the full web server path. Just the relative path.",
        "",
        "Example: if the full path to your images on your web server is " + std::string(kExampleLink) +
            " then your link would be, pictures/photoshow.php",
        "",
        "4. After you complete the above steps, click VIEW PHOTOSHOW LIVE ON YOUR WEB SITE to see your photos live on "
        "the internet",
    };
}

std::string ShowDoneMessage(const ShowSettings& s, std::string_view imageFolder)
{
    const std::string web = ShowWebPath(s);
    std::string m;
    m += "1. FTP all of your images to your web server to " + web + "\r\r";
    m += "Note: To keep your images in your preferred order, name them with a UPPER CASE LETTER instead of a number. "
         "(image1A.jpg instead of image1.jpg). When you get to Z then use ZA, ZB\r\r";
    m += "2. FTP file " + std::string(imageFolder) + "/photoshow.php to " + web + "\r\r";
    m += "3. Copy and paste the link on this page below VIEW PHOTOSHOW LIVE ON YOUR WEB SITE and put it in your html "
         "file and FTP it to your web site\r";
    m += "Note: It's not necessary to include the full web server path. Just the relative path. \r";
    m += "If the full path to your images on your web server is " + std::string(kExampleLink) +
         " then your link would be, pictures/photoshow.php\r\r";
    m += "4. After you complete the above steps, click \rVIEW PHOTOSHOW LIVE ON YOUR WEB SITE\r"
         "to see the photos live on the internet \r\r";
    m += "To view these instructions after you press OK, click on VIEW INSTRUCTIONS";
    return m;
}

bool BuildShow(Session& session, std::string_view programFolder, UiPort& ui)
{
    ShowPage& page = session.photoShow;
    const ShowSettings& s = page.settings;
    page.OutputLine.clear();
    bool failed = false;
    ValidateShow(s, failed, ui);
    if (failed)
        return false;
    if (!FolderExists(s.ImageFolder)) {
        ui.message(s.ImageFolder + "\rdoes not exist\r\rMake sure that the path that you entered is correct", "ERROR",
                   Icon::Exclamation);
        page.outputEnabled = false;
        return false;
    }
    page.outputEnabled = true;
    const std::string folder = RemoveTrailingSeparator(s.ImageFolder);

    std::string templatePath;
    FindTemplate(templatePath, failed, programFolder, session.run, ui);
    if (failed || model::Trim(templatePath, " \t").empty())
        return false;

    std::string text;
    {
        errno = 0;
        std::ifstream in(templatePath, std::ios::binary);
        std::error_code ec;
        if (!in || std::filesystem::is_directory(templatePath, ec)) {
            ReportFileError(errno != 0 ? errno : ENOENT, templatePath, ui);
            return false;
        }
        std::ostringstream ss;
        ss << in.rdbuf();
        text = ss.str();
    }

    write::LineWriter out;
    const std::string showPath = platform::JoinPath(folder, "\\photoshow.php");
    errno = 0;
    if (!out.open(showPath)) {
        ReportFileError(errno, showPath, ui);
        return false;
    }
    std::string_view rest = text;
    while (!rest.empty()) {
        size_t nl = rest.find('\n');
        std::string_view line = rest.substr(0, nl);
        rest = nl == std::string_view::npos ? std::string_view() : rest.substr(nl + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        for (const std::string& written : RewriteTemplateLine(line, s))
            out.line(written);
    }
    out.close();
    if (!out.good()) {
        ReportFileError(errno, showPath, ui);
        return false;
    }

    const std::string readmePath = platform::JoinPath(folder, "\\readmeshow.txt");
    errno = 0;
    if (!out.open(readmePath)) {
        ReportFileError(errno, readmePath, ui);
        return false;
    }
    for (const std::string& line : ReadmeShowLines(s, folder))
        out.line(line);
    out.close();
    if (!out.good()) {
        ReportFileError(errno, readmePath, ui);
        return false;
    }

    ui.message(ShowDoneMessage(s, folder), "DONE", Icon::Information);
    page.OutputLine = ShowLink(s);

    // a show built before it was ever saved has no file to list
    const char sep = folder.find('\\') != std::string::npos ? '\\' : '/';
    const std::string showFile = folder + sep + s.ShowFileName;
    std::error_code ec;
    if (!session.DataFolder.empty() && std::filesystem::is_regular_file(showFile, ec))
        store::AppendShowHistory(session, ui, showFile);
    return true;
}

} // namespace tq::show
