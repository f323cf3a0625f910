#include "provider/Http.h"

#include "linux/loop/GObjectPtr.h"

#include <glib.h>

#include <algorithm>

namespace orken::demo {

namespace {

std::string validText(const char* text)
{
    const desktop::GText valid(g_utf8_make_valid(text, -1));
    return valid.get();
}

} // namespace

std::optional<Fields> parseFields(std::string_view text)
{
    Fields fields;
    GUriParamsIter iterator;
    g_uri_params_iter_init(&iterator, text.data(), static_cast<gssize>(text.size()), "&", G_URI_PARAMS_WWW_FORM);
    GError* error = nullptr;
    char* name = nullptr;
    char* value = nullptr;
    while (g_uri_params_iter_next(&iterator, &name, &value, &error)) {
        const desktop::GText ownedName(name);
        const desktop::GText ownedValue(value);
        fields.emplace_back(validText(name), validText(value));
    }
    if (error) {
        g_error_free(error);
        return std::nullopt;
    }
    return fields;
}

std::optional<std::string> Request::parameter(std::string_view name) const
{
    const auto fields = parseFields(query.value_or(""));
    if (!fields) {
        return std::nullopt;
    }
    const auto field = std::find_if(fields->begin(), fields->end(), [&](const auto& f) { return f.first == name; });
    return field == fields->end() ? std::nullopt : std::optional(field->second);
}

std::optional<std::string> Request::cookie(std::string_view name) const
{
    const auto header = headers.find("cookie");
    if (header == headers.end()) {
        return std::nullopt;
    }
    std::string_view rest = header->second;
    while (!rest.empty()) {
        const auto end = rest.find("; ");
        const std::string_view pair = rest.substr(0, end);
        if (pair.starts_with(name) && pair.substr(name.size()).starts_with('=')) {
            return std::string(pair.substr(name.size() + 1));
        }
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 2);
    }
    return std::nullopt;
}

} // namespace orken::demo
