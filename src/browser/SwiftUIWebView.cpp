#include "browser/SwiftUIWebView.h"

#include "foundation/Url.h"
#include "provider/Conventions.h"

namespace orken {

namespace {

constexpr const char* kContextMenuScript = "document.addEventListener(\"contextmenu\", function(event) {\n"
                                           "    event.preventDefault();\n"
                                           "});";

} // namespace

std::shared_ptr<Coordinator> SwiftUIWebView::makeCoordinator() const
{
    return std::make_shared<Coordinator>(viewModel_, services_.coordinator);
}

std::shared_ptr<BrowserView> SwiftUIWebView::makeNSView(const Context& context)
{
    webView_->setNavigationDelegate(context.coordinator);
    const std::string link = viewModel_->link.get();
    if (parseUrl(link)) {
        webView_->load({.url = link, .cachePolicy = CachePolicy::useProtocolCachePolicy});
    }
    webView_->configure({.customUserAgent = kUserAgent,
                         .allowsLinkPreview = true,
                         .allowsContentJavaScript = true,
                         .developerExtrasEnabled = true,
                         .userScripts = {{.source = kContextMenuScript,
                                          .injectionTime = ScriptInjectionTime::documentEnd,
                                          .forMainFrameOnly = true}}});
    viewModel_->webView = webView_;
    return webView_;
}

void SwiftUIWebView::updateNSView(BrowserView& nsView, const Context&)
{
    services_.updatePass.runUpdatePass(nsView, viewModel_);
}

} // namespace orken
