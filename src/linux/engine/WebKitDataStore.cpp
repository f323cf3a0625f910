#include "linux/engine/WebKitDataStore.h"

#include "linux/loop/AsyncReply.h"
#include "linux/loop/GObjectPtr.h"

#include <utility>

namespace orken::desktop {

namespace {

WebKitWebsiteDataTypes engineTypes(WebsiteDataTypes types)
{
    return static_cast<WebKitWebsiteDataTypes>(types & WEBKIT_WEBSITE_DATA_ALL);
}

WebsiteDataRecord recordOf(WebKitWebsiteData* data)
{
    return {.dataTypes = webkit_website_data_get_types(data),
            .handle = {data, [](void* taken) { webkit_website_data_unref(static_cast<WebKitWebsiteData*>(taken)); }}};
}

std::vector<WebsiteDataRecord> takeRecords(GList* list)
{
    std::vector<WebsiteDataRecord> records;
    for (GList* link = list; link; link = link->next) {
        records.push_back(recordOf(static_cast<WebKitWebsiteData*>(link->data)));
    }
    g_list_free(list);
    return records;
}

/// The list refers to the records' own data.
std::unique_ptr<GList, decltype(&g_list_free)> listOf(const std::vector<WebsiteDataRecord>& records)
{
    GList* list = nullptr;
    for (const WebsiteDataRecord& record : records) {
        list = g_list_prepend(list, record.handle.get());
    }
    return {list, g_list_free};
}

} // namespace

void WebKitDataStore::fetchDataRecords(WebsiteDataTypes types,
                                       std::function<void(std::vector<WebsiteDataRecord>)> completion)
{
    ++pending_;
    auto answered = [this, watch = alive_.watch(), manager = manager_,
                     completion = std::move(completion)](GAsyncResult* result) {
        auto records = takeRecords(webkit_website_data_manager_fetch_finish(manager, result, nullptr));
        if (!watch.expired()) {
            completion(std::move(records));
            --pending_;
        }
    };
    webkit_website_data_manager_fetch(manager_, engineTypes(types), nullptr, AsyncReply::call,
                                      AsyncReply::of(std::move(answered)));
}

void WebKitDataStore::removeData(WebsiteDataTypes types, const std::vector<WebsiteDataRecord>& records,
                                 std::function<void()> completion)
{
    ++pending_;
    gpointer reply = AsyncReply::of([this, watch = alive_.watch(), completion = std::move(completion)](GAsyncResult*) {
        if (!watch.expired()) {
            completion();
            --pending_;
        }
    });
    if (records.empty()) {
        // The engine takes no empty list; a task that is done at once answers on a later turn as well.
        const auto done = GObjectPtr<GTask>::adopt(g_task_new(manager_, nullptr, AsyncReply::call, reply));
        g_task_return_boolean(done.get(), TRUE);
        return;
    }
    webkit_website_data_manager_remove(manager_, engineTypes(types), listOf(records).get(), nullptr, AsyncReply::call,
                                       reply);
}

} // namespace orken::desktop
