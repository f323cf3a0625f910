#pragma once

#include "platform/ScriptValue.h"

#include <webkit/webkit.h>

namespace orken::desktop {

/// What a finished evaluation or asynchronous call handed over, which this takes: either a value or an error.
[[nodiscard]] ScriptResult takeScriptResult(JSCValue* value, GError* error);

} // namespace orken::desktop
