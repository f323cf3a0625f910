#include "linux/engine/ScriptCalls.h"

#include "linux/loop/GObjectPtr.h"

namespace orken::desktop {

namespace {

struct StrvFree {
    void operator()(char** texts) const { g_strfreev(texts); }
};

/// The engine's own copy is handed on, because the text may be a whole document.
ScriptText textOfString(JSCValue* value)
{
    const std::shared_ptr<GBytes> bytes(jsc_value_to_string_as_bytes(value), g_bytes_unref);
    gsize size = 0;
    const auto* data = static_cast<const char*>(g_bytes_get_data(bytes.get(), &size));
    return {bytes, {data, size}};
}

ScriptDictionary dictionaryOfObject(JSCValue* object)
{
    ScriptDictionary dictionary;
    const std::unique_ptr<char*, StrvFree> names(jsc_value_object_enumerate_properties(object));
    for (char** name = names.get(); name && *name; ++name) {
        const auto member = GObjectPtr<JSCValue>::adopt(jsc_value_object_get_property(object, *name));
        if (jsc_value_is_string(member.get())) {
            dictionary.emplace(*name, textOfString(member.get()));
        }
    }
    return dictionary;
}

} // namespace

ScriptResult takeScriptResult(JSCValue* value, GError* error)
{
    const auto owned = GObjectPtr<JSCValue>::adopt(value);
    const GErrorPtr failure(error);
    if (failure) {
        return platformError(g_quark_to_string(failure->domain), failure->code, "", failure->message);
    }
    if (!value || jsc_value_is_undefined(value)) {
        return std::optional<ScriptValue>();
    }
    if (jsc_value_is_string(value)) {
        return std::optional<ScriptValue>(textOfString(value));
    }
    if (jsc_value_is_object(value) && !jsc_value_is_array(value)) {
        return std::optional<ScriptValue>(dictionaryOfObject(value));
    }
    return std::optional<ScriptValue>(OtherScriptValue{});
}

} // namespace orken::desktop
