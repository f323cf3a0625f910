#pragma once

#include "foundation/Outcome.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace orken {

/// A text that a script handed over. It may be a whole document, so copies share it.
class ScriptText {
public:
    // Not explicit: a text is one.
    // NOLINTNEXTLINE(google-explicit-constructor)
    ScriptText(std::string text)
    {
        auto owned = std::make_shared<const std::string>(std::move(text));
        view_ = *owned;
        owner_ = std::move(owned);
    }

    /// `owner` keeps what `view` refers to.
    ScriptText(std::shared_ptr<const void> owner, std::string_view view) : owner_(std::move(owner)), view_(view) {}

    /// UTF-8; valid as long as this or a copy lives.
    [[nodiscard]] std::string_view view() const { return view_; }

private:
    std::shared_ptr<const void> owner_;
    std::string_view view_;
};

/// A plain object: its members that are texts. Others are left out, since nobody reads them.
using ScriptDictionary = std::map<std::string, ScriptText>;

/// Null, a number, a boolean or an array: a value, though none that anybody reads.
struct OtherScriptValue {};

using ScriptValue = std::variant<OtherScriptValue, ScriptText, ScriptDictionary>;

/// What a script ended with. Absent for `undefined`; an error for an exception, a syntax error, a rejected promise and
/// for what cannot leave the page: a node, a function, an object that holds one.
using ScriptResult = Outcome<std::optional<ScriptValue>>;

using ScriptCompletion = std::function<void(ScriptResult)>;

/// Null where the result is an error, absent or no text.
[[nodiscard]] inline const ScriptText* textOf(const ScriptResult& result)
{
    return result && result.value() ? std::get_if<ScriptText>(&*result.value()) : nullptr;
}

/// Null where the result is an error, absent or no dictionary.
[[nodiscard]] inline const ScriptDictionary* dictionaryOf(const ScriptResult& result)
{
    return result && result.value() ? std::get_if<ScriptDictionary>(&*result.value()) : nullptr;
}

} // namespace orken
