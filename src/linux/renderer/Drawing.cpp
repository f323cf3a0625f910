#include "linux/renderer/Drawing.h"

#include <rlottie.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace orken::desktop::renderer {

namespace {

constexpr const char* kSquare =
    R"({"ty":"","v":"5.5.0","fr":1,"ip":0,"op":1,"w":1,"h":1,"layers":[{"ty":4,"ip":0,"op":1,"st":0,"ks":{},)"
    R"("shapes":[{"ty":"rc","p":{"k":[0,0]},"s":{"k":[4,4]},"r":{"k":0}},)"
    R"({"ty":"fl","c":{"k":[1,1,1,1]},"o":{"k":100}}]}]})";

} // namespace

Drawing::Drawing(std::uint32_t* pixels) : pixels_(pixels) {}

Drawing::~Drawing() = default;

bool Drawing::warmUp()
{
    rlottie::configureModelCacheSize(0);
    std::vector<std::uint32_t> pixels(1);
    Drawing drawing(pixels.data());
    return drawing.load(kSquare) && drawing.draw({.frame = 0, .width = 1, .height = 1}) && pixels.front() != 0;
}

bool Drawing::load(std::string document)
{
    // Without a resource path: no file is looked for.
    animation_ = rlottie::Animation::loadFromData(std::move(document), "", "", false);
    return animation_ && animation_->totalFrame() > 0;
}

bool Drawing::draw(const Request& request)
{
    const std::size_t size = std::size_t{request.width} * request.height;
    if (size == 0 || size > kPixelBytes / kBytesPerPixel) {
        return false;
    }
    const std::size_t frame = std::min<std::size_t>(request.frame, animation_->totalFrame() - 1);
    animation_->renderSync(
        frame, rlottie::Surface(pixels_, request.width, request.height, request.width * kBytesPerPixel), true);
    return true;
}

} // namespace orken::desktop::renderer
