#pragma once

namespace orken::desktop {

/// Settings of this process and of the libraries below, unless the user has made them: some are read at once, some when
/// the toolkit and the engine start. Before anything of those is made, main thread only. Answers whether there is a
/// render node, a graphics card that can be drawn with.
[[nodiscard]] bool prepareProcess();

} // namespace orken::desktop
