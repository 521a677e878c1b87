// SPDX-License-Identifier: GPL-3.0-or-later
// Result mails: the body reader, MIME, mbox splitting, matching to a project, counts and CSV.
#include "results/csv_export.h"
#include "results/imap_source.h"
#include "results/mail_message.h"
#include "results/mail_sources.h"
#include "results/project_questions.h"
#include "results/result_body.h"
#include "results/result_set.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tq::results;

namespace {

// A body as the script writes it: the head, then caption/answer blocks, then the end.
std::string Body(const std::string& blocks, const std::string& from = "Shop")
{
    return "A message has been submitted from\r\n" + from +
           "@\r\n\r\nDate: Monday November 23, 2026\r\n\r\n"
           "Send from public IP Address\r\n10.0.0.7\r\n\r\n" +
           blocks + "End of message\r\n";
}

std::string Mail(const std::string& body, const std::string& extraHeaders = "")
{
    return "To: a@example.com\r\nSubject: Order\r\nfrom: Shop@\r\n" + extraHeaders + "\r\n" + body;
}

std::vector<std::pair<std::string, std::string>> Pairs(const Submission& s)
{
    std::vector<std::pair<std::string, std::string>> out;
    for (const auto& a : s.answers)
        out.emplace_back(a.title, a.value);
    return out;
}

} // namespace

TEST(ResultBody, NumberedCaptionsSplitAnswersEvenAcrossBlankLinesAndBoxes)
{
    const std::string text = Body("1. Name\r\nAnn &amp; &quot;Bo&quot;\r\n\r\n"
                                  "2. Comments\r\nLine one\r\n\r\nLine three\r\n\r\n"
                                  "3. Level\r\nChecked: Beginner\nChecked: Advanced\n\r\n\r\n"
                                  "4a. Karaoke?\r\nyes\r\n\r\n4b. When\r\n\r\nFriday\r\n\r\n"
                                  "5. Empty\r\n\r\n\r\n"
                                  "6. Password\r\n     (case sensitive)\r\nPw1\r\n\r\n");
    BodyFault fault;
    const auto s = ReadResultBody(text, {}, fault);
    ASSERT_TRUE(s);
    EXPECT_EQ(fault, BodyFault::None);
    EXPECT_EQ(s->from, "Shop@");
    EXPECT_EQ(s->date, "Monday November 23, 2026");
    EXPECT_EQ(s->address, "10.0.0.7");
    const std::vector<std::pair<std::string, std::string>> want{{"1. Name", "Ann & \"Bo\""},
                                                                {"2. Comments", "Line one\n\nLine three"},
                                                                {"3. Level", "Beginner\nAdvanced"},
                                                                {"4a. Karaoke?", "yes"},
                                                                {"4b. When", "Friday"},
                                                                {"5. Empty", ""},
                                                                {"6. Password (case sensitive)", "Pw1"}};
    EXPECT_EQ(Pairs(*s), want);
    EXPECT_EQ(s->answers[2].picks, (std::vector<std::string>{"Beginner", "Advanced"}));
}

TEST(ResultBody, KnownCaptionsAndUnnumberedForms)
{
    // unnumbered, no project: an answer ends at the first empty line
    BodyFault fault;
    auto s = ReadResultBody(Body("Name\r\nAnn\r\n\r\nCity\r\nRome\r\n\r\n"), {}, fault);
    ASSERT_TRUE(s);
    EXPECT_EQ(Pairs(*s), (std::vector<std::pair<std::string, std::string>>{{"Name", "Ann"}, {"City", "Rome"}}));

    // with the project's captions a caption of several lines and an answer with empty lines stay whole
    const KnownCaptions known{CaptionLines("Enter the code\\n   (exact)"), CaptionLines("Comments"),
                              CaptionLines("City")};
    s = ReadResultBody(
        Body("Enter the code\r\n   (exact)\r\nX1\r\n\r\nComments\r\nA\r\n\r\nB\r\n\r\nCity\r\nRome\r\n\r\n"), known,
        fault);
    ASSERT_TRUE(s);
    EXPECT_EQ(Pairs(*s), (std::vector<std::pair<std::string, std::string>>{
                             {"Enter the code (exact)", "X1"}, {"Comments", "A\n\nB"}, {"City", "Rome"}}));
    EXPECT_EQ(CaptionLines("\\nA&nbsp;B\\nC"), (std::vector<std::string>{"AB", "C"}));
}

TEST(ResultBody, OtherTextsAndCutMailsAreRefused)
{
    BodyFault fault;
    EXPECT_FALSE(ReadResultBody("Hello, how are you?\r\n", {}, fault));
    EXPECT_EQ(fault, BodyFault::NotAResult);
    const std::string whole = Body("1. Name\r\nAnn\r\n\r\n");
    EXPECT_FALSE(ReadResultBody(whole.substr(0, whole.size() - 20), {}, fault));
    EXPECT_EQ(fault, BodyFault::CutOff);
    EXPECT_FALSE(ReadResultBody(whole.substr(0, 40), {}, fault));
    EXPECT_EQ(fault, BodyFault::CutOff);
    // LF-only line ends, as a mail program may store them
    std::string lf = whole;
    std::erase(lf, '\r');
    EXPECT_TRUE(ReadResultBody(lf, {}, fault));
}

TEST(MailText, TransferEncodingsCharsetsAndWrappersAreUndone)
{
    const std::string body = Body("1. Name\r\nZoë\r\n\r\n");
    MailFault fault;
    // PHP's own mail: no MIME headers, UTF-8 bytes
    EXPECT_EQ(ReadMailText(Mail(body), fault).text, body);
    EXPECT_EQ(fault, MailFault::None);

    const std::string qp = Mail(Body("1. Name\r\nZo=C3=AB\r\n\r\n"), "MIME-Version: 1.0\r\nContent-Type: text/plain; "
                                                                     "charset=utf-8\r\nContent-Transfer-Encoding: "
                                                                     "quoted-printable\r\nMessage-ID: <a@b>\r\n");
    const MailText m = ReadMailText(qp, fault);
    EXPECT_EQ(m.text, body);
    EXPECT_EQ(m.messageId, "a@b");

    const std::string latin1 =
        Mail(Body("1. Name\r\nZo\xEB\r\n\r\n"), "Content-Type: text/plain; charset=iso-8859-1\r\n");
    EXPECT_EQ(ReadMailText(latin1, fault).text, body);

    // re-wrapped: multipart/mixed with the text base64-encoded and a binary attachment first
    const std::string wrapped =
        Mail("--XX\r\nContent-Type: application/octet-stream\r\nContent-Disposition: "
             "attachment\r\n\r\nAAAA\r\n--XX\r\nContent-Type: text/plain; charset=utf-8\r\n"
             "Content-Transfer-Encoding: base64\r\n\r\n" +
                 std::string("QSBtZXNzYWdlIGhhcyBiZWVuIHN1Ym1pdHRlZCBmcm9tDQo=") + "\r\n--XX--\r\n",
             "MIME-Version: 1.0\r\nContent-Type: multipart/mixed; boundary=XX\r\n");
    EXPECT_EQ(ReadMailText(wrapped, fault).text, "A message has been submitted from\r\n");

    const std::string forwarded = Mail("--F\r\nContent-Type: message/rfc822\r\n\r\n" + Mail(body) + "\r\n--F--\r\n",
                                       "MIME-Version: 1.0\r\nContent-Type: multipart/mixed; boundary=F\r\n");
    EXPECT_EQ(ReadMailText(forwarded, fault).text.substr(0, body.size()), body);

    ReadMailText(Mail(Body("1. Name\r\nZo\xEB\r\n\r\n"), "Content-Type: text/plain; charset=x-unheard-of\r\n"), fault);
    EXPECT_EQ(fault, MailFault::UnknownCharset);
    ReadMailText(Mail("x", "MIME-Version: 1.0\r\nContent-Type: image/png\r\n"), fault);
    EXPECT_EQ(fault, MailFault::NoText);
}

TEST(MailSources, MboxSplitsAtSeparatorsBehindEmptyLines)
{
    const std::string mbox = "junk before\n\nFrom a@b Mon Nov 23 10:00:00 2026\nSubject: 1\n\nbody\nFrom the start\n"
                             ">From quoted\n\nFrom c@d Mon Nov 23 10:00:01 2026\nSubject: 2\n\nbody\n";
    std::vector<std::string> mails;
    SplitMbox(mbox, "box", [&](std::string_view m, const std::string&) { mails.emplace_back(m); });
    EXPECT_EQ(mails, (std::vector<std::string>{"junk before\n\n", "Subject: 1\n\nbody\nFrom the start\nFrom quoted\n\n",
                                               "Subject: 2\n\nbody\n"}));
}

TEST(ResultSet, MatchesProjectCountsChoicesAndSkipsWhatIsNotItsOwn)
{
    namespace fs = std::filesystem;
    const fs::path scratch = fs::temp_directory_path() / ("tq-results-test-" + std::to_string(::getpid()));
    fs::create_directories(scratch / "site");
    fs::create_directories(scratch / "data");
    tq::Session s;
    s.DataFolder = (scratch / "data").string();
    s.store.state.ProjectMode = tq::model::Mode::Form;
    auto reader = tq::store::ReaderOf(*tq::store::ReadWholeFile(TQ_SOURCE_DIR "/tests/e2e/fixtures/e2e_form.fms"));
    tq::store::ReadEntries(s.store, reader);
    ProjectQuestions project;
    std::string error;
    ASSERT_TRUE(ReadProjectQuestions(s, (scratch / "site").string(), project, error)) << error;
    fs::remove_all(scratch);
    EXPECT_EQ(project.from, "Tarnquill Test");
    ASSERT_GE(project.questions.size(), 8u);
    EXPECT_EQ(project.questions[6].title, "7. Select a country from the dropdown list");
    EXPECT_EQ(project.questions[6].choices, (std::vector<std::string>{"Italy", "Germany", "Sweden", "not selected"}));
    EXPECT_EQ(project.questions[7].choices, (std::vector<std::string>{"Beginner", "Intermediate", "Advanced"}));
    EXPECT_FALSE(project.questions[0].hasChoices);

    ResultSet set = ResultsForProject(project);
    auto body = [](const std::string& country, const std::string& extra) {
        return Body("7. Select a country from the dropdown list\r\n" + country +
                        "\r\n\r\n8. Select your level of play\r\nChecked: Advanced\n\r\n\r\n" + extra,
                    "Tarnquill Test");
    };
    AddMail(set, Mail(body("Germany", ""), "Message-ID: <1@x>\r\n"), "m1");
    AddMail(set, Mail(body("Germany", "13. A question added later\r\nok\r\n\r\n"), "Message-ID: <2@x>\r\n"), "m2");
    AddMail(set, Mail(body("Sweden", ""), "Message-ID: <2@x>\r\n"), "m2 again");
    AddMail(set, Mail(body("Germany", "")), "no id");
    AddMail(set, Mail(body("Germany", "") + "\r\n\r\n"), "no id, stored again");
    AddMail(set, Mail(Body("1. Name\r\nX\r\n\r\n", "Other Form")), "other");
    AddMail(set, "\x01\x02 not a mail at all", "bytes");
    EXPECT_EQ(set.rows.size(), 3u);
    EXPECT_EQ(set.mailsRead, 7);
    EXPECT_EQ(set.skipped,
              (std::map<std::string, long>{
                  {std::string(kSkipTwice), 2}, {std::string(kSkipOtherForm), 1}, {std::string(kSkipNotAMail), 1}}));
    // the changed question is a column of its own, behind the project's
    EXPECT_EQ(set.questions.back().title, "13. A question added later");
    EXPECT_FALSE(set.questions.back().fromProject);

    const auto counts = CountAnswers(set);
    const auto& country = counts[6].counts;
    EXPECT_EQ(country.size(), 4u);
    EXPECT_EQ(country[0].count, 0); // Italy: offered, never picked
    EXPECT_EQ(country[1].count, 3);
    EXPECT_EQ(counts[7].counts[2].count, 3);
    EXPECT_FALSE(counts[0].choices);
    EXPECT_EQ(counts.back().answered, 1);
    EXPECT_DOUBLE_EQ(Percent(1, 3), 100.0 / 3);
    EXPECT_EQ(Percent(1, 0), 0.0);
}

TEST(ResultSet, WithoutProjectQuestionsComeFromTheMails)
{
    ResultSet set;
    for (const char* city : {"Rome", "Rome", "Oslo"})
        AddMail(set, Mail(Body("1. City\r\n" + std::string(city) + "\r\n\r\n2. Note\r\nsaid " + city + "\r\n\r\n")),
                city + std::string("-") + std::to_string(set.mailsRead));
    // two identical mails without Message-ID are one
    EXPECT_EQ(set.rows.size(), 2u);
    AddMail(set, Mail(Body("1. City\r\nRome\r\n\r\n2. Note\r\nthird\r\n\r\n")), "third");
    const auto counts = CountAnswers(set);
    EXPECT_TRUE(counts[0].choices); // Rome comes back
    EXPECT_FALSE(counts[1].choices);
    EXPECT_EQ(counts[1].answered, 3);
}

TEST(CsvExport, QuotesWhatASpreadsheetNeeds)
{
    EXPECT_EQ(CsvField("plain"), "plain");
    EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvField("say \"hi\""), "\"say \"\"hi\"\"\"");
    EXPECT_EQ(CsvField("one\ntwo\r\nthree"), "\"one\r\ntwo\r\nthree\"");
    EXPECT_EQ(CsvField(" padded"), "\" padded\"");

    ResultSet set;
    AddMail(set, Mail(Body("1. Name\r\nZoë, \"Z\"\r\n\r\n2. Level\r\nChecked: A\nChecked: B\n\r\n\r\n")), "m");
    EXPECT_EQ(ResultsCsv(set), "\xEF\xBB\xBF"
                               "Date,Address,1. Name,2. Level\r\n"
                               "\"Monday November 23, 2026\",10.0.0.7,\"Zoë, \"\"Z\"\"\",A; B\r\n");
}

TEST(ImapAddress, ReadsUserHostPortAndFolder)
{
    const auto t = ParseImapAddress("imap://results@127.0.0.1:10143/Forms/Survey");
    ASSERT_TRUE(t);
    EXPECT_EQ(t->user, "results");
    EXPECT_EQ(t->host, "127.0.0.1");
    EXPECT_EQ(t->port, 10143);
    EXPECT_EQ(t->folder, "Forms/Survey");
    EXPECT_FALSE(t->tls);
    EXPECT_EQ(ImapAddress(*t), "imap://results@127.0.0.1:10143/Forms/Survey");
    const auto d = ParseImapAddress("imaps://me@mail.example");
    ASSERT_TRUE(d);
    EXPECT_TRUE(d->tls);
    EXPECT_EQ(d->folder, "INBOX");
    for (const char* bad : {"/var/mail/me", "imap://host/INBOX", "imap://me@host:99999/", "imap://me@:1/"})
        EXPECT_FALSE(ParseImapAddress(bad)) << bad;
}
