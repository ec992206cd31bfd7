#include "tests/ui/BancoInterfaz.h"

#include <QTest>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

namespace {

class MemoriaVista : public BancoVentana
{
protected:
    void mostrarMemoria(MemoriaSistema::Nivel nivel = MemoriaSistema::Nivel::normal)
    {
        plataforma.m_apariencia.fijar({.movimientoReducido = true});
        ponerMemoria(nivel);
        abrirAlta();
    }
    /// The window is so tall that the whole screen can be seen at once.
    void abrirAlta()
    {
        abrir(Seccion::memoria);
        ventana()->resize(1000, 2200);
        reposar();
    }
    /// A picture of the usual size, with the row of this name in sight.
    void retratar(const QString &nombre, const QString &fila = {})
    {
        if (qEnvironmentVariableIsEmpty("OVANTA_CAPTURAS")) return;
        ventana()->resize(1000, 700);
        reposar();
        if (!fila.isEmpty()) enfocar(fila);
        capturar(nombre);
        ventana()->resize(1000, 2200);
        reposar();
    }
    void enfocar(const QString &fila)
    {
        QAccessibleInterface *una = filaDe(QAccessible::queryAccessibleInterface(ventana()), fila);
        ASSERT_NE(una, nullptr);
        qobject_cast<QQuickItem *>(una->object())->forceActiveFocus(Qt::TabFocusReason);
    }
    /// The row of this name, also where it is scrolled out of sight.
    static QAccessibleInterface *filaDe(QAccessibleInterface *desde, const QString &fila)
    {
        if (desde->role() == QAccessible::ListItem && desde->text(QAccessible::Name) == fila) return desde;
        for (int i = 0; i < desde->childCount(); ++i)
            if (auto *hallada = filaDe(desde->child(i), fila)) return hallada;
        return nullptr;
    }
    void casilla(const QString &nombre) { pulsar(QAccessible::CheckBox, nombre); }
    std::int32_t pidDe(const std::string &nombre)
    {
        return std::ranges::find(app().mem().procesos(), nombre, &Proceso::nombre)->id;
    }
    void hastaVer(const QString &texto)
    {
        esperar([&] {
            plataforma.m_reloj.avanzar(500ms);
            return seVe(texto);
        });
    }
};

} // namespace

TEST_F(MemoriaVista, showsFiguresRecommendationsAndTheTable)
{
    mostrarMemoria();
    for (const char *texto : {"Memoria",
                              "Actualizar",
                              "Presión normal",
                              "Apps",
                              "Memoria de tus programas",
                              "Reservada",
                              "Comprimida",
                              "Caché",
                              "Libre",
                              "Swap",
                              "2,25 GB usados de 3 GB",
                              "Sin actividad de swap en este momento",
                              "Qué puedes hacer",
                              "Reiniciar…",
                              "Cerrar app",
                              "Lo que más memoria consume",
                              "Procesador",
                              "Google Chrome",
                              "41 procesos",
                              "Abrir el Monitor de Actividad"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(seVe(QStringLiteral("Cerrar 1")));
}

TEST_F(MemoriaVista, aSystemProcessHasABoxThatCannotBeTicked)
{
    mostrarMemoria();
    EXPECT_TRUE(disponible(QAccessible::CheckBox, QStringLiteral("Google Chrome")));
    EXPECT_FALSE(disponible(QAccessible::CheckBox, QStringLiteral("Finder")));
    EXPECT_FALSE(disponible(QAccessible::CheckBox, QStringLiteral("ollama")));
    EXPECT_FALSE(disponible(QAccessible::CheckBox, QStringLiteral("Ovanta")));
}

TEST_F(MemoriaVista, whatIsTickedIsClosedAfterAQuestionAndTheRestCanBeForced)
{
    mostrarMemoria();
    plataforma.m_enMarcha.sordas = {pidDe("Visual Studio Code")};
    casilla(QStringLiteral("Mail"));
    casilla(QStringLiteral("Visual Studio Code"));
    pulsarBoton(QStringLiteral("Cerrar 2"));
    esperar([&] { return seVe(QStringLiteral("¿Cerrar las aplicaciones seleccionadas?")); });
    EXPECT_TRUE(seVe(QStringLiteral(
        "macOS enviará la orden normal de cierre. Cada app puede pedirte guardar cambios antes de salir.")));
    retratar(QStringLiteral("memoria-cerrar"));
    pulsarBoton(QStringLiteral("Cerrar apps normalmente"));
    esperar([&] { return seVe(QStringLiteral("Esperando a que las apps se cierren…")); });
    retratar(QStringLiteral("memoria-cerrando"), QStringLiteral("Docker"));
    hastaVer(QStringLiteral("Forzar salida de Visual Studio Code"));
    retratar(QStringLiteral("memoria-resultado"), QStringLiteral("Mail"));
    plataforma.m_apariencia.fijar({.oscuro = true, .movimientoReducido = true});
    retratar(QStringLiteral("memoria-resultado-oscura"), QStringLiteral("Dock"));
    pulsarBoton(QStringLiteral("Forzar salida de Visual Studio Code"));
    esperar([&] { return seVe(QStringLiteral("¿Forzar la salida?")); });
    retratar(QStringLiteral("memoria-forzar-oscura"));
    pulsarBoton(QStringLiteral("Forzar salida"));
    hastaVer(QStringLiteral("Forzada la salida de Visual Studio Code."));
    EXPECT_EQ(plataforma.m_enMarcha.forzadas.size(), 1U);
}

TEST_F(MemoriaVista, theRestartIsAskedForTwice)
{
    mostrarMemoria();
    pulsarBoton(QStringLiteral("Reiniciar…"));
    esperar([&] { return seVe(QStringLiteral("¿Reiniciar el Mac?")); });
    retratar(QStringLiteral("memoria-reiniciar"));
    tecla(Qt::Key_Escape);
    esperar([&] { return !seVe(QStringLiteral("¿Reiniciar el Mac?")); });
    EXPECT_EQ(plataforma.m_reinicio.pedidos, 0);
}

TEST_F(MemoriaVista, theTableIsReachedAndTickedByKeyboard)
{
    mostrarMemoria();
    enfocar(QStringLiteral("Google Chrome"));
    tecla(Qt::Key_Space);
    EXPECT_TRUE(seVe(QStringLiteral("Cerrar 1")));
    tecla(Qt::Key_Down);
    tecla(Qt::Key_Space);
    EXPECT_TRUE(seVe(QStringLiteral("Cerrar 2")));
    tecla(Qt::Key_Space);
    EXPECT_TRUE(seVe(QStringLiteral("Cerrar 1")));
}

TEST_F(MemoriaVista, withoutProcessesTheTableSaysSo)
{
    plataforma.m_apariencia.fijar({.movimientoReducido = true});
    app();
    leerMemoria();
    abrirAlta();
    EXPECT_TRUE(seVe(QStringLiteral("Sin procesos medidos")));
    EXPECT_FALSE(seVe(QStringLiteral("Qué puedes hacer")));
    capturar(QStringLiteral("memoria-vacia"));
}

TEST_F(MemoriaVista, everyStateStandsInItsColours)
{
    mostrarMemoria(MemoriaSistema::Nivel::tension);
    EXPECT_TRUE(seVe(QStringLiteral("Presión alta")));
    retratar(QStringLiteral("memoria-tension"));
    ponerMemoria(MemoriaSistema::Nivel::critico);
    plataforma.m_apariencia.fijar({.oscuro = true, .movimientoReducido = true});
    EXPECT_TRUE(seVe(QStringLiteral("Presión crítica")));
    retratar(QStringLiteral("memoria-critico-oscura"));
    retratar(QStringLiteral("memoria-abajo-oscura"), QStringLiteral("fileproviderd"));
}
