// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::html {

/// A one-line input, a title or a password in SURVEY on channel 1: the title
/// types write their heading only; CANCEL BUTTON and BLANK LINE write nothing;
/// every other type records its question (messageLines) and writes heading,
/// input and the shade close. `password` is not used by the page.
void WriteSurveyText(write::BuildState& b,
                     model::Mode mode,
                     std::string_view field,
                     std::string title,
                     std::string_view password,
                     std::string_view width,
                     const model::InputType& type,
                     std::string_view defaultValue,
                     std::string_view required);

/// The same in FORM: one input tag behind an eleven-&nbsp; indent inside the
/// heading's open font tag. A password with a default is written as text.
void WriteFormText(write::BuildState& b,
                   std::string_view field,
                   std::string title,
                   std::string_view password,
                   std::string_view width,
                   const model::InputType& type,
                   std::string_view defaultValue,
                   std::string_view required);

/// A text area in SURVEY, its default text from values.DefaultLines.
void WriteSurveyComments(write::BuildState& b,
                         model::Mode mode,
                         std::string_view field,
                         std::string title,
                         std::string_view width,
                         std::string_view height,
                         std::string_view defaultValue,
                         const model::InputType& type,
                         std::string_view required);

/// A text area in FORM, its default text from values.DefaultLines.
void WriteFormComments(write::BuildState& b,
                       std::string_view field,
                       std::string title,
                       std::string_view width,
                       std::string_view height,
                       std::string_view defaultValue,
                       const model::InputType& type,
                       std::string_view required);

} // namespace tq::html
