#pragma once

#include "app/Interfaz.h"

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

private:
    void cerrar();

    OvantaApp &m_app;
    std::unique_ptr<QQmlApplicationEngine> m_motor;
    QQuickWindow *m_ventana = nullptr;
};

} // namespace ovanta
