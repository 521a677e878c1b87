// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/platform.h"
#include "port/ui_port.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;

TEST(UiPort, LineBreaksAndPathsOfThePlatform)
{
    EXPECT_EQ(ConvertLineBreaks("a\rb\r\rc", "\n"), "a\nb\n\nc");
    EXPECT_EQ(ConvertLineBreaks("a\r\nb", "<br>"), "a<br>b");
    EXPECT_EQ(ConvertLineBreaks("", "\n"), "");
    EXPECT_EQ(platform::JoinPath("/tmp/x", "\\setup.imp"), "/tmp/x/setup.imp");
    EXPECT_EQ(platform::JoinPath("/tmp/x/", "\\setup.imp"), "/tmp/x/setup.imp");
    EXPECT_EQ(platform::FindDriveMark("12 /home/a.fms"), 3u);
}
