// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session.h"

#include <string>
#include <string_view>

namespace tq::compose {

/// The HTML file's path of a real build: the web folder, a separator unless
/// the folder already ends in "/" or "\", and the output name.
std::string ComposeHtmlPath(std::string_view webFolder, std::string_view outputName);

/// The PHP file's bare name (`formAction`): the output name cut just behind
/// the "." of its first ".HTM" (searched upper-cased), then "php". A name
/// without ".HTM" gives "php" alone.
std::string ComposeFormAction(std::string_view outputName);

/// The PHP file's path of a real build: the web folder, always a separator,
/// and ComposeFormAction(outputName).
std::string ComposePhpPath(std::string_view webFolder, std::string_view outputName);

/// The [DRIVE FOLDER PATH= value of a SetupEntry's text, read without any
/// message: the text behind the "=" up to the next "]" or line end. Empty
/// when the key is absent.
std::string PeekDriveFolderPath(std::string_view setupText);

/// Proves `webFolder` writable: creates "\temp.ttt" in it and deletes it.
/// Returns false when the file could not be written.
bool FolderTest(std::string_view webFolder);

/// Reads the SetupEntry, settles `htmlPath`, `phpPath` and `formAction`,
/// asks about existing output files, opens the HTML file on channel 1 and
/// writes the head of the page. Sets `abort` to 1 when the build must stop
/// (the user chose to change the folder or not to replace the files);
/// `setupHold`, `cancelled`, `buildError` and `endProgram` tell the rest.
void CreateHTMHeader(Session& s, UiPort& ui, int& abort);

/// The HTML pass: the head, then every Entry of the flat list (or the Entry
/// under preview) through the dispatcher with pass 1. Stops at the first
/// fault after its report.
void HtmlPass(Session& s, UiPort& ui);

/// The PHP pass: the head of the script, every Entry with pass 2, the body.
void PhpPass(Session& s, UiPort& ui);

/// What a run of the driver makes.
enum class BuildKind {
    Files,        // the HTML and PHP files of the project; clears both preview flags
    EntryPreview, // the Entry in the preview slots, as a whole page, no PHP
    EditPreview,  // the same from the edit page: no publishing instructions afterwards
};

/// A request to the driver.
struct BuildRequest
{
    BuildKind kind = BuildKind::Files;
};

/// The driver. A preview sets the preview flags and the whole page for the
/// run and clears `entryPreview` and `wholePage` afterwards. Every way out
/// closes all channels and restores the pointer. A bound fault of a working
/// list is caught, told under "INTERNAL ERROR" and ends the build with
/// `buildError` 1.
void BuildOutput(Session& s, UiPort& ui, BuildRequest request);

/// CreateFormHTMLCode: a build of the files as a whole page (html and body tags).
void BuildWholePage(Session& s, UiPort& ui);

/// The command CreateFormOnly: clears `setupHold` and builds the fragment.
void CreateFormOnly(Session& s, UiPort& ui);
/// The command CreateFormHTMLCode: clears `setupHold` and builds the whole page.
void CreateFormHTMLCode(Session& s, UiPort& ui);

} // namespace tq::compose
