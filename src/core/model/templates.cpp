// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/templates.h"

#include "model/attribute_text.h"

namespace tq::model {

namespace {
const std::string* FieldNamed(std::string_view name, const TemplateFields& f)
{
    struct Slot
    {
        std::string_view name;
        const std::string TemplateFields::*field;
    };
    static constexpr Slot kSlots[] = {
        {"TextColor", &TemplateFields::TextColor},
        {"RandomCode", &TemplateFields::RandomCode},
        {"SampleSite", &TemplateFields::SampleSite},
        {"BackgroundImagePath", &TemplateFields::BackgroundImagePath},
        {"ServerFolderPath", &TemplateFields::ServerFolderPath},
        {"ThankYouUrl", &TemplateFields::ThankYouUrl},
        {"VideoPath", &TemplateFields::VideoPath},
        {"HomePagePath", &TemplateFields::HomePagePath},
        {"DriveFolderPath", &TemplateFields::DriveFolderPath},
        {"FromName", &TemplateFields::FromName},
        {"CompletedPage", &TemplateFields::CompletedPage},
        {"GlobalAlign", &TemplateFields::GlobalAlign},
        {"SubmitName", &TemplateFields::SubmitName},
        {"SubmitAlign", &TemplateFields::SubmitAlign},
        {"SubmitButtonColor", &TemplateFields::SubmitButtonColor},
        {"Email1", &TemplateFields::Email1},
        {"Email2", &TemplateFields::Email2},
        {"Email3", &TemplateFields::Email3},
        {"FrameBorderColor", &TemplateFields::FrameBorderColor},
        {"FrameColor", &TemplateFields::FrameColor},
        {"BackgroundColor", &TemplateFields::BackgroundColor},
        {"NumberEachQuestion", &TemplateFields::NumberEachQuestion},
        {"ShowToolTips", &TemplateFields::ShowToolTips},
        {"IncludeFrame", &TemplateFields::IncludeFrame},
    };
    for (const Slot& s : kSlots)
        if (s.name == name)
            return &(f.*(s.field));
    return nullptr;
}
} // namespace

bool UsesRandomCode(std::string_view source)
{
    return source.find("{RandomCode}") != std::string_view::npos;
}

std::string FillTemplate(std::string_view source, const TemplateFields& fields)
{
    std::string out;
    out.reserve(source.size() + 64);
    size_t pos = 0;
    while (pos < source.size()) {
        const size_t open = source.find('{', pos);
        if (open == std::string_view::npos) {
            out.append(source.substr(pos));
            break;
        }
        const size_t close = source.find('}', open);
        if (close == std::string_view::npos)
            throw InternalError("internal error: unclosed field mark in a template");
        const std::string* value = FieldNamed(source.substr(open + 1, close - open - 1), fields);
        if (value == nullptr)
            throw InternalError("internal error: unknown field mark in a template");
        out.append(source.substr(pos, open - pos));
        out.append(*value);
        pos = close + 1;
    }
    return out;
}

} // namespace tq::model
