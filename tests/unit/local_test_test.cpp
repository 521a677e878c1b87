// SPDX-License-Identifier: GPL-3.0-or-later
// The pieces of the local test: the server's arguments and the captured mails.
#include "shell/local_test.h"

#include <gtest/gtest.h>

using namespace tq::shell;

TEST(LocalTest, ServerArgumentsServeTheSiteUnbufferedWithTheCapture)
{
    EXPECT_EQ(LocalServerArgs("127.0.0.1:8123", "/tmp/t/site", "/tmp/t/cap.sh"),
              (std::vector<std::string>{"-S", "127.0.0.1:8123", "-t", "/tmp/t/site", "-d", "output_buffering=0", "-d",
                                        "sendmail_path=/tmp/t/cap.sh"}));
}

TEST(LocalTest, AMailSplitsIntoHeadersAndBody)
{
    const CapturedMail m = ParseCapturedMail("To: webmaster@tarnquill.example, b@x.example\r\n"
                                             "Subject: Sample\r\n"
                                             "From: Tarnquill Sample\r\n"
                                             "X-Long: first\r\n"
                                             "\tsecond\r\n"
                                             "\r\n"
                                             "Name: Ann\r\n"
                                             "\r\n"
                                             "Comments: hi\r\n");
    EXPECT_EQ(m.to, "webmaster@tarnquill.example, b@x.example");
    EXPECT_EQ(m.subject, "Sample");
    EXPECT_EQ(m.headers, (std::vector<std::string>{"To: webmaster@tarnquill.example, b@x.example", "Subject: Sample",
                                                   "From: Tarnquill Sample", "X-Long: first\tsecond"}));
    EXPECT_EQ(m.body, "Name: Ann\r\n\r\nComments: hi\r\n");
}

TEST(LocalTest, OddMailsKeepWhatTheyHave)
{
    const CapturedMail lf = ParseCapturedMail("subject:x\nTO:  a@b\n\nbody");
    EXPECT_EQ(lf.to, "a@b");
    EXPECT_EQ(lf.subject, "x");
    EXPECT_EQ(lf.body, "body");
    const CapturedMail noBody = ParseCapturedMail("To: a@b\r\nno colon here");
    EXPECT_EQ(noBody.headers.size(), 2u);
    EXPECT_EQ(noBody.body, "");
    EXPECT_EQ(ParseCapturedMail("").headers.size(), 0u);
    EXPECT_EQ(ParseCapturedMail(" folded first\r\n\r\nb").headers, std::vector<std::string>{" folded first"});
}
