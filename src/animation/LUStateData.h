#pragma once

#include "animation/LottieLoopMode.h"
#include "foundation/Subject.h"
#include "platform/ResourceBundle.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace orken {

/// Where an animation comes from. Values of different cases are never equal.
struct LULoadType {
    /// A resource of that name in the bundle, not in a folder of it.
    struct Name {
        std::string name;
        ResourceBundle bundle;
        bool operator==(const Name&) const = default;
    };

    /// A JSON document to be downloaded.
    struct LoadedFrom {
        std::string url;
        bool operator==(const LoadedFrom&) const = default;
    };

    /// A JSON document on disk.
    struct FilePath {
        std::string path;
        bool operator==(const FilePath&) const = default;
    };

    [[nodiscard]] static LULoadType name(std::string name, ResourceBundle bundle)
    {
        return {Name{.name = std::move(name), .bundle = std::move(bundle)}};
    }

    [[nodiscard]] static LULoadType loadedFrom(std::string url) { return {LoadedFrom{.url = std::move(url)}}; }

    [[nodiscard]] static LULoadType filepath(std::string path) { return {FilePath{.path = std::move(path)}}; }

    std::variant<Name, LoadedFrom, FilePath> source;
    bool operator==(const LULoadType&) const = default;
};

/// The part of an animation to play, as progress: 0 is the first frame, 1 the last.
struct LUProgressRange {
    double from = 0;
    double to = 1;
    bool operator==(const LUProgressRange&) const = default;
};

/// `fit` is the value 0.
enum class LUContentMode { fit, fill };

/// What to play and how, shared by every view that plays it, with the channels through which the views report. Main
/// thread only.
class LUStateData {
public:
    /// The nameless resource of the application's bundle, looped.
    LUStateData();

    /// Without a range the whole animation is played.
    LUStateData(LULoadType source, double factor, LottieLoopMode looping, std::optional<LUProgressRange> part,
                bool isControlled, LUContentMode scaling);

    LUStateData(const LUStateData&) = delete;
    LUStateData& operator=(const LUStateData&) = delete;

    const LULoadType type;
    /// Factor; 1 is the document's own speed.
    const double speed;
    const LottieLoopMode loopMode;
    const LUProgressRange range;
    /// The caller drives the progress that is shown, and nothing plays by itself.
    bool isControlEnabled = false;
    /// One value for each play that has ended: whether it ran to its end.
    Subject<bool> onCompleted;
    /// One value for each load; false only for a download that brought nothing usable.
    Subject<bool> onDownloaded;
    const LUContentMode contentMode;

    /// The channels are not compared.
    bool operator==(const LUStateData& other) const;
};

/// What the views of an animation have in common.
class LUStateProtocol {
public:
    [[nodiscard]] virtual const std::shared_ptr<LUStateData>& state() const = 0;

protected:
    ~LUStateProtocol() = default;
};

} // namespace orken
