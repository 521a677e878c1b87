// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/internal_error.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/open_project.h"
#include "store/project_file.h"

#include <gtest/gtest.h>

using namespace tq;

namespace {

// Hooks that count their calls; the clear prompt answers `keep`.
struct CountingHooks
{
    int clears = 0;
    int remembered = 0;
    int keep = 0;
    std::vector<model::Mode> switches;

    shell::OpenHooks hooks()
    {
        shell::OpenHooks h;
        h.clearPrompt = [this](Session&, UiPort&) {
            ++clears;
            return keep;
        };
        h.switchMode = [this](Session&, UiPort&, model::Mode mode, int) { switches.push_back(mode); };
        h.remember = [this](Session&, UiPort&) { ++remembered; };
        return h;
    }
};

std::string ProjectWithSetup(const std::string& setupText)
{
    Session s;
    s.store.pages[0][0].InputTypeName = "Setup";
    s.store.pages[0][0].AttributeText = setupText;
    return store::FormatProjectFile(store::WriteEntries(s.store));
}

class OpenByPath : public ::testing::Test
{
  protected:
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
    CountingHooks counting;

    void SetUp() override
    {
        s.DataFolder = dir.path();
        s.store.pages[0][0].InputTypeName = "Setup";
        s.store.pages[0][0].AttributeText = "[Before=1]\r\n";
    }
};

} // namespace

TEST_F(OpenByPath, AGapInTheHooksIsAFaultOfTheProgramAndChangesNothing)
{
    const std::string path = dir.file("one.fms");
    test::WriteFileBytes(path, ProjectWithSetup("[After=2]\r\n"));
    const std::function<void(shell::OpenHooks&)> gaps[] = {
        [](shell::OpenHooks& h) { h.clearPrompt = nullptr; },
        [](shell::OpenHooks& h) { h.switchMode = nullptr; },
        [](shell::OpenHooks& h) { h.remember = nullptr; },
    };
    for (const auto& gap : gaps) {
        shell::OpenHooks h = counting.hooks();
        gap(h);
        EXPECT_THROW((void)shell::OpenProjectFile(s, port, path, h), model::InternalError);
    }
    EXPECT_EQ(s.store.pages[0][0].AttributeText, "[Before=1]\r\n");
    EXPECT_EQ(counting.clears, 0);
}

TEST_F(OpenByPath, AMissingFileOrAFolderIsToldBackWithNothingAsked)
{
    test::WriteFileBytes(dir.file("folder.fms/inside.txt"), "x");
    for (const std::string& path : {dir.file("gone.fms"), dir.file("folder.fms")})
        EXPECT_EQ(shell::OpenProjectFile(s, port, path, counting.hooks()), shell::OpenResult::Unreadable) << path;
    EXPECT_EQ(counting.clears, 0);
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(s.store.pages[0][0].AttributeText, "[Before=1]\r\n");
}

TEST_F(OpenByPath, AFileOfTheSameModeAsksToClearAndKeptRowsStay)
{
    const std::string path = dir.file("one.fms");
    test::WriteFileBytes(path, ProjectWithSetup("[After=2]\r\n"));
    counting.keep = 1;
    EXPECT_EQ(shell::OpenProjectFile(s, port, path, counting.hooks()), shell::OpenResult::Kept);
    EXPECT_EQ(counting.clears, 1);
    EXPECT_EQ(counting.remembered, 0);
    EXPECT_EQ(s.store.pages[0][0].AttributeText, "[Before=1]\r\n");

    counting.keep = 0;
    EXPECT_EQ(shell::OpenProjectFile(s, port, path, counting.hooks()), shell::OpenResult::Opened);
    EXPECT_EQ(counting.clears, 2);
    EXPECT_EQ(counting.remembered, 1);
    EXPECT_TRUE(counting.switches.empty());
    EXPECT_EQ(s.store.pages[0][0].AttributeText, "[After=2]\r\n");
    EXPECT_FALSE(store::HasUnsavedChanges(s));
}

TEST_F(OpenByPath, ASurveyFileSwitchesTheModeAndIsNamedWithoutDotDot)
{
    test::WriteFileBytes(dir.file("sub/x.txt"), "");
    test::WriteFileBytes(dir.file("two.SRV"), ProjectWithSetup("[Survey=3]\r\n"));
    s.store.state.ProjectMode = model::Mode::Form;
    EXPECT_EQ(shell::OpenProjectFile(s, port, dir.file("sub/../two.SRV"), counting.hooks()), shell::OpenResult::Opened);
    EXPECT_EQ(counting.switches, std::vector<model::Mode>{model::Mode::Survey});
    EXPECT_EQ(counting.clears, 0);
    EXPECT_EQ(s.store.state.CurrentFileName, dir.file("two.SRV"));
    EXPECT_EQ(s.store.pages[0][0].AttributeText, "[Survey=3]\r\n");
}
