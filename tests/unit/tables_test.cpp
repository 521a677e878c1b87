// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/tables.h"
#include "html_fixture.h"

#include <gtest/gtest.h>

using tq::test::Golden;
using tq::test::HtmlFixture;
namespace html = tq::html;

namespace {

void TableColours(HtmlFixture& f)
{
    auto& v = f.s.build.values;
    v.TableTextColorHex = "0000FF";
    v.ChoicesBackColorHex = "EEEEEE";
    v.AnswerBackColorHex = "FFFFFF";
    v.TextColorHex = "123456"; // the heading's colour never shows in a table
}

} // namespace

TEST(Tables, TextTableShowsRequiredAndOnlyTheNumberOfANumberedCaption)
{
    HtmlFixture f("SURVEY");
    TableColours(f);
    auto& v = f.s.build.values;
    v.ALIGN = "center";
    v.TitleSize = "2";
    v.TableBold = "ON";
    v.TableItalics = "off";
    v.ColChoice = "Service";
    v.RowChoices.push("Good");
    v.RowChoices.push("Bad");
    f.s.build.setupValues.NumberEachQuestion = "YES";
    html::WriteTableText(f.s.build, tq::model::Mode::Survey, "table9", "ignored",
                         tq::model::InputTypeRow(tq::model::InputTypeId::TableTextRequired), "", "yes");
    EXPECT_EQ(f.Output(), Golden("survey/table_text_required_numbered.htm"));
    EXPECT_EQ(f.s.build.messageLineCount, 2);
    EXPECT_EQ(f.s.build.messageLines[1] + " " + f.s.build.messageLines[2], "1. Service table9");
}

TEST(Tables, ChoicesTableInAWholePageIsADocumentOfItsOwnWithTheStarInTheCaption)
{
    HtmlFixture f("SURVEY");
    TableColours(f);
    f.s.build.wholePage = true;
    f.s.build.setupValues.BackgroundColorHex = "FFFFCC";
    auto& v = f.s.build.values;
    v.TableItalics = "on";
    v.ColChoice = "Rate\\nus";
    for (const char* c : {"1", "2", "3"})
        v.RowChoices.push(c);
    html::WriteTableChoices(f.s.build, tq::model::Mode::Survey, "table9", "",
                            tq::model::InputTypeRow(tq::model::InputTypeId::TableChoicesRequired), "", "YES");
    EXPECT_EQ(f.Output(), Golden("survey/table_choices_required_whole_page.htm"));
    EXPECT_EQ(f.s.build.messageLines[1], "1. Rate");
}
