// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/settings.h"

#include "model/text_ops.h"
#include "port/platform.h"

namespace tq::model {

namespace {
std::string OnSite(std::string_view path)
{
    return ";" + std::string(platform::kSampleSite) + std::string(path);
}

void Restore(std::string& value, const std::string& sample)
{
    if (value.empty() || ToUpper(value) == "NONE")
        value = sample;
}
} // namespace

std::string SampleImagePath()
{
    return OnSite("/test/cloudark.gif");
}

std::string SampleServerFolderPath()
{
    return OnSite("/test");
}

std::string SampleThankYouUrl()
{
    return OnSite("/thankyou.htm");
}

std::string SampleVideoPath()
{
    return OnSite("/test/videos/birds.mp4");
}

std::string SampleHomePagePath()
{
    return ";index.htm";
}

std::string SampleEmail()
{
    return ";" + std::string(platform::kSampleEmail);
}

void ResetDefaults(TemplateSettings& settings, Mode mode)
{
    settings.BackgroundImagePath = SampleImagePath();
    settings.ServerFolderPath = SampleServerFolderPath();
    settings.ThankYouUrl = SampleThankYouUrl();
    settings.PicturePath = SampleImagePath();
    settings.VideoPath = SampleVideoPath();
    settings.HomePagePath = SampleHomePagePath();
    settings.DriveFolderPath = settings.DefaultDriveFolder;
    settings.FromName = ";My Web Page";
    settings.CompletedPage = ";thankyou.htm";
    settings.GlobalAlign = "NONE";
    settings.SubmitNameDefault = "Submit Form";
    settings.SubmitAlignDefault = mode == Mode::Survey ? "CENTER" : "LEFT";
    settings.SubmitButtonColor = "0";
    settings.Email1 = SampleEmail();
    settings.Email2 = "none";
    settings.Email3 = "none";
    settings.FrameBorderColor = "52736";
    settings.FrameColor = "16384";
    settings.BackgroundColor = "9022343";
    settings.PhpFileName = "tqltest.php";
    settings.FontName = "arial";
    settings.FontSize = "3";
    settings.Italics = "off";
    settings.Bold = "off";
}

void RestoreEmptyPaths(TemplateSettings& settings)
{
    Restore(settings.BackgroundImagePath, SampleImagePath());
    Restore(settings.ServerFolderPath, SampleServerFolderPath());
    Restore(settings.ThankYouUrl, SampleThankYouUrl());
    Restore(settings.PicturePath, SampleImagePath());
    Restore(settings.VideoPath, SampleVideoPath());
    Restore(settings.HomePagePath, SampleHomePagePath());
}

} // namespace tq::model
