#pragma once

#include "app/OvantaApp.h"
#include "core/qt/SegundoPlano.h"
#include "core/qt/Texto.h"
#include "tests/Freno.h"
#include "tests/HogarTemporal.h"
#include "tests/PlataformaDePrueba.h"
#include "ui/InterfazQml.h"
#include "ui/Ovanta.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ovanta::pruebas {

/// A rule of a synthetic catalogue, with what `du` tells of it; negative where its folder is absent.
struct ReglaDePrueba
{
    std::string id;
    std::string nombre;
    std::string ruta;
    std::string categoria = "developer";
    std::string riesgo = "safe";
    std::string modo = "contents";
    long kibibytes = 4;
};

/// The program over a synthetic home and a platform of fakes, without any window yet.
class BancoInterfaz : public testing::Test
{
protected:
    BancoInterfaz();
    ~BancoInterfaz() override;

    /// Writes the catalogue, and makes a folder with two files for each rule that is there.
    void poner(const std::vector<ReglaDePrueba> &reglas);
    /// Forty rules of all categories and risks as a real machine has them.
    void ponerCatalogoRealista();
    /// Reads twice the memory and the applications of a busy Mac, so short of memory.
    void ponerMemoria(MemoriaSistema::Nivel nivel = MemoriaSistema::Nivel::normal);
    /// So many entries in the history file; before the first `app`.
    void ponerHistorial(int entradas);

    OvantaApp &app();
    /// Turns the event loop until `cierto` holds; a test fails that waits in vain.
    void esperar(const std::function<bool()> &cierto);
    /// Loads and measures the catalogue.
    void medir();
    /// Reads the memory again, to its end.
    void leerMemoria();
    /// Keeps every measurement under way until `soltar`.
    void frenar();
    void soltar();

    HogarTemporal casa;
    PlataformaDePrueba plataforma;

private:
    std::optional<Freno> m_freno;
    std::unique_ptr<OvantaApp> m_app;
    std::unique_ptr<Aspecto> m_aspecto;
};

/// The same with its main window open, driven as assistive technology and a keyboard do.
class BancoVentana : public BancoInterfaz
{
protected:
    ~BancoVentana() override;

    void abrir(Seccion seccion = Seccion::resumen);
    QQuickWindow *ventana() const;

    /// The visible object of this role that shows this name; null where there is none.
    QAccessibleInterface *objeto(QAccessible::Role rol, const QString &nombre) const;
    bool seVe(const QString &texto) const;
    /// Whether the user may use it. (Qt 6.4 does not tell assistive technology of disabled items.)
    bool disponible(QAccessible::Role rol, const QString &nombre) const;
    /// Presses a button or a row; toggles a switch.
    void pulsar(QAccessible::Role rol, const QString &nombre);
    void pulsarBoton(const QString &nombre) { pulsar(QAccessible::Button, nombre); }
    void tecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = {});
    /// Lets animations end and everything be drawn.
    void reposar();
    /// Saves a picture where the environment asks for them (OVANTA_CAPTURAS names the folder).
    void capturar(const QString &nombre);

    std::unique_ptr<InterfazQml> interfaz;
};

} // namespace ovanta::pruebas
