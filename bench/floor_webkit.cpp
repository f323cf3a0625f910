// The least that the first page costs: the engine, one full-screen view, the address given as the only argument.

#include "PageFloor.h"

#include <cstdio>

namespace {

// Site data on the disk and in the user's folders, as the client has it.
WebKitNetworkSession* makeSession()
{
    const std::string data = std::string(g_get_user_data_dir()) + "/com.orken.floor";
    const std::string cache = std::string(g_get_user_cache_dir()) + "/com.orken.floor";
    return webkit_network_session_new(data.c_str(), cache.c_str());
}

void activate(GtkApplication* application, const char* address)
{
    webkit_web_view_load_uri(orken::bench::showView(application, makeSession()), address);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fputs("usage: floor_webkit ADDRESS\n", stderr);
        return 2;
    }
    return orken::bench::runFloor(G_CALLBACK(activate), arguments[1]);
}
