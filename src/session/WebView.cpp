#include "session/WebView.h"

#include "foundation/Text.h"
#include "machine/QuitApplication.h"
#include "provider/Conventions.h"

#include <algorithm>

namespace orken {

namespace {

constexpr std::int64_t kSlowLoadThreshold = 301;
constexpr std::size_t kLongestWatermark = 200;
constexpr const char* kLoadingText = "Yükleniyor...";
constexpr const char* kSlowLoadText = "SAYFANIN YÜKLENMESİ\nBEKLENENDEN UZUN SÜRDÜ";
constexpr double kAnimationExtent = 300;
constexpr Shadow kTextShadow{.color = Color::black(), .radius = 1, .x = 1, .y = 1};

} // namespace

WebView::WebView(const std::string& link, const Endpoints& endpoints, const Ports& ports)
    : ports_(ports), mainPageURL_(endpoints.mainPageURL), model_(std::make_shared<WebViewModel>(link)),
      position_(makeState(Point{})), second_(makeState(std::int64_t{0})), isFullScreen_(makeState(false)),
      loadingAnimation_(std::make_shared<LUStateData>(LULoadType::loadedFrom(endpoints.loadingAnimationURL()), 1.0,
                                                      LottieLoopMode::loop(), std::nullopt, false, LUContentMode::fit)),
      loadCounter_(std::make_shared<LoadCounter>(model_, second_, ports.timers, ports.mainQueue)),
      watermark_(std::make_shared<WatermarkMovement>(position_, ports.pageValues, ports.watermark))
{
    observe(*model_);
}

Element WebView::body()
{
    return ZStack({browserLayer(), cornerLayer(), waitingOverlay(), loginExitLayer(), watermarkLayer()})
        .onAppear([this] { loadCounter_->startLoadTimer(); });
}

Element WebView::browserLayer()
{
    // The factory runs once: a redraw must never bring a new browser view.
    auto makeBrowser = [this] {
        return std::make_unique<SwiftUIWebView>(model_, makeState(false), ports_.browserViews.make(), ports_.browser);
    };
    return Representable<SwiftUIWebView>(makeBrowser).disabled(!model_->didFinishLoading.get()).onAppear([this] {
        setUpWindow();
    });
}

Element WebView::cornerLayer()
{
    const std::string version = infoText(ports_.bundle, kBundleShortVersionKey).value_or("alınamadı");
    auto exitLabel = Symbol("xmark.circle.fill", "Çıkış")
                         .frame({.width = 30, .height = 30})
                         .foreground(Color::systemRed())
                         .opacity(0.7);
    return VStack({
        HStack({Spacer(), Button(std::move(exitLabel), [this] { confirmExit(); }).padding()}),
        Spacer(),
        HStack({
            Spacer(),
            Text("Uygulama sürümü " + version)
                .foreground(Color::systemRed())
                .font(Font::caption)
                .shadow(kTextShadow)
                .padding(Edge::leading),
        }),
    });
}

Element WebView::waitingOverlay()
{
    const bool isSlow = second_.get() >= kSlowLoadThreshold;
    auto ignored = [](bool) {};
    auto animation = LottieView::element(
        {.state = loadingAnimation_, .onCompleted = ignored, .onDownloaded = ignored, .value = 0}, ports_.animation);
    return VStack({std::move(animation).frame({.width = kAnimationExtent, .height = kAnimationExtent}),
                   When(!isSlow, [] { return Text(kLoadingText).font(Font::system36); }),
                   When(isSlow, [this] { return slowLoadMessage(); })},
                  0)
        .foreground(Color::white())
        .frame({.fill = true})
        .background({.red = 0, .green = 0, .blue = 0, .alpha = 0.8})
        .opacity(model_->didFinishLoading.get() ? 0 : 1)
        .announcement(isSlow ? kSlowLoadText : kLoadingText);
}

Element WebView::slowLoadMessage()
{
    auto label =
        Text("ANASAYFAYI AÇ").foreground(Color::black()).frame({.width = 200, .height = 50}).background(Color::gray());
    return VStack({Text(kSlowLoadText).font(Font::largeTitle).padding(),
                   Text("Beklemeye devam edebilir ya da aşağıdaki butona basarak anasayfaya dönebilirsiniz.")
                       .font(Font::caption),
                   Button(std::move(label), [this] { openMainPage(); }).padding()},
                  0)
        .announcement(kSlowLoadText);
}

Element WebView::loginExitLayer()
{
    const bool isShown = model_->didFinishLoading.get() && isLoginPage(model_->link.get());
    auto atBottomLeading = [this](Size size) {
        // Before the first layout there is no width yet.
        auto label = Text("Çıkış Yap")
                         .foreground(Color::black())
                         .font(Font::largeTitle)
                         .frame({.width = std::max(size.width / 4 - 40, 0.0), .height = 60})
                         .background(Color::gray());
        auto button = Button(std::move(label), [this] { quitApplication(ports_.application); }).padding(20);
        return VStack({Spacer(), HStack({std::move(button), Spacer()})});
    };
    return When(isShown, [&] { return GeometryReader(atBottomLeading); });
}

Element WebView::watermarkLayer()
{
    auto text = [this] {
        return Text(shortenedLine(ports_.pageValues.decryptedHashValue.value_or(""), kLongestWatermark))
            .foreground(Color::white())
            .font(Font::largeTitle)
            .shadow(kTextShadow)
            .padding()
            .background(Color::black(), 10)
            .position(position_.get())
            .onAppear([this] { ports_.mainQueue.async([movement = watermark_] { movement->startTextMovement(); }); });
    };
    return When(isVideoPage(model_->link.get()), text);
}

void WebView::setUpWindow()
{
    ports_.windowControl.enterFullScreen(isFullScreen_);
    ports_.windowControl.closeOtherWindows();
    ports_.windowControl.observeFullScreenChanges(isFullScreen_);
    ports_.windowControl.installKeyMonitor();
}

void WebView::openMainPage()
{
    if (model_->webView) {
        model_->webView->load({.url = mainPageURL_});
    }
}

void WebView::confirmExit()
{
    const int answer = ports_.alerts.runModal({.title = "Çıkış yapmak istediğinize emin misiniz?",
                                               .message = "",
                                               .style = AlertStyle::warning,
                                               .buttons = {{.title = "Evet"}, {.title = "Hayır"}}});
    if (answer == kAlertFirstButtonReturn) {
        quitApplication(ports_.application);
    }
}

} // namespace orken
