// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/build_driver.h"
#include "model/attribute_text.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::model::AttributeCursor;
using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;

namespace {

constexpr size_t kTenMegabytes = 10u << 20;

/// Ordinary items, one after another on one line, up to about `bytes`.
std::string ManyItems(size_t bytes, int& items)
{
    std::string text;
    text.reserve(bytes + 64);
    items = 0;
    while (text.size() < bytes) {
        text += "[Title=Question " + std::to_string(items) + "] [Info: help text " + std::to_string(items) + "] ";
        items += 2;
    }
    return text;
}

/// The text of the first row of `type` in a sample project.
std::string SampleRow(const std::string& sample, const std::string& type)
{
    auto bytes = tq::store::ReadWholeFile(std::string(TQ_DATA_DIR) + "/samples/" + sample);
    EXPECT_TRUE(bytes.has_value()) << sample;
    tq::model::EntryStore store;
    auto reader = tq::store::ReaderOf(bytes.value_or(""));
    tq::store::ReadEntries(store, reader);
    for (const auto& page : store.pages)
        for (const auto& row : page)
            if (row.InputTypeName == type)
                return row.AttributeText;
    ADD_FAILURE() << type << " not in " << sample;
    return {};
}

/// The text with the value of `key` (e.g. "[Title=") replaced by `value`.
std::string WithValue(std::string text, const std::string& key, const std::string& value)
{
    const size_t at = text.find(key);
    EXPECT_NE(at, std::string::npos) << key;
    if (at == std::string::npos)
        return text;
    const size_t start = at + key.size();
    text.replace(start, text.find(']', start) - start, value);
    return text;
}

/// A FORM whose only question is `type` with `text`, built into a fresh folder.
struct OneEntryBuild
{
    TempDir web, data;
    std::unique_ptr<tq::Session> s = std::make_unique<tq::Session>();
    ScriptedPort port;

    OneEntryBuild(const std::string& type, const std::string& text)
    {
        s->DataFolder = data.path();
        s->store.state.ProjectMode = "FORM";
        s->store.pages[0][0] = {"Setup", tq::test::SetupEntryText(web.path()), "1", false, tq::model::Highlight::None};
        s->store.pages[0][1] = {type, text, "2", false, tq::model::Highlight::None};
        tq::build::CreateFormOnly(*s, port);
    }
    std::string html() const { return ReadFileBytes(web.file("formtql.htm")); }
};

} // namespace

TEST(LargeInput, TenMegabytesOfItemsAreNormalisedAndReadToTheEnd)
{
    int items = 0;
    const std::string text = ManyItems(kTenMegabytes, items);
    ScriptedPort port;
    const std::string stored = tq::model::NormalizeAttributeText(port, text);
    EXPECT_TRUE(port.shown.empty());
    size_t lines = 0;
    for (size_t at = stored.find("\r\n"); at != std::string::npos; at = stored.find("\r\n", at + 2))
        ++lines;
    EXPECT_EQ(lines, static_cast<size_t>(items));
    AttributeCursor cursor(text);
    std::string value;
    int err = 0, read = 0;
    while (!cursor.rest().empty() && err == 0) {
        tq::model::TakeAttribute(port, "[", value, cursor, err);
        ++read;
    }
    EXPECT_EQ(err, 0);
    EXPECT_EQ(read, items);
    EXPECT_EQ(value, "Info: help text " + std::to_string(items - 2));
}

TEST(LargeInput, ATenMegabyteTitleIsBuiltWhole)
{
    const std::string title(kTenMegabytes, 'a');
    OneEntryBuild b("Title 1 Single Line",
                    WithValue(SampleRow("sample_form_2.fms", "Title 1 Single Line"), "[Title=", title));
    EXPECT_EQ(b.s->build.buildError, 0);
    EXPECT_NE(b.html().find(title), std::string::npos);
}

TEST(LargeInput, TenThousandChoicesPassTheListBoundAndAreToldAsAnInternalError)
{
    std::string choices;
    for (int i = 0; i < 10000; ++i)
        choices += (i ? "," : "") + std::string("Choice ") + std::to_string(i);
    // the reader alone: the bound of 100 items is reported, not passed
    std::string text = "[Choices=" + choices + "]";
    tq::model::ChoiceList list;
    int err = 0;
    ScriptedPort quiet;
    EXPECT_THROW(tq::model::TakeChoiceList(quiet, "[CHOICES", text, list, err), tq::model::InternalError);
    EXPECT_EQ(list.count(), 100);
    // through a build: the box of an internal error, and the build stops
    OneEntryBuild b("Dropdown Required",
                    WithValue(SampleRow("sample_form.fms", "Dropdown Required"), "[Default Dropdown Value=", choices));
    EXPECT_EQ(b.s->build.buildError, 1);
    ASSERT_FALSE(b.port.messages().empty());
    EXPECT_TRUE(Said(b.port.last(), "internal error: list bound 100 passed", "INTERNAL ERROR"));
    EXPECT_FALSE(b.s->build.inProgress);
}

TEST(LargeInput, AThousandLineTitlePassesTheLineBoundAndIsToldAsAnInternalError)
{
    std::string lines;
    for (int i = 0; i < 1000; ++i)
        lines += (i ? "\\n" : "") + std::string("Line ") + std::to_string(i);
    EXPECT_THROW(tq::model::SplitLines(lines), tq::model::InternalError);
    EXPECT_THROW(tq::model::SplitHtmlLines(lines), tq::model::InternalError);
    OneEntryBuild b("Title 2 Double Line",
                    WithValue(SampleRow("sample_form_2.fms", "Title 2 Double Line"), "[Title=", lines));
    EXPECT_EQ(b.s->build.buildError, 1);
    ASSERT_FALSE(b.port.messages().empty());
    EXPECT_EQ(b.port.last().title, "INTERNAL ERROR");
}
