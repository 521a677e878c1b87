// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"

#include <string>
#include <string_view>

namespace tq::model {

/// The sample values that stand in the templates until the user replaces them.
std::string SampleImagePath();        // ";" + site + "/test/cloudark.gif"
std::string SampleServerFolderPath(); // ";" + site + "/test"
std::string SampleThankYouUrl();      // ";" + site + "/thankyou.htm"
std::string SampleVideoPath();        // ";" + site + "/test/videos/birds.mp4"
std::string SampleHomePagePath();     // ";index.htm"
std::string SampleEmail();            // ";" + the sample address

/// The settings record that feeds the default templates, plus the font and
/// text defaults of the run. Values are text as the templates write them;
/// the three switches are 0 or 1. A fresh record holds the FORM defaults.
struct TemplateSettings
{
    // Worked out anew by every catalogue build.
    std::string TextColor = "16777215";

    // Sample paths: a leading semi-colon marks a value not yet replaced.
    // Empty or "NONE" is set back to the sample when the templates are built.
    std::string BackgroundImagePath = SampleImagePath();
    std::string ServerFolderPath = SampleServerFolderPath();
    std::string ThankYouUrl = SampleThankYouUrl();
    std::string PicturePath = SampleImagePath();
    std::string VideoPath = SampleVideoPath();
    std::string HomePagePath = SampleHomePagePath();

    std::string DriveFolderPath = "c:\\users";
    /// What ResetDefaults puts into DriveFolderPath: the desktop program sets
    /// a folder of its own that it made for the site.
    std::string DefaultDriveFolder = "c:\\users";
    std::string FromName = ";My Web Page";
    std::string CompletedPage = ";thankyou.htm";
    std::string GlobalAlign = "NONE";
    std::string SubmitNameDefault = "Submit Form";
    std::string SubmitAlignDefault = "LEFT";
    std::string SubmitButtonColor = "0";
    std::string Email1 = SampleEmail();
    std::string Email2 = "none";
    std::string Email3 = "none";
    std::string FrameBorderColor = "52736";
    std::string FrameColor = "16384";
    std::string BackgroundColor = "9022343";

    // Defaults of the settings routine that feed no template.
    std::string PhpFileName = "tqltest.php";
    std::string FontName = "arial";
    std::string FontSize = "3";
    std::string Italics = "off";
    std::string Bold = "off";

    int NumberEachQuestion = 1;
    int ShowToolTips = 1;
    int FrameOff = 0;

    // Defaults the edit page keeps for later Entries: the last colours chosen
    // for GLOBAL TEXT COLOR and SHADE COLOR, and the SETUP's TOTAL FRAMES.
    std::string GlobalTextColor = "NONE";
    std::string ShadeColor = "12632256";
    std::string TotalFrames = "1";
};

/// Sets every template default of the settings for `mode` (FORM or SURVEY,
/// any case): the sample paths, names, colours and e-mail addresses, the
/// submit defaults ("LEFT" for FORM, "CENTER" for SURVEY) and the font and
/// text defaults. The three switches and TextColor are left alone.
void ResetDefaults(TemplateSettings& settings, Mode mode);

/// Puts each of the six sample paths that is empty or "NONE" (any case) back
/// to its sample value; other values stay.
void RestoreEmptyPaths(TemplateSettings& settings);

} // namespace tq::model
