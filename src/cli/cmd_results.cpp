// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands.h"
#include "model/text_ops.h"
#include "results/csv_export.h"
#include "results/project_questions.h"
#include "results/read_sources.h"
#include "session.h"
#include "shell/quiet_port.h"

#include <cstdio>
#include <filesystem>
#include <istream>
#include <memory>
#include <ostream>
#include <unistd.h>

namespace tq::cli {

namespace {

struct ResultsOptions
{
    std::string project; // empty: the questions come from the mails
    std::vector<std::string> mail;
    std::optional<std::string> csv;
    std::optional<std::string> dataFolder;
    bool passwordStdin = false;
};

int Usage(std::ostream& err, const std::string& why)
{
    err << "tarnquill-cli: " << why << "\n"
        << "usage: tarnquill-cli results [PROJECT] --mail PATH... [--csv OUT] [--data-folder DIR] "
           "[--password-stdin]\n";
    return 2;
}

std::optional<ResultsOptions> ParseResults(const std::vector<std::string>& args, std::ostream& err)
{
    ResultsOptions o;
    bool inMail = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--mail") {
            inMail = true;
        } else if (a == "--password-stdin") {
            o.passwordStdin = true;
        } else if (a == "--csv" || a == "--data-folder") {
            if (i + 1 >= args.size()) {
                Usage(err, a + " needs a value");
                return std::nullopt;
            }
            (a == "--csv" ? o.csv : o.dataFolder) = args[++i];
            inMail = false;
        } else if (!a.empty() && a[0] == '-') {
            Usage(err, "unknown option '" + a + "'");
            return std::nullopt;
        } else if (inMail) {
            o.mail.push_back(a);
        } else if (o.project.empty()) {
            o.project = a;
        } else {
            Usage(err, "more than one PROJECT");
            return std::nullopt;
        }
    }
    if (o.mail.empty()) {
        Usage(err, "results needs --mail PATH");
        return std::nullopt;
    }
    return o;
}

std::string Percent1(long count, long total)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f%%", results::Percent(count, total));
    return text;
}

// Opens the project and takes its questions; prints the reason and returns false when it cannot.
bool LoadProject(const ResultsOptions& o, results::ResultSet& set, std::ostream& err)
{
    auto s = std::make_unique<Session>();
    namespace fs = std::filesystem;
    std::error_code ec;
    const fs::path scratch = fs::temp_directory_path(ec) / ("tq-results-" + std::to_string(getpid()));
    fs::create_directories(scratch / "site", ec);
    fs::create_directories(scratch / "data", ec);
    if (o.dataFolder)
        s->DataFolder = *o.dataFolder;
    else if (auto folder = DefaultDataFolder())
        s->DataFolder = *folder;
    else
        s->DataFolder = (scratch / "data").string(); // the build's working files are scratch here

    bool ok = false;
    s->store.state.ProjectMode = ModeOfFile(o.project);
    shell::QuietPort quiet;
    if (OpenProjectForCommand(*s, quiet, o.project, err)) {
        results::ProjectQuestions questions;
        std::string why;
        ok = results::ReadProjectQuestions(*s, (scratch / "site").string(), questions, why);
        if (ok)
            set = results::ResultsForProject(questions);
        else
            err << "tarnquill-cli: " << o.project << " does not build: " << why << "\n";
    }
    fs::remove_all(scratch, ec);
    return ok;
}

void PrintCounts(const results::ResultSet& set, std::ostream& out)
{
    const long total = static_cast<long>(set.rows.size());
    out << "Submissions: " << total << "\n";
    out << "Skipped: " << results::SkippedCount(set);
    const char* sep = " (";
    for (const auto& [why, count] : set.skipped) {
        out << sep << why << ": " << count;
        sep = ", ";
    }
    out << (set.skipped.empty() ? "" : ")") << "\n";
    for (const auto& c : results::CountAnswers(set)) {
        const auto& q = set.questions[c.question];
        if (!c.choices) {
            out << q.title << "\n  text answers: " << c.answered << "\n";
            continue;
        }
        out << q.title << "\n";
        for (const auto& choice : c.counts)
            out << "  " << (choice.choice.empty() ? "(empty)" : choice.choice) << ": " << choice.count << " ("
                << Percent1(choice.count, total) << ")\n";
    }
}

} // namespace

int CmdResults(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err)
{
    const auto options = ParseResults(args, err);
    if (!options)
        return 2;
    const ResultsOptions& o = *options;
    results::ResultSet set;
    if (!o.project.empty() && !LoadProject(o, set, err))
        return 1;
    std::string password;
    if (o.passwordStdin)
        std::getline(in, password);

    bool anyRead = false;
    for (const auto& report : results::ReadSources(set, o.mail, password)) {
        anyRead = anyRead || report.read;
        if (!report.error.empty())
            err << "tarnquill-cli: " << report.source << ": " << report.error << "\n";
    }
    PrintCounts(set, out);
    if (o.csv && !results::WriteResultsCsv(set, *o.csv)) {
        err << "tarnquill-cli: cannot write " << *o.csv << "\n";
        return 1;
    }
    return anyRead && !set.rows.empty() ? 0 : 1;
}

} // namespace tq::cli
