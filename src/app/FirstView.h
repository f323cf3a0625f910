#pragma once

#include "app/VersionGate.h"
#include "machine/OtherApplications.h"
#include "machine/SavedState.h"
#include "machine/Uninstall.h"
#include "platform/Application.h"
#include "platform/Windows.h"
#include "view/View.h"

#include <functional>
#include <memory>
#include <string>

namespace orken {

/// Content of the start window: open, quit, uninstall, and the version gate's alert. Main thread only.
class FirstView final : public View {
public:
    struct Ports {
        Application& application;
        Windows& windows;
        const VersionGate& versionGate;
        SavedState& savedState;
        OtherApplications& otherApplications;
        Uninstall& uninstall;
        std::function<std::unique_ptr<View>()> makeContentView;
    };

    FirstView(std::string downloadURL, Ports ports)
        : ports_(std::move(ports)), showUpdateAlert_(makeState(false)), appVersionMessage_(makeState(std::string())),
          downloadURL_(std::move(downloadURL))
    {
    }

    [[nodiscard]] Element body() override;

    void openApplication();

private:
    [[nodiscard]] std::string versionLine() const;

    Ports ports_;
    State<bool> showUpdateAlert_;
    State<std::string> appVersionMessage_;
    /// The update disk image.
    std::string downloadURL_;
};

} // namespace orken
