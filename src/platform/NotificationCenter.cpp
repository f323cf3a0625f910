#include "platform/NotificationCenter.h"

namespace orken {

NotificationName notificationName(FullScreenChange change)
{
    switch (change) {
    case FullScreenChange::willEnter:
        return NotificationName::windowWillEnterFullScreen;
    case FullScreenChange::didEnter:
        return NotificationName::windowDidEnterFullScreen;
    case FullScreenChange::willExit:
        return NotificationName::windowWillExitFullScreen;
    case FullScreenChange::didExit:
        break;
    }
    return NotificationName::windowDidExitFullScreen;
}

NotificationCenter::NotificationCenter()
{
    static_assert(static_cast<std::size_t>(NotificationName::windowDidExitFullScreen) + 1 == kNames);
    for (auto& subject : subjects_) {
        subject = std::make_shared<Subject<>>();
    }
}

void NotificationCenter::post(NotificationName name)
{
    publisher(name)->send();
}

void NotificationCenter::addObserver(NotificationName name, std::function<void()> observer)
{
    permanent_.push_back(publisher(name)->subscribe(std::move(observer)));
}

const std::shared_ptr<Subject<>>& NotificationCenter::publisher(NotificationName name) const
{
    return subjects_.at(static_cast<std::size_t>(name));
}

} // namespace orken
