#pragma once

#include <QObject>
#include <QRect>

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

    /// Opens the panel of the tray beside `icono`, the place of the status icon on the screen, or where
    /// the pointer is if that is empty. Its scene is built here and destroyed when the panel closes,
    /// which it also does by itself once the user turns to something else.
    virtual void abrirPanel(const QRect &icono) = 0;
    virtual void cerrarPanel() = 0;
    virtual bool panelAbierto() const = 0;

Q_SIGNALS:
    void ventanaAbierta();
    void ventanaCerrada();
    /// `porFoco`: the user turned to something else.
    void panelCerrado(bool porFoco);
    /// The user wants the program to end.
    void salirPedido();
};

/// The one entry point of the library, under the C name `crearInterfaz`.
using CrearInterfaz = Interfaz *(*)(OvantaApp &);

} // namespace ovanta
