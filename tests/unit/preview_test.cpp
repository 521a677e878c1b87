// SPDX-License-Identifier: GPL-3.0-or-later
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/preview.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using tq::test::Group;

TEST(ShadeWidthForAll, AsksUntilTheValueIsGoodAndLeavesTheTitleShadeWidth)
{
    auto s = std::make_unique<Session>();
    s->store.pages[0][1] = {"Name",
                            Group("[Title=x]", "[Info: d]") + Group("[Shade Width=40%]", "[Choices=1]") +
                                Group("[Title Shade Width=10%]", "[Choices=1]"),
                            "", true};
    test::ScriptedPort port;
    for (const char* answer : {"0", "abc", "75"})
        port.input(std::string(answer));
    EXPECT_EQ(shell::SetShadeWidthAll(*s, port), 1);
    ASSERT_EQ(port.messages().size(), 2u);
    EXPECT_TRUE(Said(port.messages()[0], "Value must be from 1 to 100", "ERROR"));
    EXPECT_TRUE(Said(port.shown[0], "Enter from 1 to 100\r\rValue is in %", "SHADE WIDTH"));
    const std::string& text = s->store.pages[0][1].AttributeText;
    EXPECT_NE(text.find("[Shade Width=75]\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("[Title Shade Width=10%]"), std::string::npos);
    port.input(std::nullopt);
    EXPECT_EQ(shell::SetShadeWidthAll(*s, port), -1);
}
