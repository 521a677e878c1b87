// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/build_driver.h"
#include "model/attribute_text.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::test::ScriptedPort;

TEST(LargeInput, TenMegabytesOfItemsAreNormalisedAndReadToTheEnd)
{
    std::string text;
    int items = 0;
    while (text.size() < (10u << 20)) {
        text += "[Title=Question " + std::to_string(items) + "] [Info: help text " + std::to_string(items) + "] ";
        items += 2;
    }
    ScriptedPort port;
    const std::string stored = tq::model::NormalizeAttributeText(port, text);
    EXPECT_TRUE(port.shown.empty());
    size_t lines = 0;
    for (size_t at = stored.find("\r\n"); at != std::string::npos; at = stored.find("\r\n", at + 2))
        ++lines;
    EXPECT_EQ(lines, static_cast<size_t>(items));
    tq::model::AttributeCursor cursor(text);
    std::string value;
    int err = 0, read = 0;
    while (!cursor.rest().empty() && err == 0) {
        tq::model::TakeAttribute(port, "[", value, cursor, err);
        ++read;
    }
    EXPECT_EQ(read, items);
    EXPECT_EQ(value, "Info: help text " + std::to_string(items - 2));
}

TEST(LargeInput, PassingAListBoundIsToldAsAnInternalErrorAndStopsTheBuild)
{
    std::string choices;
    for (int i = 0; i < 10000; ++i)
        choices += (i ? "," : "") + std::string("Choice ") + std::to_string(i);
    tq::test::TempDir web, data;
    auto s = std::make_unique<tq::Session>();
    ScriptedPort port;
    s->DataFolder = data.path();
    s->store.state.ProjectMode = tq::model::Mode::Form;
    s->store.pages[0][0] = {"Setup", tq::test::SetupEntryText(web.path()), "1", false, tq::model::Highlight::None};
    std::string text = tq::test::ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/templates/form/dropdown_required.txt");
    const std::string key = "[Default Dropdown Value=";
    const size_t at = text.find(key) + key.size();
    text.replace(at, text.find(']', at) - at, choices);
    s->store.pages[0][1] = {"Dropdown Required", text, "2", false, tq::model::Highlight::None};
    tq::compose::CreateFormOnly(*s, port);
    EXPECT_EQ(s->build.buildError, 1);
    ASSERT_FALSE(port.messages().empty());
    EXPECT_TRUE(Said(port.last(), "internal error: list bound 100 passed", "INTERNAL ERROR"));
    EXPECT_FALSE(s->build.inProgress);
}
