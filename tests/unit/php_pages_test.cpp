// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/error_download_pages.h"
#include "php/function_library.h"
#include "scripted_port.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace tq;

namespace {

std::string Written(const std::function<void(build::LineWriter&)>& write)
{
    test::TempDir dir;
    build::LineWriter out;
    EXPECT_TRUE(out.open(dir.file("out.php")));
    write(out);
    out.close();
    return test::ReadFileBytes(dir.file("out.php"));
}

std::string DownloadPage(const build::BuildState& st, std::string_view serverPath)
{
    return Written([&](build::LineWriter& out) { php::WriteDownloadFile(out, st, serverPath); });
}

size_t Count(const std::string& text, const std::string& what)
{
    size_t n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++n;
    return n;
}

} // namespace

TEST(PhpPages, LibraryAndEmptyPagesMatchGolden)
{
    auto st = std::make_unique<build::BuildState>();
    std::string written = Written([&](build::LineWriter& out) {
        php::WriteFunctionLibrary(out);
        php::WriteDownloadFile(out, *st, "");
        php::WriteShowError(out);
    });
    EXPECT_EQ(written, test::ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/php/library_pages/expected.php"));
    // the download function stands once, with its banner once
    EXPECT_EQ(Count(written, "function download_file()"), 1u);
    EXPECT_EQ(Count(written, "/* Show Download of file */"), 1u);
}

TEST(PhpPages, LinksJoinTheServerPathAsItStandsAndAHomeButtonUnlessNone)
{
    auto st = std::make_unique<build::BuildState>();
    st->downloadFileCount = 1;
    st->downloadFiles[1] = "report.pdf";
    st->downloadFiles[2] = "beyond-the-count.pdf";
    std::string page = DownloadPage(*st, "https://www.tarnquill.example/files");
    EXPECT_NE(page.find("    href=\"https://www.tarnquill.example/filesreport.pdf\">report.pdf</a></font></b>\r\n"),
              std::string::npos);
    EXPECT_EQ(page.find("beyond"), std::string::npos);
    EXPECT_EQ(Count(page, "<a style=\"color: #FFFF00\"\r\n"), 2u);
    for (const char* none : {"None", "NONE", "none", ""}) {
        st->homePage = none;
        EXPECT_EQ(DownloadPage(*st, "").find("value=\"Home\""), std::string::npos) << none;
    }
    st->homePage = "index.htm";
    EXPECT_NE(DownloadPage(*st, "").find("<p align=\"center\"><a href=\"index.htm\"><input type=\"button\" "
                                         "value=\"Home\" name=\"B3\" style=\"font-family: Arial; color: #CC3300; "
                                         "font-size: 18pt\"></a></p>\r\n        </font></b>\r\n"),
              std::string::npos);
}

TEST(PhpPages, CountsPastTheTablesAreInternalErrors)
{
    auto st = std::make_unique<build::BuildState>();
    st->downloadFileCount = build::kDownloadFileSlots + 1;
    EXPECT_THROW(DownloadPage(*st, ""), model::InternalError);
    st->downloadFileCount = 0;
    st->downloadTextCount = build::kDownloadTextSlots + 1;
    EXPECT_THROW(DownloadPage(*st, ""), model::InternalError);
    st->downloadTextCount = build::kDownloadTextSlots; // the full table is fine
    EXPECT_NO_THROW(DownloadPage(*st, ""));
}
