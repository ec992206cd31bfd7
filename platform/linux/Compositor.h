#pragma once

namespace ovanta {

/// Whether the display server blends windows: Wayland always does, an X server where a compositing
/// manager runs. Main thread, with a QGuiApplication.
bool hayCompositor();

} // namespace ovanta
