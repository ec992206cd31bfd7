#pragma once

namespace ovanta {

/// Ends every connection of this process to others, the display's and the buses', at once. For a process
/// that leaves without one of its threads: where that one is stuck in a dead disk, the system keeps all
/// open files of the process until the disk answers, and with them its windows and its names on the bus.
/// Nothing may use a connection afterwards.
void soltarConexiones();

} // namespace ovanta
