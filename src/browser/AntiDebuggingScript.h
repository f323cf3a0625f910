#pragma once

namespace orken {

/// Takes the keys of the developer tools away from the page, once a page however often it runs, and nothing else: a
/// course's own keys and scripts are not touched.
inline constexpr const char* kAntiDebuggingScript = R"(try {
    (function() {
        var installed = Symbol.for('orken.shortcuts');
        if (window[installed]) {
            return;
        }
        Object.defineProperty(window, installed, { value: true });
        window.addEventListener('keydown', function(event) {
            var isTool = event.ctrlKey && event.shiftKey && ['KeyI', 'KeyJ', 'KeyC'].indexOf(event.code) >= 0;
            if (isTool || event.code === 'F12') {
                event.preventDefault();
                event.stopImmediatePropagation();
            }
        }, true);
    })();
} catch (error) {
}
undefined;)";

} // namespace orken
