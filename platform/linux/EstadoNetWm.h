#pragma once

class QWindow;

namespace ovanta {

/// Asks for a top-level window to be left out of the task bar and the pager, or listed there again:
/// _NET_WM_STATE_SKIP_TASKBAR and _NET_WM_STATE_SKIP_PAGER of the Extended Window Manager Hints 1.5.
/// `yaVisible` tells whether the window was handed to the window manager: from then on only that one
/// may change the state, and is asked to. Does nothing where the display is not X11: Wayland has no
/// such request. Main thread.
void omitirEnBarraDeTareas(const QWindow &ventana, bool omitir, bool yaVisible);

} // namespace ovanta
