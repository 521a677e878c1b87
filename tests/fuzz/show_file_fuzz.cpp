// SPDX-License-Identifier: GPL-3.0-or-later
// Opens arbitrary bytes as a show file. Checks that reading never fails
// badly, that the fields read survive a save and a second read, and that the
// open runs the fade switch and fills the output line.
#include "model/text_ops.h"
#include "port/ui_port.h"
#include "session.h"
#include "show/show_file.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

struct QuietPort : tq::UiPort
{
    int messages = 0;
    void message(std::string_view, std::string_view, tq::Icon) override { ++messages; }
    tq::Answer ask(std::string_view, std::string_view, tq::Buttons, tq::Icon, int) override { std::abort(); }
    std::optional<std::string> inputBox(std::string_view, std::string_view, std::string_view) override { std::abort(); }
    std::optional<std::string> openFileDialog(const tq::FileDialogOptions&) override { std::abort(); }
    std::optional<std::string> saveFileDialog(const tq::FileDialogOptions&) override { std::abort(); }
    std::optional<std::string> browseForFolder(std::string_view, std::string_view) override { std::abort(); }
    std::optional<long> chooseColor(long, std::string_view) override { std::abort(); }
};

const std::string& ScratchFile()
{
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("tq-show-fuzz-" + std::to_string(getpid()) + ".shw")).string();
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    {
        std::ofstream out(ScratchFile(), std::ios::binary | std::ios::trunc);
        out << bytes;
    }
    tq::Session session;
    QuietPort port;
    if (!tq::show::OpenShow(session, ScratchFile(), port))
        std::abort(); // a readable file always loads
    if (port.messages != 0)
        std::abort(); // the load never speaks
    const tq::show::ShowPage& page = session.photoShow;
    if (page.fadeFieldsEnabled != (tq::model::ToUpper(page.settings.UseFading) == "YES"))
        std::abort();
    if (page.OutputLine != tq::show::ShowLink(page.settings))
        std::abort();

    // a field that holds no line break survives a save and a second read
    bool lineSafe = true;
    for (const std::string* f :
         {&page.settings.HomeFile, &page.settings.HomeLinkText, &page.settings.ImageFolder,
          &page.settings.WebImageFolder, &page.settings.ShowFileName, &page.settings.UseFading,
          &page.settings.ImagesPerLine, &page.settings.ColumnsPerLine, &page.settings.AllowZip,
          &page.settings.BrowserTitle, &page.settings.FadeMode, &page.settings.FadeSteps, &page.settings.FadeDelay})
        lineSafe = lineSafe && f->find_first_of("\r\n") == std::string::npos;
    if (lineSafe) {
        tq::show::ShowSettings again;
        if (tq::show::ReadShowText(tq::show::ShowFileText(page.settings), again) != 14 || !(again == page.settings))
            std::abort();
    }
    return 0;
}
