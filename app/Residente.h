#pragma once

#include "app/Bandeja.h"
#include "app/CargadorInterfaz.h"
#include "app/OvantaApp.h"
#include "app/ToquesDelIcono.h"

#include <QObject>

namespace ovanta {

/// The life of the program in the session: one instance, the status icon, and the panel and the main
/// window that come and go while the program stays. Main thread.
class Residente : public QObject
{
    Q_OBJECT
public:
    explicit Residente(OvantaApp &app, QStringList bibliotecas = CargadorInterfaz::candidatas());

    /// Shows icon and window. False where another instance runs already, which was told to come to
    /// the front: this process should end.
    bool empezar();

    /// Opens the main window or brings it to the front.
    void abrirVentana();

    /// Opens the panel beside the icon.
    void abrirPanel();

    Bandeja &bandeja() { return m_bandeja; }
    CargadorInterfaz &cargador() { return m_cargador; }

Q_SIGNALS:
    /// The user wants the program to end.
    void salirPedido();

private:
    Interfaz *interfaz();
    void alternarPanel();
    void actualizarDatos();
    void seguirAnfitrion();
    void actualizarBandeja();
    Bandeja::Estado estadoDeBandeja() const;
    EtiquetaBarra etiqueta() const;

    OvantaApp &m_app;
    Bandeja m_bandeja;
    CargadorInterfaz m_cargador;
    ToquesDelIcono m_toques;
    std::unique_ptr<Reloj::Temporizador> m_esperaAnfitrion;
};

} // namespace ovanta
