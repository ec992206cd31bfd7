#include "platform/simulada/ReinicioSimulado.h"

#include <exception>

namespace ovanta {

namespace {

constexpr double limite = 30.0; // seconds
/// The event kAERestart ("rrst" of the class "aevt", AEEvents.h), which asks before it restarts.
constexpr const char *guion = "tell application \"loginwindow\" to «event aevtrrst»";

} // namespace

void ReinicioSimulado::pedir()
{
    try {
        m_herramientas.ejecutar("/usr/bin/osascript", {"-e", guion}, limite, false);
    } catch (const std::exception &) {
        return; // the system asks its user; what it refuses is told there
    }
}

} // namespace ovanta
