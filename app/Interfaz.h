#pragma once

#include <QObject>

namespace ovanta {

class OvantaApp;

/// The windows of the program. They live in a library of their own that is loaded when the first
/// one is asked for: while the program only rests in the tray, Qt Quick costs nothing.
/// Main thread.
class Interfaz : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Brings the open main window to the front; false where none is open.
    virtual bool enfocarVentanaExistente() = 0;

    /// Opens the main window, or brings it to the front. Its scene is built here and destroyed when
    /// the window closes.
    virtual void abrirVentana() = 0;

    /// Whether closing the main window only minimises it, because nothing else on this desktop could
    /// bring it back.
    virtual void minimizarAlCerrar(bool si) = 0;

Q_SIGNALS:
    void ventanaAbierta();
    void ventanaCerrada();
};

/// The one entry point of the library, under the C name `crearInterfaz`.
using CrearInterfaz = Interfaz *(*)(OvantaApp &);

} // namespace ovanta
