// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing_fixture.h"
#include "model/new_project.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;
using test::EditFixture;
using V = std::vector<std::string>;

TEST(InitNewProject, TheRowsOfEachMode)
{
    const std::pair<const char*, V> modes[] = {
        {"FORM", V{"Setup", "Title 1 Single Line", "Subject", "Name", "Email"}},
        {"SURVEY", V{"Setup", "Title Header", "Survey Intro", "Title 1 Single Line", "Table Choices Required",
                     "Table Text Required"}}};
    for (const auto& [mode, top] : modes) {
        SCOPED_TRACE(mode);
        EditFixture f(mode);
        InitNewProject(f.ctx);
        V page1 = top;
        page1.resize(15);
        page1.insert(page1.end(), {"Comments Not Required", "Security Code"});
        page1.resize(25);
        EXPECT_EQ(f.names(1, 0, 24), page1);
        EXPECT_EQ(CountFilledRows(f.store), static_cast<int>(top.size()) + 2);
        EXPECT_TRUE(f.at(1, 16).EditEnabled);
        EXPECT_FALSE(f.at(1, top.size()).EditEnabled);
    }
}

TEST(SwitchMode, ARefusedClearIsAbortedAndSaysWhy)
{
    EditFixture f;
    InitNewProject(f.ctx);
    f.port.answer(Answer::No);
    EXPECT_EQ(SwitchMode(f.ctx, {}, tq::model::Mode::Survey, 2, 0), 1);
    EXPECT_EQ(f.store.state.AbortFlag, 1);
    EXPECT_EQ(CountFilledRows(f.store), 7);
    EXPECT_TRUE(Said(f.port.last(), "All entries must be cleared before you can switch to the SURVEY page", "ABORTED",
                     Icon::Information));
    EXPECT_FALSE(f.store.state.SwitchInProgress);
    f.port.answer(Answer::No);
    SwitchMode(f.ctx, {}, tq::model::Mode::Form, 2, 0, true);
    EXPECT_EQ(f.port.last().text,
              "That is because all input type colors must be changed to black\rAll entries must be cleared before "
              "you can switch the table off.");
}
