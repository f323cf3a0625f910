#include "animation/LUStateData.h"

namespace orken {

LUStateData::LUStateData()
    : LUStateData(LULoadType::name("", ResourceBundle::main()), 1.0, LottieLoopMode::loop(), std::nullopt, false,
                  LUContentMode::fit)
{
}

LUStateData::LUStateData(LULoadType source, double factor, LottieLoopMode looping, std::optional<LUProgressRange> part,
                         bool isControlled, LUContentMode scaling)
    : type(std::move(source)), speed(factor), loopMode(looping), range(part.value_or(LUProgressRange{})),
      isControlEnabled(isControlled), contentMode(scaling)
{
}

bool LUStateData::operator==(const LUStateData& other) const
{
    return type == other.type && speed == other.speed && loopMode == other.loopMode && range == other.range &&
           isControlEnabled == other.isControlEnabled && contentMode == other.contentMode;
}

} // namespace orken
