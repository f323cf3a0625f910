#pragma once

#include "platform/NotificationCenter.h"
#include "simulated/Journal.h"
#include "simulated/MainLoop.h"

namespace orken::simulated {

/// What every part of a simulated desktop works with.
struct Common {
    Journal journal;
    MainLoop loop;
    NotificationCenter notifications;
};

/// A part of a simulated desktop. A port's class inherits the constructor.
class Part {
public:
    explicit Part(Common& common) : common_(common) {}

protected:
    ~Part() = default;

    Common& common_;
    Journal& journal_ = common_.journal;
    MainLoop& loop_ = common_.loop;
};

} // namespace orken::simulated
