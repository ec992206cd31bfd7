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
