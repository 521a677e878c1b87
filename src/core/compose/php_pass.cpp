// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/php_pass.h"

#include "php/entry_php.h"
#include "php/script_skeleton.h"

// The PHP pass hands each part of the script to the writers of the php
// subsystem; the driver keeps the files, these write the text on channel 1
// (and the download checks on channel 2).

namespace tq::compose {

void WriteScriptHead(Session& s, UiPort&)
{
    php::WriteScriptOpening(s.build.channels[1]);
}

void WriteValidationBanner(Session& s, UiPort&)
{
    php::WriteValidationBanner(s.build.channels[1], s.build.setupValues);
}

void WriteEntryPhp(Session& s, UiPort& ui, const model::InputType& type, std::string_view fieldName)
{
    php::WriteEntryPhp(ui, s.build, type, fieldName);
}

void WriteOptionLines(Session& s, UiPort&)
{
    php::WriteOptionLines(s.build.channels[1]);
}

void WriteScriptTail(Session& s, UiPort&)
{
    // the links of the download page: the [SERVER DOWNLOAD= folder as the
    // reader kept it, of the last download Entry
    php::WriteScriptTail(s.build.channels[1], s.build, s.build.values.ServerFolderPath);
}

} // namespace tq::compose
