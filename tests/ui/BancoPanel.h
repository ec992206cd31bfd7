#pragma once

#include "tests/ui/BancoInterfaz.h"

#include <QPointer>
#include <QQmlEngine>
#include <QSignalSpy>

namespace ovanta::pruebas {

/// The program with the panel of its tray open, over a machine with simulators.
class BancoPanel : public BancoVentana
{
protected:
    BancoPanel();
    ~BancoPanel() override { interfaz.reset(); }

    /// Makes the windows, as yet none.
    InterfazQml &ventanas();
    void abrirPanel(const QRect &icono = {});
    QQuickWindow *panel() const;
    /// So many simulators of these ages in days; a negative one has no folder.
    void ponerSimuladores(const std::vector<int> &edades);
    /// Samples of a machine at work.
    void ponerFiguras(double cpu = 0.23);
    int simctls() const;

private:
    std::string m_lista;
};

} // namespace ovanta::pruebas
