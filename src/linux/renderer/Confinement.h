#pragma once

namespace orken::desktop::renderer {

// What keeps a hostile document inside the renderer. To be called in this order, with `warmUp` of the drawing between
// them: the threads that draw are started in the open, and afterwards nothing can be started any more.

/// The renderer dies with the client, leaves no core, gains no rights, and has 512 MiB of address space (without this
/// bound where sanitizers need terabytes). False when the system refuses.
[[nodiscard]] bool limitResources();

/// From here on no file can be opened, nothing be connected, started or made executable: a forbidden system call ends
/// the process, an attempt to look for a file fails. False when the system refuses.
[[nodiscard]] bool forbidSystemCalls();

} // namespace orken::desktop::renderer
