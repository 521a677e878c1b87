// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/entry_php.h"
#include "php/script_skeleton.h"
#include "scripted_port.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;

namespace {

std::string Golden(const std::string& name)
{
    return test::ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/php/" + name + "/expected.php");
}

// Plays the driver's part: the script on channel 1, the download checks on
// channel 2, copied in behind the option lines.
struct Script
{
    test::TempDir dir;
    std::unique_ptr<build::BuildState> state = std::make_unique<build::BuildState>();
    std::string phpPath() const { return dir.file("formtql.php"); }

    Script()
    {
        state->setupValues.EMAIL1 = "a@example.com";
        state->setupValues.FROM = "forms";
        state->setupValues.COMPLETED = "https://www.tarnquill.example/thanks.htm";
    }
    void message(std::initializer_list<std::string> slots)
    {
        for (const std::string& s : slots)
            state->messageLines[static_cast<size_t>(++state->messageLineCount)] = s;
    }
    void head()
    {
        ASSERT_TRUE(state->channels[1].open(phpPath()));
        php::WriteScriptOpening(state->channels[1]);
        ASSERT_TRUE(state->channels[2].open(dir.file("downtemp.txt")));
        php::WriteValidationBanner(state->channels[1], state->setupValues);
    }
    std::string tail(std::string_view serverPath = "")
    {
        state->channels[2].close();
        if (state->optionPending)
            php::WriteOptionLines(state->channels[1]);
        state->channels[1].piece(test::ReadFileBytes(dir.file("downtemp.txt")));
        php::WriteScriptTail(state->channels[1], *state, serverPath);
        state->channels.closeAll();
        return test::ReadFileBytes(phpPath());
    }
    std::string run()
    {
        head();
        return tail();
    }
};

// The lines between "$ip" and "End of message", CR LF kept.
std::string MessagePart(const std::string& script)
{
    const std::string from = "$ip\r\n\r\n";
    size_t b = script.find(from);
    size_t e = script.find("End of message\r\n");
    EXPECT_NE(b, std::string::npos);
    EXPECT_NE(e, std::string::npos);
    return script.substr(b + from.size(), e - b - from.size());
}

void Entry(test::ScriptedPort& ui,
           build::BuildState& st,
           const std::string& type,
           const std::string& key,
           const std::string& req,
           const std::string& msg,
           const std::string& msg2 = "",
           const std::string& password = "",
           const std::string& title = "T")
{
    st.values = build::WorkingValues{};
    st.values.REQ = req;
    st.values.MSG = msg;
    st.values.MSG2 = msg2;
    st.values.PASSWORD = password;
    st.values.Title = title;
    php::WriteEntryPhp(ui, st, type, key);
}

} // namespace

TEST(PhpSkeleton, WholeScriptMatchesGolden)
{
    Script s;
    build::BuildState& st = *s.state;
    st.setupValues.EMAIL2 = "none";
    st.setupValues.EMAIL3 = "c@example.com";
    st.setupValues.NumberEachQuestion = "yes";
    st.mailSubject = "General Question";
    st.optionPending = true;
    s.message({"1. Name&nbsp;&nbsp;", "name3", "2. Your e-mail\\nplease", "email5", "\\nTable B. Colour", "-Thanks",
               "4. Comments", "   ", "5. Last", ""});
    st.downloadTextCount = 2;
    st.downloadTexts[1] = "PASSWORD IS CORRECT";
    st.downloadTexts[2] = "Right mouse click on each file";
    st.downloadFileCount = 2;
    st.downloadFiles[1] = "a.zip";
    st.downloadFiles[2] = "b.pdf";
    st.homePage = "https://www.tarnquill.example/index.htm";
    test::ScriptedPort ui;
    s.head();
    Entry(ui, st, "Name", "name3", "yes", "Please enter your name");
    Entry(ui, st, "EMAIL", "email5", "YES", "Invalid e-mail", "No e-mail");
    Entry(ui, st, "Condition With Comment", "condi7", "yes", "Answer yes or no");
    Entry(ui, st, "FOLLOWUP WITH COMMENT", "follo9", "no", "Tell us more");
    Entry(ui, st, "CANCEL BUTTON", "cance11", "", "");
    Entry(ui, st, "CHECKBOX HORIZONTAL", "check13", "no", "Tick one");
    Entry(ui, st, "DOWNLOAD FILES WITH PASSWORD", "downl15", "no", "x", "y", "", "Files");
    Entry(ui, st, "FOLLOWUP FILES WITH PASSWORD", "follo17", "", "Wrong password", "Enter the password", "Secret");
    Entry(ui, st, "TITLE 1 SINGLE LINE", "title19", "", "");
    Entry(ui, st, "PASSWORD", "passw21", "yes", "Wrong", "Empty", "Pw1");
    st.values.USERNAME = "";
    ASSERT_EQ(st.buildError, 0);
    std::string script = s.tail("https://www.tarnquill.example/files/");
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(script, Golden("full_script"));
}

TEST(PhpSkeleton, RecipientsLeaveOutNoneAndEmpty)
{
    auto toLine = [](const std::string& e2, const std::string& e3) {
        Script s;
        s.state->setupValues.EMAIL2 = e2;
        s.state->setupValues.EMAIL3 = e3;
        std::string script = s.run();
        size_t b = script.find("$to  = ");
        return script.substr(b, script.find("\r\n", b) - b);
    };
    EXPECT_EQ(toLine("NONE", "b"), "$to  = \"a@example.com,b\";");
    EXPECT_EQ(toLine("", "nOnE"), "$to  = \"a@example.com\";");
    EXPECT_EQ(toLine("x@y.z", ""), "$to  = \"a@example.com,x@y.z\";");
    EXPECT_EQ(toLine("x@y.z", "b"), "$to  = \"a@example.com,x@y.z,b\";");
}

TEST(PhpSkeleton, EmptyMessageTableEndsRightAfterTheAddress)
{
    Script s;
    std::string script = s.run();
    EXPECT_NE(script.find("Send from public IP Address\r\n$ip\r\n\r\nEnd of message\r\n\";\r\n"), std::string::npos);
    EXPECT_EQ(script.find("$option"), std::string::npos);
    EXPECT_NE(script.find("/*******************/\r\n\r\n\r\n/***********************************/\r\n/* Get Public"),
              std::string::npos);
    Script quoted; // a subject is written without escaping
    quoted.state->mailSubject = "Say \"hi\"";
    EXPECT_NE(quoted.run().find("$subject=\"Say \"hi\"\";\r\n"), std::string::npos);
}

TEST(PhpSkeleton, MessageLabelsAndValues)
{
    Script s;
    s.message({"a\\n\\nb", "-", "\\n\\nx&nb&nbsp;sp;y", "-Fixed text", "tab b.", " v ", "&NBSP;", ""});
    std::string body = MessagePart(s.run());
    EXPECT_EQ(body,
              "a\r\n\r\nb\r\n" // a later "\n" becomes a line break, twice
              "\r\n"           // "-" alone is written as an empty text ...
              "\r\n"           // ... and, not being empty, followed by an empty line
              "xy\r\n"         // leading "\n"s dropped; "&nbsp;" removed until none is left
              "Fixed text\r\n\r\n"
              "tab b.\r\n\r\n" // "B." in any case adds an empty line
              "$ v \r\n\r\n"   // a value with text is a variable, written untrimmed
              "&NBSP;\r\n"     // the search is case-sensitive
              "\r\n");         // an empty value is written as it is, with nothing after it
}

TEST(PhpSkeleton, OddCountReadsTheEmptySlotAndBoundIsChecked)
{
    Script s;
    s.message({"Only a label"});
    EXPECT_EQ(MessagePart(s.run()), "Only a label\r\n\r\n");
    build::BuildState st;
    st.messageLineCount = build::kMessageLineSlots + 1;
    test::TempDir dir;
    build::LineWriter out;
    ASSERT_TRUE(out.open(dir.file("x.php")));
    EXPECT_THROW(php::WriteMessageBody(out, st), model::InternalError);
}
