// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/catalogue.h"
#include "model/editing.h"
#include "model/new_project.h"
#include "model/templates.h"
#include "model/text_ops.h"
#include "scripted_port.h"
#include "session.h"
#include "store/project_file.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

using tq::test::ReadFileBytes;
using tq::test::WriteFileBytes;

namespace {

const std::string kSource = TQ_SOURCE_DIR;

// A project made as a user makes one: Create Form or Create Survey, the
// default rows cleared, then Input Types added from the pick list, each
// Followup placed behind its partner by the program.
class ProjectMaker
{
  public:
    explicit ProjectMaker(const std::string& mode)
    {
        // a fixed draw: every RandomCode is 44444444
        s.catalogue.Random = [] { return 0.5; };
        tq::model::InitCatalogueAtStartup(s.store, s.settings, s.catalogue);
        EXPECT_TRUE(tq::model::CreateNewProject(c, tq::model::ModeHooks{}, mode, 2));
        for (int row = 1; row < tq::model::kRowsPerPage; ++row)
            if (!s.store.pages[0][static_cast<size_t>(row)].InputTypeName.empty())
                tq::model::ClearRow(c, 1, row);
    }

    /// The names of the pick list, in its order.
    std::vector<std::string> pickList() const
    {
        std::vector<std::string> names;
        for (int i = 0; i <= s.catalogue.CatalogueCount; ++i)
            if (!s.catalogue.CatalogueNames[i].empty())
                names.push_back(s.catalogue.CatalogueNames[i]);
        return names;
    }

    /// Adds `name` from the pick list to the first free row (its Followup
    /// behind it) and returns the row's ordinal.
    int add(const std::string& name)
    {
        const int index = tq::model::FindCatalogueIndex(s.catalogue, name);
        EXPECT_GE(index, 0) << name;
        const auto at = tq::model::AddToFirstFreeRow(c, 1, index);
        EXPECT_TRUE(at.has_value()) << name;
        return at ? tq::model::RowOrdinal(at->page, at->row) : 0;
    }

    tq::model::Entry& row(int k)
    {
        if (k < 1 || k > tq::model::kMaxEntries)
            throw std::out_of_range("row ordinal");
        return s.store.pages[(k - 1) / tq::model::kRowsPerPage][(k - 1) % tq::model::kRowsPerPage];
    }

    int filledRows() const
    {
        int n = 0;
        for (const auto& page : s.store.pages)
            for (const auto& e : page)
                n += e.InputTypeName.empty() ? 0 : 1;
        return n;
    }

    /// Sets the value of the first attribute `key` (any case) of row `k`;
    /// ordinal 0 is the SetupEntry.
    void set(int k, const std::string& key, const std::string& value)
    {
        std::string& text = k == 0 ? s.store.pages[0][0].AttributeText : row(k).AttributeText;
        const std::string mark = "[" + tq::model::ToUpper(key) + "=";
        const size_t at = tq::model::ToUpper(text).find(mark);
        ASSERT_NE(at, std::string::npos) << key << " in row " << k;
        const size_t from = at + mark.size();
        const size_t to = text.find(']', from);
        ASSERT_NE(to, std::string::npos);
        text.replace(from, to - from, value);
    }

    /// Takes the semi-colon off every sample value, so the samples point at
    /// the sample site; the SetupEntry's background picture stays off.
    void activateSamplePaths()
    {
        for (auto& page : s.store.pages)
            for (auto& e : page) {
                if (tq::model::ToUpper(e.InputTypeName) == "SETUP")
                    continue;
                for (size_t at = e.AttributeText.find("=;"); at != std::string::npos;
                     at = e.AttributeText.find("=;", at + 1))
                    e.AttributeText.erase(at + 1, 1);
            }
    }

    /// The project file a save writes.
    std::string projectFile() const { return tq::store::FormatProjectFile(tq::store::WriteEntries(s.store)); }

  private:
    tq::test::ScriptedPort port;
    tq::Session s;
    tq::model::EditContext c{s.store, s.settings, s.catalogue, port};
};

// Compares the committed file with `made`, or writes it when asked to.
void CheckOrWrite(const std::string& path, const std::string& made)
{
    const char* write = std::getenv("TQ_WRITE_PROJECTS");
    if (write != nullptr && std::string(write) == "1") {
        WriteFileBytes(path, made);
        return;
    }
    EXPECT_EQ(ReadFileBytes(path), made) << path << " is not what the program makes now; "
                                         << "rerun with TQ_WRITE_PROJECTS=1 and review the difference";
}

// The setup values every project here needs so that it builds.
void FillSetup(ProjectMaker& m, const std::string& from)
{
    m.set(0, "Drive Folder Path", "/tmp");
    m.set(0, "FROM", from);
    m.set(0, "Completed", "thankyou.htm");
    m.set(0, "Email #1", "webmaster@tarnquill.example");
}

// A project file brings back no more than 25 rows: the reader of the later
// Pages doesn't know the marker lines. So the Input Types of a mode, in
// pick-list order with each Followup behind its partner, are shared out over
// two sample projects of at most 25 rows each (the SetupEntry in both).
std::vector<std::vector<std::string>> SampleParts(const std::vector<std::string>& names)
{
    std::vector<std::vector<std::string>> parts(1);
    int rows = 1;
    for (const auto& name : names) {
        const int need = tq::model::PairRows(name);
        if (rows + need > tq::model::kRowsPerPage) {
            parts.emplace_back();
            rows = 1;
        }
        parts.back().push_back(name);
        rows += need;
    }
    return parts;
}

// Sample `part` (0 or 1) of a mode; every sample path made active (the
// background picture stays off).
std::string MakeSample(const std::string& mode, size_t part)
{
    ProjectMaker m(mode);
    const auto parts = SampleParts(m.pickList());
    if (part >= parts.size()) {
        ADD_FAILURE() << "no sample part " << part;
        return {};
    }
    for (const auto& name : parts[part])
        m.add(name);
    FillSetup(m, mode == "FORM" ? "Tarnquill Sample Form" : "Tarnquill Sample Survey");
    m.activateSamplePaths();
    return m.projectFile();
}

} // namespace

TEST(SampleProjects, TheTwoSamplesOfAModeHoldEveryInputTypeOnce)
{
    for (const std::string mode : {"FORM", "SURVEY"}) {
        ProjectMaker all(mode);
        const auto names = all.pickList();
        EXPECT_EQ(names.size(), mode == "FORM" ? 33u : 35u);
        const auto parts = SampleParts(names);
        ASSERT_EQ(parts.size(), 2u) << mode;
        std::vector<std::string> joined;
        for (const auto& part : parts) {
            ProjectMaker m(mode);
            for (const auto& name : part) {
                m.add(name);
                joined.push_back(name);
            }
            EXPECT_LE(m.filledRows(), tq::model::kRowsPerPage) << mode;
            // every partner has its Followup right behind it
            for (int k = 1; k < tq::model::kRowsPerPage; ++k) {
                const std::string_view f = tq::model::FollowupFor(m.row(k).InputTypeName);
                if (!f.empty()) {
                    EXPECT_EQ(m.row(k + 1).InputTypeName, f) << m.row(k).InputTypeName;
                }
            }
        }
        EXPECT_EQ(joined, names) << mode;
    }
}

TEST(SampleProjects, SamplesAreWhatTheProgramMakes)
{
    const std::string folder = kSource + "/data/samples/";
    for (const char* name : {"sample_form.fms", "sample_form_2.fms", "sample_survey.srv", "sample_survey_2.srv"}) {
        const std::string n = name;
        CheckOrWrite(folder + n, MakeSample(n.find("form") != std::string::npos ? "FORM" : "SURVEY",
                                            n.find("_2.") != std::string::npos ? 1 : 0));
    }
}

// The FORM of the end-to-end scenarios: what a visitor fills in, checked by
// the script, mailed to three addresses. No Cell Phone Number and no User
// Name: their scripts cannot run (a blank inside a variable name).
TEST(SampleProjects, EndToEndFormIsWhatTheProgramMakes)
{
    ProjectMaker m("FORM");
    FillSetup(m, "Tarnquill Test");
    m.set(0, "Email #1", "a@example.com");
    m.set(0, "Email #2", "b@example.com");
    m.set(0, "Email #3", "c@example.com");
    for (const char* name : {"Title 1 Single Line", "Name", "Email", "Subject", "Phone Number"})
        m.add(name);
    const int comments = m.add("Comments Required");
    m.set(comments, "Title", "Wie haben Sie uns gefunden? Grüße aus Łódź");
    for (const char* name : {"Question YesNo Required", "Dropdown Required", "Checkbox Horizontal"})
        m.add(name);
    const int condition = m.add("Condition With Comment");
    m.set(condition + 1, "Title", "Tell us when");
    const int password = m.add("Password");
    m.set(password, "Password", "Pw1");
    const int code = m.add("Security Code");
    m.set(code, "Title", "For added security, please enter 4711 for the security code");
    m.set(code, "Password", "4711");
    const int download = m.add("Download Files With Password");
    m.set(download, "Server Download", "/files");
    m.set(download, "Files", "a.zip,b.pdf");
    m.set(download + 1, "Password", "Secret");
    m.set(download, "Thank You File", "index.htm");
    m.activateSamplePaths();
    CheckOrWrite(kSource + "/tests/e2e/fixtures/e2e_form.fms", m.projectFile());
}

// The SURVEY of the end-to-end scenarios: both tables, dropdowns, checkboxes.
TEST(SampleProjects, EndToEndSurveyIsWhatTheProgramMakes)
{
    ProjectMaker m("SURVEY");
    FillSetup(m, "Tarnquill Survey Test");
    for (const char* name : {"Title Header", "Name", "Table Choices Required", "Table Text Required",
                             "Dropdown Required", "Dropdown Not Required", "Checkbox Horizontal"})
        m.add(name);
    m.activateSamplePaths();
    CheckOrWrite(kSource + "/tests/e2e/fixtures/e2e_survey.srv", m.projectFile());
}

// A FORM that holds the two Input Types whose scripts PHP refuses.
TEST(SampleProjects, BlankKeyFormIsWhatTheProgramMakes)
{
    ProjectMaker m("FORM");
    FillSetup(m, "Tarnquill Test");
    for (const char* name : {"Name", "Cell Phone Number", "User Name"})
        m.add(name);
    m.activateSamplePaths();
    CheckOrWrite(kSource + "/tests/e2e/fixtures/blank_keys.fms", m.projectFile());
}
