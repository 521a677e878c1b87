// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/result_body.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tq::results {

/// One column of the results: a question of the project, or one that only
/// the mails know (a question changed since, or no project open).
struct Question
{
    std::string title;                // the caption as the mail shows it, lines joined by one blank
    std::string key;                  // the field key in the project's script; empty when from the mails
    bool fromProject = false;         // an Entry of the open project asks it
    bool hasChoices = false;          // the visitor picks from `choices`
    std::vector<std::string> choices; // what the form offers, in its order
};

/// One submission: the head of the mail and one cell per question.
struct ResultRow
{
    std::string date;
    std::string address;
    std::string origin;                          // where the mail was read
    std::vector<std::string> cells;              // by question index; shorter when later questions came in
    std::vector<std::vector<std::string>> picks; // the ticked boxes, by question index
};

/// What a project tells the reader: its questions in order, the caption
/// lines its script writes, and the sender its script names.
struct ProjectQuestions
{
    std::vector<Question> questions;
    KnownCaptions captions;
    std::string from; // the [FROM= value; a mail of this project's script starts its head with it and "@"
};

/// The results read so far.
struct ResultSet
{
    std::vector<Question> questions;
    std::vector<ResultRow> rows;
    std::map<std::string, long> skipped; // why -> how many mails
    long mailsRead = 0;

    KnownCaptions captions;
    std::string from;
    bool withProject = false;
    std::unordered_map<std::string, size_t> byTitle;
    std::unordered_set<std::uint64_t> seen;
};

/// Reasons a mail is skipped, as counted in `ResultSet::skipped`.
inline constexpr std::string_view kSkipNotAMail = "not a mail";
inline constexpr std::string_view kSkipNoText = "no text part";
inline constexpr std::string_view kSkipCharset = "text in an unknown charset";
inline constexpr std::string_view kSkipNotAResult = "not a form result";
inline constexpr std::string_view kSkipOtherForm = "sent by another form";
inline constexpr std::string_view kSkipCutOff = "cut off before \"End of message\"";
inline constexpr std::string_view kSkipTwice = "read twice";

/// An empty set that matches answers to the questions of a project.
ResultSet ResultsForProject(const ProjectQuestions& project);

/// Reads one stored mail into `set`: a new row, or one more count in
/// `skipped` with the reason. A mail is the same as one read before by its
/// Message-ID, else by its date, subject and text.
void AddMail(ResultSet& set, std::string_view bytes, const std::string& origin);

/// The number of mails skipped for any reason.
long SkippedCount(const ResultSet& set);

/// How often one choice was picked.
struct ChoiceCount
{
    std::string choice;
    long count = 0;
    bool offered = false; // the form offers it (false: only the mails hold it)
};

/// The counts of one question.
struct QuestionCounts
{
    size_t question = 0;
    bool choices = false;            // counted by choice (else a text question)
    std::vector<ChoiceCount> counts; // offered choices first, at 0 when nobody picked them
    long answered = 0;               // rows with a non-empty answer
};

/// Counts every question of `set`. A question of the project counts by
/// choice when it offers choices; a question only the mails know counts by
/// choice when it is a check box question, or when every answer is short and
/// on one line, there are at most twelve different ones and some come back.
std::vector<QuestionCounts> CountAnswers(const ResultSet& set);

/// The percentage of `count` out of `total` rows, 0 when there are none.
double Percent(long count, long total);

} // namespace tq::results
