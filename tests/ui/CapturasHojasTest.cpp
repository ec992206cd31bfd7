#include "tests/ui/BancoInterfaz.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class CapturasHojas : public BancoVentana
{
protected:
    CapturasHojas()
    {
        ponerCatalogoRealista();
        app();
    }
};

} // namespace

TEST_F(CapturasHojas, theSheetsOfTheCachesStandInBothLooks)
{
    medir();
    abrir(Seccion::espacio);
    pulsarBoton(QStringLiteral("Marcar los seguros"));
    capturar(QStringLiteral("caches-marcadas"));
    pulsarBoton(QStringLiteral("Simular"));
    esperar([&] { return seVe(QStringLiteral("No se moverá ningún archivo en esta vista previa.")); });
    capturar(QStringLiteral("caches-simulacion"));
    plataforma.m_apariencia.fijar({.oscuro = true});
    capturar(QStringLiteral("caches-simulacion-oscura"));
    pulsarBoton(QStringLiteral("Cerrar"));
    esperar([&] { return !seVe(QStringLiteral("Simulación")); });
    pulsarBoton(QStringLiteral("Detalles"));
    esperar([&] { return seVe(QStringLiteral("Cerrar")); });
    capturar(QStringLiteral("caches-detalle-oscura"));
    tecla(Qt::Key_Escape);
    esperar([&] { return !seVe(QStringLiteral("Cerrar")); });
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("Cancelar")); });
    capturar(QStringLiteral("caches-confirmacion-oscura"));
    EXPECT_TRUE(seVe(QStringLiteral("Cancelar")));
}

TEST_F(CapturasHojas, theScreensStandEmptyToo)
{
    plataforma.m_lugares.catalogo = casa.fuera("ninguno.json");
    abrir(Seccion::espacio);
    capturar(QStringLiteral("caches-sin-catalogo"));
    EXPECT_TRUE(seVe(QStringLiteral("Sin cachés medidos")));
    app().navegacion().seleccionar(Seccion::historial);
    reposar();
    capturar(QStringLiteral("historial-vacio"));
    EXPECT_TRUE(seVe(QStringLiteral("Aún no hay movimientos")));
}

TEST_F(CapturasHojas, thePreferencesStandWithTheirWarningTheirErrorAndTheirOpenList)
{
    plataforma.m_inicio.fallo = "No se pudo cambiar «/home/ana/.config/autostart»: no tienes permiso";
    abrir(Seccion::ajustes);
    ventana()->resize(1000, 1200);
    plataforma.m_notificaciones.respuesta(true);
    app().disco().fijarUmbralCritico(120);
    esperarSegundoPlano(10'000);
    pulsar(QAccessible::CheckBox, QStringLiteral("Abrir al iniciar sesión"));
    esperar([&] { return seVe(mostrar(plataforma.m_inicio.fallo)); });
    for (const bool oscuro : {false, true}) {
        const QString aspecto = oscuro ? QStringLiteral("-oscura") : QString();
        plataforma.m_apariencia.fijar({.oscuro = oscuro});
        capturar(QStringLiteral("ajustes-advertencia") + aspecto);
        auto *selector = qobject_cast<QQuickItem *>(
            objeto(QAccessible::ComboBox, QStringLiteral("Avisar con batería baja"))->object());
        selector->forceActiveFocus(Qt::TabFocusReason);
        tecla(Qt::Key_Return);
        esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Nunca")) != nullptr; });
        capturar(QStringLiteral("ajustes-selector") + aspecto);
        tecla(Qt::Key_Escape);
        esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Nunca")) == nullptr; });
        qobject_cast<QQuickItem *>(objeto(QAccessible::Button, QStringLiteral("Abrir la Papelera"))->object())
            ->forceActiveFocus(Qt::TabFocusReason);
        capturar(QStringLiteral("ajustes-abajo") + aspecto);
    }
}
