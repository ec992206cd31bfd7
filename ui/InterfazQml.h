#pragma once

#include "app/Interfaz.h"
#include "ui/PanelQml.h"
#include "ui/componentes/Aspecto.h"

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace ovanta {

/// The windows, built from QML. The engine that they share exists only while one of them is open.
class InterfazQml final : public Interfaz
{
    Q_OBJECT
public:
    explicit InterfazQml(OvantaApp &app);
    ~InterfazQml() override;

    bool enfocarVentanaExistente() override;
    void abrirVentana() override;
    void minimizarAlCerrar(bool si) override;
    void abrirPanel(const QRect &icono) override;
    void cerrarPanel() override;
    bool panelAbierto() const override { return m_panel.abierto(); }

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    QQmlEngine &motor();
    void soltarMotor();
    void cerrar();

    Aspecto m_aspecto;
    std::unique_ptr<QQmlEngine> m_motor; ///< outlives the windows below
    std::unique_ptr<QQuickWindow> m_ventana;
    PanelQml m_panel;
    bool m_minimizar = false;
};

} // namespace ovanta
