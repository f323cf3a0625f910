#include "provider/AddressEcho.h"

#include "provider/Pages.h"

namespace orken::demo {

Answer echoAddress(const Request& request, EchoMode mode, double delay)
{
    if (request.path != "/") {
        return statusPage(404);
    }
    Answer answer{.contentType = "text/plain; charset=utf-8",
                  .body = "203.0.113.7\n",
                  .headers = {{"Cache-Control", "no-store"}},
                  .delay = delay};
    switch (mode) {
    case EchoMode::empty:
        answer.body.clear();
        break;
    case EchoMode::blank:
        answer.body = " \t\r\n\n";
        break;
    case EchoMode::binary:
        answer.body = "\xff\xfe\xff\x80\x81\xc0\xc1";
        break;
    case EchoMode::error500:
        return statusPage(500);
    case EchoMode::ok:
    case EchoMode::slow:
    case EchoMode::refuse:
        break;
    }
    return answer;
}

} // namespace orken::demo
