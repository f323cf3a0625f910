#include "animation/DocumentWriter.h"

#include "animation/DocumentReader.h"

namespace orken {

namespace {

using Json = nlohmann::json;

void writeValue(const Json& value, std::string& text);

void writeMember(const std::string& key, const Json& value, std::string& text)
{
    text += text.back() == '{' ? "" : ",";
    text += Json(key).dump();
    text += ':';
    writeValue(value, text);
}

/// The renderer forgets what stands before "ty" in an object.
void writeValue(const Json& value, std::string& text)
{
    if (value.is_object()) {
        text += '{';
        if (const Json* type = member(value, "ty")) {
            writeMember("ty", *type, text);
        }
        for (const auto& [key, item] : value.items()) {
            if (key != "ty") {
                writeMember(key, item, text);
            }
        }
        text += '}';
    } else if (value.is_array()) {
        text += '[';
        for (const Json& item : value) {
            text += text.back() == '[' ? "" : ",";
            writeValue(item, text);
        }
        text += ']';
    } else {
        text += value.dump();
    }
}

} // namespace

std::string writeAnimationDocument(const nlohmann::json& document)
{
    std::string text;
    writeValue(document, text);
    return text;
}

} // namespace orken
