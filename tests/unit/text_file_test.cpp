// SPDX-License-Identifier: GPL-3.0-or-later
// Whole-file reads: a file of known size in one read, a file whose size the
// system does not tell read to its end, a folder or a missing file refused.
#include "scripted_port.h"
#include "store/text_file.h"

#include <gtest/gtest.h>
#include <string>

using tq::store::ReadWholeFile;

TEST(ReadWholeFile, ReadsEveryByteOrRefuses)
{
    tq::test::TempDir dir;
    std::string bytes(70000, 'x');
    bytes[0] = '\0';
    bytes[69999] = '\r';
    tq::test::WriteFileBytes(dir.file("a.bin"), bytes);
    EXPECT_EQ(ReadWholeFile(dir.file("a.bin")), bytes);
    tq::test::WriteFileBytes(dir.file("empty.txt"), "");
    EXPECT_EQ(ReadWholeFile(dir.file("empty.txt")), "");
    // files under /proc report a size of 0 but have content
    const auto status = ReadWholeFile("/proc/self/status");
    ASSERT_TRUE(status.has_value());
    EXPECT_NE(status->find("Name:"), std::string::npos);
    EXPECT_FALSE(ReadWholeFile(dir.path()).has_value());
    EXPECT_FALSE(ReadWholeFile(dir.file("missing.txt")).has_value());
    EXPECT_FALSE(ReadWholeFile("").has_value());
}
