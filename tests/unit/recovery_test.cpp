// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "session.h"
#include "store/project_file.h"
#include "store/recovery.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

using namespace tq;

namespace {

model::Entry& At(Session& s, int page, int row)
{
    return s.store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
}

void Put(Session& s, int page, int row, std::string type, std::string text)
{
    At(s, page, row).InputTypeName = std::move(type);
    At(s, page, row).AttributeText = std::move(text);
}

store::ProjectHooks ClearingHooks()
{
    store::ProjectHooks hooks;
    hooks.clearPrompt = [](Session& s, UiPort&) {
        s.store.pages = model::PageRows{};
        return 0;
    };
    hooks.switchMode = [](Session& s, UiPort&, tq::model::Mode mode, int) { s.store.state.ProjectMode = mode; };
    return hooks;
}

} // namespace

TEST(Recovery, EveryByteComesBackAndAnythingLessThanAWholeCopyIsRefused)
{
    Session s;
    s.store.state.ProjectMode = tq::model::Mode::Survey;
    s.store.state.CurrentFileName = "/home/u/odd\nname 12:.srv";
    Put(s, 1, 0, "Setup", std::string("[A=1]\r\n\0\xff\n3:x\n", 14)); // a NUL and a stray byte inside
    Put(s, 4, 24, "Email", "");
    At(s, 2, 3).ReferenceNumber = "42";
    const std::string text = store::RecoveryText(s);
    auto copy = store::ReadRecoveryText(text);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->mode, tq::model::Mode::Survey);
    EXPECT_EQ(copy->fileName, s.store.state.CurrentFileName);
    for (size_t p = 0; p < copy->pages.size(); ++p) {
        for (size_t r = 0; r < copy->pages[p].size(); ++r) {
            EXPECT_EQ(copy->pages[p][r].InputTypeName, s.store.pages[p][r].InputTypeName);
            EXPECT_EQ(copy->pages[p][r].AttributeText, s.store.pages[p][r].AttributeText);
            EXPECT_EQ(copy->pages[p][r].ReferenceNumber, s.store.pages[p][r].ReferenceNumber);
        }
    }
    // a copy cut anywhere, with a byte more, or with a length that points past the end
    for (size_t n = 0; n < text.size(); ++n)
        EXPECT_FALSE(store::ReadRecoveryText(text.substr(0, n))) << n;
    EXPECT_FALSE(store::ReadRecoveryText(text + "x"));
    for (const char* length : {"9", "06"}) {
        std::string changed = text;
        changed.replace(changed.find("6:SURVEY"), 1, length);
        EXPECT_FALSE(store::ReadRecoveryText(changed)) << length;
    }
    EXPECT_FALSE(store::ReadRecoveryText("TARNQUILL RECOVERY 1\n99999999999999999999999:x\n"));
    // the mode is written in one way only: another spelling would not come back byte for byte
    for (const char* mode : {"6:Survey", "4:FORM"}) {
        std::string changed = text;
        changed.replace(changed.find("6:SURVEY"), 8, mode);
        EXPECT_EQ(store::ReadRecoveryText(changed).has_value(), std::string(mode) == "4:FORM") << mode;
    }
}

TEST(Recovery, TheCopyFollowsTheRowsAndGoesWhenTheyAreSaved)
{
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
    s.DataFolder = dir.path();
    test::WriteFileBytes(dir.file("FormHistory.txt"), "");
    const std::string copy = dir.file("recovery.tqr");
    store::RecoveryKeeper keeper;
    EXPECT_FALSE(store::StartRecovery(keeper, s, port, {}));
    store::KeepRecovery(keeper, s);
    EXPECT_FALSE(std::filesystem::exists(copy)); // nothing changed, nothing written

    Put(s, 1, 3, "Name", "[Title=n]\r\n");
    store::KeepRecovery(keeper, s);
    EXPECT_EQ(test::ReadFileBytes(copy), store::RecoveryText(s));
    Put(s, 1, 3, "", "");
    store::KeepRecovery(keeper, s);
    EXPECT_FALSE(std::filesystem::exists(copy)); // back as it was opened

    Put(s, 1, 4, "Email", "[Title=e]\r\n");
    store::KeepRecovery(keeper, s);
    ASSERT_TRUE(std::filesystem::exists(copy));
    port.file(dir.file("mine"));
    ASSERT_TRUE(store::SaveProject(s, port, "fms"));
    store::KeepRecovery(keeper, s);
    EXPECT_FALSE(std::filesystem::exists(copy));
    EXPECT_TRUE(std::filesystem::exists(dir.file("mine.fms"))); // the user's file, never the copy
}

TEST(Recovery, AtStartANewerCopyIsOfferedAndRestoredAStaleOrRefusedOneRemoved)
{
    test::TempDir dir;
    const std::string copyPath = dir.file("recovery.tqr");
    const std::string project = dir.file("club.srv");
    Session crashed;
    crashed.DataFolder = dir.path();
    crashed.store.state.ProjectMode = tq::model::Mode::Survey;
    crashed.store.state.CurrentFileName = project;
    Put(crashed, 3, 7, "Rating", "[Title=r]\r\n");
    const std::string copy = store::RecoveryText(crashed);

    auto start = [&](std::optional<Answer> answer, const std::string& bytes) {
        test::WriteFileBytes(copyPath, bytes);
        auto fresh = std::make_unique<Session>();
        fresh->DataFolder = dir.path();
        test::ScriptedPort port;
        if (answer)
            port.answer(*answer);
        store::RecoveryKeeper keeper;
        const bool restored = store::StartRecovery(keeper, *fresh, port, ClearingHooks());
        return std::make_tuple(restored, std::move(fresh), port.shown);
    };

    // the project was saved before the copy was written: restored on Yes
    test::WriteFileBytes(project, "");
    std::filesystem::last_write_time(project, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    auto [restored, s, shown] = start(Answer::Yes, copy);
    ASSERT_TRUE(restored);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, "RESTORE ENTRIES");
    EXPECT_NE(shown[0].text.find(project), std::string::npos);
    EXPECT_EQ(At(*s, 3, 7).InputTypeName, "Rating");
    EXPECT_EQ(s->store.state.ProjectMode, tq::model::Mode::Survey);
    EXPECT_EQ(s->store.state.CurrentFileName, project);
    EXPECT_TRUE(std::filesystem::exists(copyPath)); // still unsaved

    // No removes it
    std::tie(restored, s, shown) = start(Answer::No, copy);
    EXPECT_FALSE(restored);
    EXPECT_TRUE(At(*s, 3, 7).InputTypeName.empty());
    EXPECT_FALSE(std::filesystem::exists(copyPath));

    // saved after the copy, or not a copy at all: removed without a question
    std::filesystem::last_write_time(project, std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
    for (const std::string& bytes : {copy, std::string("garbage")}) {
        std::tie(restored, s, shown) = start(std::nullopt, bytes);
        EXPECT_FALSE(restored);
        EXPECT_TRUE(shown.empty());
        EXPECT_FALSE(std::filesystem::exists(copyPath));
    }
}

TEST(OpenProject, ACancelledOrFailedOpenBringsTheClearedRowsBack)
{
    test::TempDir dir;
    for (std::optional<std::string> chosen : {std::optional<std::string>(), std::optional(dir.file("gone.fms"))}) {
        Session s;
        s.DataFolder = dir.path();
        Put(s, 1, 2, "Name", "[Title=n]\r\n");
        Put(s, 2, 0, "Email", "[Title=e]\r\n");
        const model::PageRows before = s.store.pages;
        test::ScriptedPort port;
        port.file(chosen);
        EXPECT_EQ(store::OpenProject(s, port, 2, "fms", false, ClearingHooks()), 1);
        EXPECT_EQ(At(s, 1, 2).AttributeText, before[0][2].AttributeText);
        EXPECT_EQ(At(s, 2, 0).InputTypeName, "Email");
    }
}

TEST(SaveProject, ANameWithoutAnExtensionGetsTheModesOne)
{
    test::TempDir dir;
    test::WriteFileBytes(dir.file("FormHistory.txt"), "");
    test::WriteFileBytes(dir.file("SurveyHistory.txt"), "");
    std::filesystem::create_directory(dir.file("a.b"));
    const std::pair<std::string, std::string> cases[][2] = {
        {{"club", "fms"}, {"club.fms", "FILE LOADED: "}},
        {{"club", "srv"}, {"club.srv", "FILE LOADED: "}},
        {{"other.", "srv"}, {"other.srv", "FILE LOADED: "}},
        {{"a.b/club", "fms"}, {"a.b/club.fms", "FILE LOADED: "}},
        {{"club.txt", "fms"}, {"club.txt", "NOTHING IS CURRENTLY LOADED"}},
    };
    for (const auto& c : cases) {
        Session s;
        s.DataFolder = dir.path();
        Put(s, 1, 0, "Setup", "[A=1]\r\n");
        test::ScriptedPort port;
        port.file(dir.file(c[0].first));
        ASSERT_TRUE(store::SaveProject(s, port, c[0].second)) << c[0].first;
        EXPECT_EQ(s.store.state.CurrentFileName, dir.file(c[1].first));
        EXPECT_TRUE(std::filesystem::exists(dir.file(c[1].first)));
        EXPECT_EQ(s.run.status.fileLabel.rfind(c[1].second, 0), 0u) << s.run.status.fileLabel;
    }
}
