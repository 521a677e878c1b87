// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/quick_preview.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/preview.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using namespace tq::shell;
using tq::test::Group;
using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;

namespace {

const std::string kCondition =
    Group("[Title=Do you want a show?]", "[Info: d]") + Group("[Error Message=Tell us]", "[Info: e]") +
    Group("[Title Size=3]", "[Info: s]") + Group("[Default Condition=none]", "[Choices=c]") +
    Group("[Condition Choices=yes,no]", "[Info: c]") + Group("[Align=left]", "[Choices=left,right,center]") +
    Group("[Italics=off]", "[Info: i]") + Group("[Bold=off]", "[Info: b]") + Group("[Text Color=0]", "[Choices=c]") +
    Group("[Required=yes]", "[Info: r]");
const std::string kFollowup =
    Group("[Title=When?]", "[Info: d]") + Group("[Error Message=Say when]", "[Info: e]") +
    Group("[Title Size=3]", "[Info: s]") + Group("[Align=left]", "[Choices=left,right,center]") +
    Group("[Followup Width=45]", "[Info: w]") + Group("[Followup Height=5]", "[Info: h]") +
    Group("[Italics=off]", "[Info: i]") + Group("[Bold=off]", "[Info: b]") + Group("[Text Color=0]", "[Choices=c]");

struct Fixture
{
    TempDir data;
    TempDir web;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    ScriptedPort port;

    Fixture()
    {
        s->DataFolder = data.path();
        s->store.pages[0][0] = {"Setup", test::SetupEntryText(web.path(), {.submit = "Send it", .image = ";x.gif"}), "",
                                true};
        s->store.pages[0][1] = {"Condition With Comment", kCondition, "", true};
        s->store.pages[0][2] = {"Followup With Comment", kFollowup, "", true};
    }
};

} // namespace

TEST(EntryPreview, AConditionIsBuiltWithItsFollowupIntoTheDataFolder)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 1);
    st.fields[0].Value = "Edited title";
    const std::string page = PreviewEntry(*f.s, f.port, st);
    ASSERT_EQ(page, f.data.file("Preview.htm"));
    const auto& slots = f.s->store.state.PreviewSlots;
    EXPECT_EQ(slots[0].InputTypeName, "Condition With Comment");
    EXPECT_NE(slots[0].AttributeText.find("[Title=Edited title]"), std::string::npos);
    EXPECT_EQ(slots[1].InputTypeName, "Followup With Comment");
    const std::string html = ReadFileBytes(page);
    EXPECT_EQ(html.rfind("<html>\r\n<body>\r\n", 0), 0u) << html;
    EXPECT_NE(html.find("<form action=\"\" method=\"post\">"), std::string::npos);
    EXPECT_NE(html.find("value=\"Send it\""), std::string::npos);
    // nothing in the web folder, nothing stored, the flags are down again
    EXPECT_TRUE(std::filesystem::is_empty(f.web.path()));
    EXPECT_EQ(f.s->store.pages[0][1].AttributeText, kCondition);
    EXPECT_FALSE(f.s->build.entryPreview);
    EXPECT_FALSE(f.s->build.wholePage);
    EXPECT_FALSE(f.s->store.state.PreviewFromEdit);
    // an Entry that is not a Condition takes no Followup along
    st = OpenEditPage(*f.s, f.port, 1, 2);
    ASSERT_FALSE(PreviewEntry(*f.s, f.port, st).empty());
    EXPECT_TRUE(f.s->store.state.PreviewSlots[1].InputTypeName.empty());
}

TEST(QuickPreview, PlainTextsGetTheFramedPage)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 1);
    const std::string page = PreviewAttribute(*f.s, f.port, st, 1, "Please  tell us\r\nabout it");
    ASSERT_EQ(page, f.data.file("Previewsingle.htm"));
    EXPECT_EQ(st.fields[1].Value, "Please  tell us\\nabout it");
    const std::string html = ReadFileBytes(page);
    EXPECT_EQ(html.rfind("<html>\r\n<body>\r\n<table border=\" & 4\"cellpadding=\"0\"width=\"100%\"", 0), 0u);
    EXPECT_NE(html.find("size=\"3\">\r\nERROR MESSAGE\r\n<br><br>\r\n</font></b>\r\n"
                        "Please  tell us <br>\r\nabout it<br>\r\n</form>\r\n"),
              std::string::npos)
        << html;
    const std::string tail = "  </center>\r\n</div>\r\n\r\n</body>\r\n</html>\r\n";
    EXPECT_EQ(html.substr(html.size() - tail.size()), tail);
    // a title has its place on the page: the Entry preview shows it
    EXPECT_EQ(PreviewAttribute(*f.s, f.port, st, 0, "New title"), f.data.file("Preview.htm"));
}

TEST(ShadeWidthBatch, AsksUntilTheValueIsGoodAndRewritesEveryShadeWidth)
{
    Fixture f;
    f.s->store.pages[1][0] = {"Name",
                              Group("[Title=x]", "[Info: d]") + Group("[Shade Width=40%]", "[Choices=1]") +
                                  Group("[Title Shade Width=10%]", "[Choices=1]"),
                              "", true};
    f.port.input(std::string("0"));
    f.port.input(std::string("abc"));
    f.port.input(std::string("75"));
    EXPECT_EQ(SetShadeWidthAll(*f.s, f.port), 1);
    const auto msgs = f.port.messages();
    ASSERT_EQ(msgs.size(), 2u);
    EXPECT_TRUE(Said(msgs[0], "Value must be from 1 to 100", "ERROR"));
    EXPECT_TRUE(Said(f.port.shown[0], "Enter from 1 to 100\r\rValue is in %", "SHADE WIDTH"));
    const std::string& text = f.s->store.pages[1][0].AttributeText;
    EXPECT_NE(text.find("[Shade Width=75]\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("[Title Shade Width=10%]"), std::string::npos);
    f.port.input(std::nullopt);
    EXPECT_EQ(SetShadeWidthAll(*f.s, f.port), -1);
}
