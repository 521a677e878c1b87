// SPDX-License-Identifier: GPL-3.0-or-later
// A whole build from an arbitrary project file: the Entries are read from the
// bytes, then built in both modes with both commands, every question answered.
// The SetupEntry is pinned to a scratch web folder so that no build can write
// outside it, whatever folder the bytes name.
#include "compose/build_driver.h"
#include "port/ui_port.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

// Answers Yes, No and Cancel in turn so that every branch of the questions
// runs; where the turn starts comes from the input, and an input box gets a
// name or nothing in turn.
struct AnsweringPort : tq::UiPort
{
    int turn = 0;
    void message(std::string_view, std::string_view, tq::Icon) override {}
    tq::Answer ask(std::string_view, std::string_view, tq::Buttons buttons, tq::Icon, int) override
    {
        if (buttons == tq::Buttons::Ok)
            return tq::Answer::Ok;
        const int n = turn++ % (buttons == tq::Buttons::YesNoCancel ? 3 : 2);
        return n == 0 ? tq::Answer::No : n == 1 ? tq::Answer::Yes : tq::Answer::Cancel;
    }
    std::optional<std::string> inputBox(std::string_view, std::string_view, std::string_view initial) override
    {
        if (turn++ % 2 == 0)
            return std::nullopt;
        return initial.empty() ? std::string("fuzz") : std::string(initial);
    }
    std::optional<std::string> openFileDialog(const tq::FileDialogOptions&) override { return std::nullopt; }
    std::optional<std::string> saveFileDialog(const tq::FileDialogOptions&) override { return std::nullopt; }
    std::optional<std::string> browseForFolder(std::string_view, std::string_view) override { return std::nullopt; }
    std::optional<long> chooseColor(long, std::string_view) override { return std::nullopt; }
};

// The scratch folders of this process, removed at its end.
struct Scratch
{
    std::string root;
    Scratch()
    {
        auto p = std::filesystem::temp_directory_path() / ("tq_build_fuzz_" + std::to_string(::getpid()));
        std::filesystem::create_directories(p / "web");
        std::filesystem::create_directories(p / "data");
        root = p.string();
    }
    ~Scratch()
    {
        std::error_code ec;
        std::filesystem::remove_all(root, ec);
    }
};

const std::string& ScratchRoot()
{
    static const Scratch scratch;
    return scratch.root;
}

std::string SetupText(const std::string& folder, bool survey)
{
    return std::string(survey ? "[Background Color=9022343] [Info: colour]\r\n" : "") + "[Drive Folder Path=" + folder +
           "] [Info: folder]\r\n"
           "[TQL Output File=fuzztql.htm] [Info: file]\r\n"
           "[FROM=Fuzz] [Info: from]\r\n"
           "[Completed=thankyou.htm] [Info: page]\r\n"
           "[GLOBAL ALIGN=NONE] [Info: align]\r\n"
           "[GLOBAL TEXT COLOR=NONE] [Choices=NONE]\r\n"
           "[Submit Name=Submit] [Info: name]\r\n"
           "[SUBMIT ALIGN=LEFT] [Choices=left]\r\n"
           "[Submit Button Color=0] [Choices=colour]\r\n"
           "[Background image path=;none] [Info: image]\r\n"
           "[Email #1=webmaster@tarnquill.example] [Info: mail]\r\n"
           "[Email #2=none] [Info: mail]\r\n"
           "[Email #3=none] [Info: mail]\r\n"
           "[Number Each Question=YES] [Info: numbers]\r\n"
           "[Show Tool Tips=YES] [Info: tips]\r\n"
           "[Include Frame With Form=YES] [Info: frame]\r\n"
           "[Frame Border Color=52736] [Info: colour]\r\n"
           "[Frame Color=16384] [Info: colour]\r\n"
           "[Total Frames=2] [Info: frames]\r\n";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string web = ScratchRoot() + "/web";
    AnsweringPort port;
    port.turn = size > 0 ? data[size - 1] % 6 : 0;
    for (int run = 0; run < 4; ++run) {
        const bool survey = (run & 1) != 0;
        auto s = std::make_unique<tq::Session>();
        s->DataFolder = ScratchRoot() + "/data";
        s->store.state.ProjectMode = survey ? tq::model::Mode::Survey : tq::model::Mode::Form;
        auto reader = tq::store::ReaderOf(bytes);
        tq::store::ReadEntries(s->store, reader);
        s->store.pages[0][0].InputTypeName = "Setup";
        s->store.pages[0][0].AttributeText = SetupText(web, survey);
        if (run < 2)
            tq::compose::CreateFormOnly(*s, port);
        else
            tq::compose::CreateFormHTMLCode(*s, port);
    }
    return 0;
}
