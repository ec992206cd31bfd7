#pragma once

#include "app/Interfaz.h"
#include "ui/componentes/Aspecto.h"

#include <memory>

class QQmlApplicationEngine;
class QQuickWindow;

namespace ovanta {

/// The windows, built from QML. The engine exists only while a window is open.
class InterfazQml final : public Interfaz
{
    Q_OBJECT
public:
    explicit InterfazQml(OvantaApp &app);
    ~InterfazQml() override;

    bool enfocarVentanaExistente() override;
    void abrirVentana() override;
    void minimizarAlCerrar(bool si) override;

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void cerrar();

    Aspecto m_aspecto;
    std::unique_ptr<QQmlApplicationEngine> m_motor;
    QQuickWindow *m_ventana = nullptr;
    bool m_minimizar = false;
};

} // namespace ovanta
