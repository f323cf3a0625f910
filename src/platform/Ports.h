#pragma once

#include "platform/Alerts.h"
#include "platform/AnimationSurface.h"
#include "platform/Application.h"
#include "platform/BrowserView.h"
#include "platform/BundleInfo.h"
#include "platform/Clock.h"
#include "platform/Console.h"
#include "platform/ContentsReader.h"
#include "platform/CookieStorage.h"
#include "platform/Files.h"
#include "platform/HardwareRegistry.h"
#include "platform/KeyMonitors.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/RandomNumbers.h"
#include "platform/RunningApplications.h"
#include "platform/Screens.h"
#include "platform/Timers.h"
#include "platform/UrlSession.h"
#include "platform/WebsiteDataStore.h"
#include "platform/Windows.h"
#include "platform/Workspace.h"

namespace orken {

/// What a desktop has to bring. The list is for what puts a room's objects together; each object takes the ports that
/// it uses.
struct Ports {
    Application& application;
    Windows& windows;
    NotificationCenter& notifications;
    KeyMonitors& keyMonitors;
    MainQueue& mainQueue;
    Timers& timers;
    Console& console;
    const Clock& clock;
    RandomNumbers& random;
    const Screens& screens;
    Alerts& alerts;
    Workspace& workspace;
    RunningApplications& runningApplications;
    BundleInfo& bundle;
    Files& files;
    CookieStorage& cookies;
    WebsiteDataStore& websiteData;
    UrlSession& urlSession;
    ContentsReader& contentsReader;
    HardwareRegistry& hardware;
    BrowserViews& browserViews;
    AnimationSurfaces& animationSurfaces;
};

/// The ports of a desktop, whose members have the names of this list.
template <class Desktop>
[[nodiscard]] Ports portsOf(Desktop& desktop)
{
    return {.application = desktop.application,
            .windows = desktop.windows,
            .notifications = desktop.notifications,
            .keyMonitors = desktop.keyMonitors,
            .mainQueue = desktop.mainQueue,
            .timers = desktop.timers,
            .console = desktop.console,
            .clock = desktop.clock,
            .random = desktop.random,
            .screens = desktop.screens,
            .alerts = desktop.alerts,
            .workspace = desktop.workspace,
            .runningApplications = desktop.runningApplications,
            .bundle = desktop.bundle,
            .files = desktop.files,
            .cookies = desktop.cookies,
            .websiteData = desktop.websiteData,
            .urlSession = desktop.urlSession,
            .contentsReader = desktop.contentsReader,
            .hardware = desktop.hardware,
            .browserViews = desktop.browserViews,
            .animationSurfaces = desktop.animationSurfaces};
}

} // namespace orken
