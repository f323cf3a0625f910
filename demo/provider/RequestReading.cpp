#include "provider/RequestReading.h"

#include "linux/loop/GObjectPtr.h"

#include <string>

namespace orken::demo {

namespace {

void readHeader(const char* name, const char* value, gpointer headers)
{
    const desktop::GText lower(g_ascii_strdown(name, -1));
    auto [entry, isNew] = static_cast<std::map<std::string, std::string>*>(headers)->try_emplace(lower.get(), value);
    if (!isNew) {
        entry->second += std::string(", ") + value;
    }
}

} // namespace

Request readRequest(SoupServerMessage* message)
{
    Request request;
    if (const char* method = soup_server_message_get_method(message)) {
        request.method = method;
    }
    if (GUri* uri = soup_server_message_get_uri(message)) {
        request.path = g_uri_get_path(uri);
        if (const char* query = g_uri_get_query(uri)) {
            request.query = query;
        }
    }
    soup_message_headers_foreach(soup_server_message_get_request_headers(message), readHeader, &request.headers);
    const SoupMessageBody* body = soup_server_message_get_request_body(message);
    if (body->data) {
        request.body.assign(body->data, static_cast<std::size_t>(body->length));
    }
    return request;
}

} // namespace orken::demo
