// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/build_driver.h"
#include "port/keyring_port.h"
#include "project_text.h"
#include "publish/publish.h"
#include "publish/server_check.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/instructions.h"
#include "store/site_store.h"
#include "store/text_file.h"

#include <deque>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <memory>

using namespace tq;
using namespace tq::publish;

namespace {

/// A transfer port that answers from what the test set and records every call.
struct RecordingTransfer : TransferPort
{
    std::deque<TransferResult> probes;
    std::map<std::string, TransferResult> putResults;
    std::map<std::string, HttpAnswer> pages;
    std::vector<RemoteLogin> logins;
    std::vector<std::string> sent;

    TransferResult probe(const RemoteLogin& login) override
    {
        logins.push_back(login);
        if (probes.empty())
            return {};
        TransferResult r = probes.front();
        probes.pop_front();
        return r;
    }
    TransferResult put(const RemoteLogin&,
                       const std::string&,
                       const std::string& remoteName,
                       const std::string& tempName,
                       const TransferProgress&) override
    {
        EXPECT_EQ(tempName, TemporaryRemoteName(remoteName));
        sent.push_back(remoteName);
        const auto it = putResults.find(remoteName);
        return it == putResults.end() ? TransferResult{} : it->second;
    }
    HttpAnswer get(std::string_view url, int) override
    {
        const auto it = pages.find(std::string(url));
        return it == pages.end() ? HttpAnswer{404, "Not Found", {}} : it->second;
    }
};

/// Fills the final page when the build brings it up, as the programs do.
struct FinalPagePort : test::ScriptedPort
{
    Session* s = nullptr;
    std::vector<std::string> listed;
    void showView(View v) override
    {
        ScriptedPort::showView(v);
        if (v == View::FinalPage)
            listed = shell::ShowInstructions(*s, *this).uploads;
    }
};

constexpr const char* kUrl = "http://host.example/forms/";
constexpr const char* kErrorPage = "<html><head><title>Show Error</title></head><body>1. Nothing</body></html>";

struct Publishing : ::testing::Test
{
    test::TempDir data, web;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    FinalPagePort ui;
    RecordingTransfer transfer;
    NoKeyring keyring;
    store::SiteStore sites;

    void SetUp() override
    {
        ui.s = s.get();
        s->DataFolder = data.path();
        s->store.state.ProjectMode = tq::model::Mode::Form;
        s->store.pages[0][0] = {"Setup", test::SetupEntryText(web.path()), "1", true};
        compose::CreateFormHTMLCode(*s, ui);
        ASSERT_EQ(ui.listed, (std::vector<std::string>{"formtql.htm", "formtql.php"}));
        auto& site = sites.sites[0];
        site.set = true;
        site.protocol = Protocol::Sftp;
        site.host = "host.example";
        site.user = "me";
        site.keyPath = "/keys/id";
        site.remoteDir = "www/forms";
        site.url = kUrl;
        transfer.pages[std::string(kUrl) + "formtql.htm"] = {200, "<html>", {}};
        transfer.pages[std::string(kUrl) + "formtql.php"] = {200, kErrorPage, {}};
    }
    PublishReport Run(bool all = false)
    {
        ui.clear();
        transfer.sent.clear();
        transfer.logins.clear();
        return Publish(*s, sites, PublishOptions{1, ui.listed, all, false, std::nullopt, false}, transfer, keyring, ui);
    }
};

} // namespace

TEST_F(Publishing, SendsTheInstructionsListThenOnlyWhatChanged)
{
    PublishReport r = Run();
    ASSERT_TRUE(r.ok) << r.failure;
    EXPECT_TRUE(r.checked);
    EXPECT_EQ(transfer.sent, ui.listed);
    EXPECT_EQ(r.lines.back(), "published and checked");

    // what was sent is in the sites file, so that a later run knows it
    store::SiteStore reread;
    std::string error;
    ASSERT_TRUE(store::ReadSites(data.path(), reread, error)) << error;
    EXPECT_EQ(reread.sites[0].sent.size(), 2u);
    EXPECT_EQ(reread.sites[0].sent, sites.sites[0].sent);
    EXPECT_EQ(reread.sites[0].remoteDir, "www/forms");

    r = Run();
    ASSERT_TRUE(r.ok) << r.failure;
    EXPECT_TRUE(transfer.sent.empty());
    EXPECT_TRUE(transfer.logins.empty()) << "nothing to send needs no login";
    EXPECT_EQ(r.lines[0], "unchanged formtql.htm");
    EXPECT_TRUE(r.checked);

    // same size, other bytes: the hash tells
    const std::string php = web.file("formtql.php");
    std::string bytes = *store::ReadWholeFile(php);
    bytes[bytes.size() - 3] ^= 1;
    ASSERT_TRUE(store::WriteFileReplacing(php, bytes));
    EXPECT_TRUE(Run().ok);
    EXPECT_EQ(transfer.sent, (std::vector<std::string>{"formtql.php"}));

    EXPECT_TRUE(Run(true).ok);
    EXPECT_EQ(transfer.sent, ui.listed);
}

TEST_F(Publishing, AnExtraFileKeepsItsPlaceBelowTheRemoteFolder)
{
    EXPECT_EQ(TemporaryRemoteName("formtql.php"), ".formtql.php.part");
    EXPECT_EQ(TemporaryRemoteName("images/bg.jpg"), "images/.bg.jpg.part");
    EXPECT_EQ(RemoteNameOfExtra("images\\sub/./bg.jpg"), "images/sub/bg.jpg");
    EXPECT_EQ(RemoteNameOfExtra("/home/me/bg.jpg"), "bg.jpg");
    EXPECT_EQ(RemoteNameOfExtra("../shared/bg.jpg"), "bg.jpg");

    // the page links its background below its own folder: the file goes to the same place on the server
    test::SetupOptions o;
    o.image = "images/back ground.gif";
    std::filesystem::create_directories(web.path() + "/images");
    ASSERT_TRUE(store::WriteFileReplacing(web.path() + "/images/back ground.gif", "GIF89a"));
    s->store.pages[0][0].AttributeText = test::SetupEntryText(web.path(), o);
    ui.answer(Answer::No);  // the folder stays
    ui.answer(Answer::Yes); // the last build's files are replaced
    compose::CreateFormHTMLCode(*s, ui);
    const PublishReport r = Run();
    ASSERT_TRUE(r.ok) << r.failure;
    EXPECT_EQ(transfer.sent, (std::vector<std::string>{"formtql.htm", "formtql.php", "images/back ground.gif"}));
    EXPECT_EQ(sites.sites[0].sent.count("images/back ground.gif"), 1u);

    // a background that is a web address is no file here and is left to the user
    o.image = "https://www.tarnquill.example/bg.gif";
    s->store.pages[0][0].AttributeText = test::SetupEntryText(web.path(), o);
    ui.answer(Answer::No);
    ui.answer(Answer::Yes);
    compose::CreateFormHTMLCode(*s, ui);
    EXPECT_EQ(PlanPublish(*s, sites.sites[0], ui.listed, true).files.size(), 2u);
}

TEST_F(Publishing, AFailedFileStopsThePublishAndKeepsWhatWasSentBefore)
{
    transfer.putResults["formtql.php"] = {TransferStatus::Failed, "552 Disk full", {}, {}};
    const PublishReport r = Run();
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.failure, "formtql.php was not published: 552 Disk full");
    EXPECT_EQ(ui.last().title, "PUBLISH FAILED");
    EXPECT_EQ(sites.sites[0].sent.count("formtql.htm"), 1u);
    EXPECT_EQ(sites.sites[0].sent.count("formtql.php"), 0u);

    // the next run sends only the file that did not arrive
    transfer.putResults.clear();
    EXPECT_TRUE(Run().ok);
    EXPECT_EQ(transfer.sent, (std::vector<std::string>{"formtql.php"}));
}

TEST_F(Publishing, AnUnknownIdentityIsTrustedOnlyWhenTheUserSaysYes)
{
    const TransferResult unknown{TransferStatus::UnknownIdentity, "", "SHA256:abcdef", "sha256//pin="};
    transfer.probes = {unknown, unknown};
    ui.answer(Answer::No);
    PublishReport r = Run();
    EXPECT_FALSE(r.ok);
    EXPECT_TRUE(transfer.sent.empty());
    EXPECT_NE(ui.shown[0].text.find("SHA256:abcdef"), std::string::npos);
    EXPECT_EQ(ui.shown[0].title, "UNKNOWN HOST KEY");
    EXPECT_EQ(ui.shown[0].defaultButton, 2) << "No is the safe default";
    EXPECT_EQ(ui.last().title, "NOT TRUSTED");

    transfer.probes = {unknown};
    ui.answer(Answer::Yes);
    r = Run();
    ASSERT_TRUE(r.ok) << r.failure;
    ASSERT_EQ(transfer.logins.size(), 2u);
    EXPECT_FALSE(transfer.logins[0].trustShown);
    EXPECT_TRUE(transfer.logins[1].trustShown);

    // a certificate the user trusts is kept with the site
    sites.sites[0].protocol = Protocol::Ftps;
    sites.sites[0].sent.clear();
    transfer.probes = {unknown};
    ui.answer(Answer::Yes);
    ui.input("secret");
    ASSERT_TRUE(Run().ok);
    EXPECT_EQ(sites.sites[0].pinnedKey, "sha256//pin=");
    EXPECT_EQ(transfer.logins[1].pinnedKey, "sha256//pin=");
}

TEST_F(Publishing, ARefusedLoginOrAChangedKeySendsNothing)
{
    transfer.probes = {{TransferStatus::ChangedIdentity, "", "SHA256:other", {}}};
    EXPECT_FALSE(Run().ok);
    EXPECT_EQ(ui.last().title, "HOST KEY CHANGED");
    EXPECT_NE(ui.last().text.find("SHA256:other"), std::string::npos);
    EXPECT_TRUE(transfer.sent.empty());

    sites.sites[0].keyPath.clear();
    transfer.probes = {{TransferStatus::LoginRefused, "Login denied", {}, {}}};
    ui.input("wrong");
    EXPECT_FALSE(Run().ok);
    EXPECT_EQ(transfer.logins[0].password, "wrong");
    EXPECT_EQ(ui.last().title, "LOGIN FAILED");
    EXPECT_TRUE(transfer.sent.empty());

    // without a keyring, a password that worked is asked for again and the user is told, once
    ui.input("right");
    EXPECT_TRUE(Run().ok);
    EXPECT_EQ(ui.messages()[0].title, "PASSWORD NOT KEPT");
    ui.input("right");
    EXPECT_TRUE(Run().ok);
    EXPECT_EQ(transfer.logins[0].password, "right");
    EXPECT_TRUE(ui.messages().empty());
}

TEST_F(Publishing, TheCheckTellsWhetherTheScriptRuns)
{
    const std::string script = std::string(kUrl) + "formtql.php";
    auto check = [&](HttpAnswer answer) {
        transfer.pages[script] = std::move(answer);
        ui.clear();
        return CheckServed(kUrl, "formtql.htm", "formtql.php", transfer, ui);
    };
    EXPECT_TRUE(check({200, kErrorPage, {}}).ok);

    ServedCheck c = check({200, "<?php\r\n$recipient = \"me@host.example\";", {}});
    EXPECT_FALSE(c.ok);
    EXPECT_EQ(ui.last().title, "PHP NOT RUNNING");
    EXPECT_EQ(ui.last().icon, Icon::Critical);
    EXPECT_NE(c.failure.find("e-mail addresses of its recipients"), std::string::npos);

    c = check({500, "", {}});
    EXPECT_FALSE(c.ok);
    EXPECT_EQ(c.failure, "The script formtql.php does not run at " + script +
                             " (HTTP 500): its own error page did not come back.");
    EXPECT_TRUE(ui.shown.empty());

    transfer.pages.erase(std::string(kUrl) + "formtql.htm");
    c = check({200, kErrorPage, {}});
    EXPECT_FALSE(c.ok);
    EXPECT_EQ(c.lines[0], "not served " + std::string(kUrl) + "formtql.htm (HTTP 404)");
}

TEST(PublishNames, FileNamesAreEscapedInTheWebAddress)
{
    EXPECT_EQ(FileUrl("http://h/f", "mein formular \xC3\xA9.php"), "http://h/f/mein%20formular%20%C3%A9.php");
    EXPECT_EQ(FileUrl("http://h/f/", "a+b&c.htm"), "http://h/f/a%2Bb%26c.htm");
}

TEST(SiteStore, ADamagedSitesFileIsReportedAndLeftAlone)
{
    test::TempDir data;
    const std::string path = data.file("sites.json");
    const std::string damaged = "{\"sites\": [{\"number\": 1, \"protocol\": \"gopher\"}]}";
    ASSERT_TRUE(store::WriteFileReplacing(path, damaged));
    store::SiteStore sites;
    std::string error;
    EXPECT_FALSE(store::ReadSites(data.path(), sites, error));
    EXPECT_NE(error.find("unknown protocol \"gopher\""), std::string::npos);
    EXPECT_FALSE(sites.sites[0].set);
    EXPECT_EQ(*store::ReadWholeFile(path), damaged);

    ASSERT_TRUE(store::WriteFileReplacing(path, "{\"sites\": [{\"number\": 16, \"protocol\": \"ftp\"}]}"));
    EXPECT_FALSE(store::ReadSites(data.path(), sites, error));
    ASSERT_TRUE(store::WriteFileReplacing(path, "{\"sites\": [tru"));
    EXPECT_FALSE(store::ReadSites(data.path(), sites, error));
}
