// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tq::show {

/// Sample values of a fresh photo show page.
inline constexpr std::string_view kSampleImageFolder = "/home/user/Pictures/slideshow/images";
inline constexpr std::string_view kSampleWebImageFolder = "https://www.tarnquill.example/test/slideshow/images";
/// The page's background colour until the user picks one: white (red in the low byte).
inline constexpr long kDefaultBackgroundColor = 16777215;

/// The photo show settings, in the order of the show file. Every value but
/// the colour is the text its control shows, list marks ("5 - default")
/// included.
struct ShowSettings
{
    std::string HomeFile = "index.htm";
    std::string HomeLinkText = "RETURN TO MAIN MENU";
    std::string ImageFolder{kSampleImageFolder};
    std::string WebImageFolder{kSampleWebImageFolder};
    std::string ShowFileName = "test.shw";
    std::string UseFading = "YES";
    std::string ImagesPerLine = "5 - default";
    std::string ColumnsPerLine = "3 - default";
    std::string AllowZip = "YES";
    std::string BrowserTitle = "Image Browser";
    std::string FadeMode = "classic - default";
    std::string FadeSteps = "6 - default";
    std::string FadeDelay = "70 - default";
    long BackgroundColor = kDefaultBackgroundColor;

    bool operator==(const ShowSettings&) const = default;
};

/// The items of the page's lists, as the controls show them.
inline constexpr std::array<std::string_view, 2> kYesNoList = {"YES", "NO"};
inline constexpr std::array<std::string_view, 10> kImagesPerLineList = {"1", "2", "3", "4", "5 - default",
                                                                        "6", "7", "8", "9", "10"};
inline constexpr std::array<std::string_view, 8> kColumnsPerLineList = {"1", "2", "3 - default", "4",
                                                                        "5", "6", "7",           "8"};
inline constexpr std::array<std::string_view, 5> kFadeModeList = {"classic - default", "right to left", "left to right",
                                                                  "square", "random"};
inline constexpr std::array<std::string_view, 9> kFadeStepsList = {"2", "3", "4", "5", "6 - default",
                                                                   "7", "8", "9", "10"};
inline constexpr std::array<std::string_view, 11> kFadeDelayList = {"30", "40",  "50",  "60",  "70 - default", "80",
                                                                    "90", "100", "300", "500", "800"};

/// The labels of the page's fields.
inline constexpr std::string_view kHomeFileLabel =
    "WEB FILE LOCATED IN THE IMAGE FOLDER THAT USER GOES TO WHEN DONE VIEWING THE IMAGES";
inline constexpr std::string_view kHomeLinkTextLabel =
    "NAME OF LINK THAT THE USER CLICKS ON WHEN HE LEAVES THE PHOTO SHOW";
inline constexpr std::string_view kImageFolderLabel = "FULL PATH ON YOUR COMPUTER WHERE THE PHOTOS  ARE LOCATED";
inline constexpr std::string_view kWebImageFolderLabel = "ABSOLUTE WEB SERVER PATH WHERE THE IMAGES ARE LOCATED";
inline constexpr std::string_view kShowFileNameLabel = "SAVE ALL ENTRIES ON THIS SCREEN AS";
inline constexpr std::string_view kUseFadingLabel = "Blend between images?";
inline constexpr std::string_view kImagesPerLineLabel = "Images per line";
inline constexpr std::string_view kColumnsPerLineLabel = " Columns per line";
inline constexpr std::string_view kAllowZipLabel = "Allow downloading all Images?";
inline constexpr std::string_view kBrowserTitleLabel = "Browser Title";
inline constexpr std::string_view kFadeModeLabel = "Blend Fade Mode";
inline constexpr std::string_view kFadeStepsLabel = "Shades for Fade Mode";
inline constexpr std::string_view kFadeDelayLabel = "Delay in milli seconds";
inline constexpr std::string_view kBackgroundColorButton = "Background Color";

/// The page's head and title.
inline constexpr std::string_view kShowPageTitle = "SLIDE SHOW SETUP";
inline constexpr std::string_view kShowPageHead1 = "THIS ACTION WILL ALLOW YOU TO SETUP A PHOTO SHOW ON YOUR WEB SITE";
inline constexpr std::string_view kShowPageHead2 = "FILL IN THE FIELDS BELOW AND THEN SELECT BUILD PHOTO SHOW";
/// The text of the page's Help command, title "HELP".
extern const std::string_view kShowHelpText;

/// What the photo show page shows besides the settings: the state its view
/// reads after each call of the core.
struct ShowPage
{
    ShowSettings settings;
    /// The fade switch: FadeMode, FadeSteps and FadeDelay are enabled.
    bool fadeFieldsEnabled = true;
    /// The output line: the link to the built show.
    std::string OutputLine;
    /// The output line and the commands FTP OUTPUT FILES, VIEW PHOTOSHOW LIVE
    /// and VIEW INSTRUCTIONS are enabled (after a build got past its checks).
    bool outputEnabled = false;
};

/// Runs the fade switch: the three fade fields are enabled exactly when
/// UseFading is "YES" (upper-cased).
void ApplyFadeSwitch(ShowPage& page);

/// Removes one trailing "/" or "\".
std::string RemoveTrailingSeparator(std::string_view path);
/// Takes the first `count` characters and trims blanks on both sides
/// ("5 - default" with 2 gives "5").
std::string CutListValue(std::string_view text, size_t count);
/// The colour (red in the low byte) as six upper-case hex digits RRGGBB.
std::string ShowColorHex(long color);
/// The web path of the images: WebImageFolder without a trailing separator.
std::string ShowWebPath(const ShowSettings& settings);
/// The link of the built show: the web path + "/photoshow.php".
std::string ShowLink(const ShowSettings& settings);

} // namespace tq::show
