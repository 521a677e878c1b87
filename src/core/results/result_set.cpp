// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/result_set.h"

#include "model/text_ops.h"
#include "results/mail_message.h"

#include <algorithm>
#include <functional>
#include <set>

namespace tq::results {

namespace {

constexpr size_t kMaxGuessedChoices = 12;
constexpr size_t kMaxChoiceLength = 80;

void Skip(ResultSet& set, std::string_view why)
{
    ++set.skipped[std::string(why)];
}

std::uint64_t SameMailKey(const MailText& mail)
{
    if (!mail.messageId.empty())
        return std::hash<std::string>{}("id\n" + mail.messageId);
    // the text as a mail program may have stored it again: other line ends, blank lines added at the end
    std::string text;
    text.reserve(mail.text.size());
    for (const char c : mail.text)
        if (c != '\r')
            text += c;
    text.erase(text.find_last_not_of(" \t\n") + 1);
    return std::hash<std::string>{}("text\n" + mail.date + "\n" + mail.subject + "\n" + text);
}

size_t QuestionFor(ResultSet& set, const std::string& title)
{
    const auto it = set.byTitle.find(title);
    if (it != set.byTitle.end())
        return it->second;
    Question q;
    q.title = title;
    set.questions.push_back(q);
    set.byTitle.emplace(title, set.questions.size() - 1);
    return set.questions.size() - 1;
}

bool GuessChoices(const ResultSet& set, size_t q)
{
    std::set<std::string> seen;
    bool anyPicks = false;
    long answered = 0;
    for (const auto& row : set.rows) {
        if (q < row.picks.size() && !row.picks[q].empty()) {
            anyPicks = true;
            continue;
        }
        if (q >= row.cells.size() || row.cells[q].empty())
            continue;
        const std::string& v = row.cells[q];
        ++answered;
        if (v.size() > kMaxChoiceLength || v.find('\n') != std::string::npos)
            return false;
        seen.insert(v);
        if (seen.size() > kMaxGuessedChoices)
            return false;
    }
    // an answer that comes back is a choice; one that never repeats is typed text
    return anyPicks || (!seen.empty() && static_cast<long>(seen.size()) < answered);
}

} // namespace

ResultSet ResultsForProject(const ProjectQuestions& project)
{
    ResultSet set;
    set.withProject = true;
    set.captions = project.captions;
    set.from = project.from;
    for (const auto& q : project.questions) {
        set.questions.push_back(q);
        set.byTitle.emplace(q.title, set.questions.size() - 1);
    }
    return set;
}

void AddMail(ResultSet& set, std::string_view bytes, const std::string& origin)
{
    ++set.mailsRead;
    MailFault mailFault = MailFault::None;
    const MailText mail = ReadMailText(bytes, mailFault);
    switch (mailFault) {
    case MailFault::None:
        break;
    case MailFault::NotAMail:
        return Skip(set, kSkipNotAMail);
    case MailFault::NoText:
        return Skip(set, kSkipNoText);
    case MailFault::UnknownCharset:
        return Skip(set, kSkipCharset);
    }
    BodyFault bodyFault = BodyFault::None;
    auto submission = ReadResultBody(mail.text, set.captions, bodyFault);
    if (!submission)
        return Skip(set, bodyFault == BodyFault::CutOff ? kSkipCutOff : kSkipNotAResult);
    // the script's head names the project's sender, with "@" behind it
    if (set.withProject && !model::EqualsNoCase(submission->from, set.from + "@"))
        return Skip(set, kSkipOtherForm);
    if (!set.seen.insert(SameMailKey(mail)).second)
        return Skip(set, kSkipTwice);

    ResultRow row;
    row.date = std::move(submission->date);
    row.address = std::move(submission->address);
    row.origin = origin;
    for (auto& answer : submission->answers) {
        const size_t q = QuestionFor(set, answer.title);
        if (row.cells.size() <= q) {
            row.cells.resize(q + 1);
            row.picks.resize(q + 1);
        }
        // a question asked twice under one caption keeps both answers
        if (!row.cells[q].empty() && !answer.value.empty())
            row.cells[q] += "\n";
        row.cells[q] += answer.value;
        row.picks[q].insert(row.picks[q].end(), answer.picks.begin(), answer.picks.end());
    }
    set.rows.push_back(std::move(row));
}

long SkippedCount(const ResultSet& set)
{
    long n = 0;
    for (const auto& [why, count] : set.skipped)
        n += count;
    return n;
}

std::vector<QuestionCounts> CountAnswers(const ResultSet& set)
{
    std::vector<QuestionCounts> all;
    for (size_t q = 0; q < set.questions.size(); ++q) {
        const Question& question = set.questions[q];
        QuestionCounts c;
        c.question = q;
        c.choices = question.fromProject ? question.hasChoices : GuessChoices(set, q);
        std::unordered_map<std::string, size_t> index;
        for (const auto& choice : question.choices) {
            if (index.emplace(choice, c.counts.size()).second)
                c.counts.push_back({choice, 0, true});
        }
        auto add = [&](const std::string& value) {
            auto [it, fresh] = index.emplace(value, c.counts.size());
            if (fresh)
                c.counts.push_back({value, 0, false});
            ++c.counts[it->second].count;
        };
        for (const auto& row : set.rows) {
            const bool hasPicks = q < row.picks.size() && !row.picks[q].empty();
            const bool hasValue = q < row.cells.size() && !row.cells[q].empty();
            if (!hasPicks && !hasValue)
                continue;
            ++c.answered;
            if (!c.choices)
                continue;
            if (hasPicks) {
                for (const auto& pick : row.picks[q])
                    add(pick);
            } else {
                add(row.cells[q]);
            }
        }
        if (!c.choices)
            c.counts.clear();
        all.push_back(std::move(c));
    }
    return all;
}

double Percent(long count, long total)
{
    return total <= 0 ? 0.0 : 100.0 * static_cast<double>(count) / static_cast<double>(total);
}

} // namespace tq::results
