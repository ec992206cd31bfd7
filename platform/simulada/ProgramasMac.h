#pragma once

#include "platform/AplicacionesEnMarcha.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What an application does when it is asked to quit.
enum class AlCerrar { sale, preguntaSiGuardar, dejaAuxiliares };

/// One process of a program: what it takes on average.
struct ProcesoMac
{
    std::string nombre;
    double huella = 0; ///< bytes
    double carga = 0;  ///< of one core
};

/// A program that runs in the session of the simulated Mac: an application with a bundle, or a single
/// process without one.
struct ProgramaMac
{
    std::optional<AplicacionEnMarcha> app; ///< without pid: the session gives them
    std::vector<ProcesoMac> procesos;      ///< the first one is the application's own
    AlCerrar alCerrar = AlCerrar::sale;
};

/// What somebody has open who develops programs: a browser with forty helpers, a virtual machine for
/// containers, a phone simulator, an editor with unsaved work, and what the desktop itself runs.
std::vector<ProgramaMac> programasDeUnMac();

} // namespace ovanta
