// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/error_download_pages.h"
#include "php/function_library.h"
#include "scripted_port.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;

TEST(PhpPages, LibraryAndEmptyPagesMatchGolden)
{
    auto st = std::make_unique<write::BuildState>();
    test::TempDir dir;
    write::LineWriter out;
    ASSERT_TRUE(out.open(dir.file("out.php")));
    php::WriteFunctionLibrary(out);
    php::WriteDownloadFile(out, *st, "");
    php::WriteShowError(out);
    out.close();
    EXPECT_EQ(test::ReadFileBytes(dir.file("out.php")),
              test::ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/php/library_pages/expected.php"));
}
