#include "tests/ui/BancoInterfaz.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

struct Vista
{
    const char *nombre;
    Seccion seccion;
};

class CapturasPantallas : public BancoVentana, public testing::WithParamInterface<Vista>
{
protected:
    void retratar(const QString &aspecto, Apariencia::Estado estado, QSize tamano)
    {
        plataforma.m_apariencia.fijar(estado);
        ventana()->resize(tamano);
        reposar();
        capturar(QString::fromUtf8(GetParam().nombre) + QLatin1Char('-') + aspecto);
        EXPECT_EQ(ventana()->size(), tamano);
    }
};

} // namespace

TEST_P(CapturasPantallas, everyScreenStandsInEveryLookAndSize)
{
    ponerCatalogoRealista();
    ponerHistorial(500);
    ponerMemoria();
    app();
    medir();
    abrir(GetParam().seccion);
    retratar(QStringLiteral("clara"), {.oscuro = false}, {1000, 700});
    retratar(QStringLiteral("oscura"), {.oscuro = true}, {1000, 700});
    retratar(QStringLiteral("clara-minima"), {.oscuro = false}, {900, 660});
    retratar(QStringLiteral("oscura-grande"), {.oscuro = true}, {1400, 900});
    retratar(QStringLiteral("contraste"), {.oscuro = false, .altoContraste = true}, {1000, 700});
    retratar(QStringLiteral("contraste-oscura"), {.oscuro = true, .altoContraste = true}, {1000, 700});
}

INSTANTIATE_TEST_SUITE_P(
    Todas, CapturasPantallas,
    testing::Values(Vista{"resumen", Seccion::resumen}, Vista{"caches", Seccion::espacio},
                    Vista{"historial", Seccion::historial}, Vista{"ajustes", Seccion::ajustes},
                    Vista{"memoria", Seccion::memoria}, Vista{"construccion", Seccion::salud}),
    [](const auto &info) { return info.param.nombre; });
