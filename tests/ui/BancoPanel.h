#pragma once

#include "tests/ui/BancoInterfaz.h"

namespace ovanta::pruebas {

/// The program over a machine with Xcode, whose panel can be opened. What `BancoVentana` looks for and
/// presses is in the panel while the main window is closed.
class BancoPanel : public BancoVentana
{
protected:
    BancoPanel();

    /// Makes the windows, as yet none.
    InterfazQml &ventanas();
    void abrirPanel(const QRect &icono = {});
    QQuickWindow *panel() const;
    /// So many simulators of these ages in days; a negative one has no folder.
    void ponerSimuladores(const std::vector<int> &edades);
    /// Half a minute and more of a machine at work, the last value of the processor being `cpu`.
    void ponerFiguras(double cpu = 0.23);
    /// How often the simulators were listed.
    int simctls() const;
};

} // namespace ovanta::pruebas
