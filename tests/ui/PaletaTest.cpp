#include "ui/componentes/Paleta.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

double lineal(double canal)
{
    return canal <= 0.04045 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4);
}

double luminancia(const QColor &color)
{
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
}

/// The contrast ratio of WCAG 2.1.
double contraste(const QColor &uno, const QColor &otro)
{
    const auto [oscuro, claro] = std::minmax({luminancia(uno), luminancia(otro)});
    return (claro + 0.05) / (oscuro + 0.05);
}

/// `encima` with this opacity over `debajo`.
QColor mezclar(const QColor &encima, const QColor &debajo, float opacidad)
{
    const auto canal = [opacidad](float a, float b) { return a * opacidad + b * (1 - opacidad); };
    return QColor::fromRgbF(canal(encima.redF(), debajo.redF()), canal(encima.greenF(), debajo.greenF()),
                            canal(encima.blueF(), debajo.blueF()));
}

struct AspectoPaleta
{
    const char *nombre;
    bool oscuro;
    bool altoContraste;
    double minimo;
};

constexpr Tinte tintes[] = {Tinte::Azul, Tinte::Verde,    Tinte::Naranja, Tinte::Rojo, Tinte::Morado,
                            Tinte::Rosa, Tinte::Turquesa, Tinte::Indigo,  Tinte::Gris, Tinte::Secundario};

class PaletaEn : public testing::TestWithParam<AspectoPaleta>
{
protected:
    const Colores colores = paleta(GetParam().oscuro, GetParam().altoContraste);
    const std::vector<QColor> superficies{colores.fondo, colores.lateral, colores.superficie};
};

} // namespace

TEST_P(PaletaEn, textsCanBeReadOnEverySurface)
{
    for (const QColor &superficie : superficies) {
        EXPECT_GE(contraste(colores.texto, superficie), GetParam().minimo);
        EXPECT_GE(contraste(colores.secundario, superficie), GetParam().minimo);
    }
}

TEST_P(PaletaEn, tintsCanBeReadOnEverySurfaceAndOnTheirOwnCards)
{
    for (const Tinte tinte : tintes) {
        const QColor color = colores.tinta(tinte);
        for (const QColor &superficie : superficies)
            EXPECT_GE(contraste(color, superficie), GetParam().minimo) << static_cast<int>(tinte);
        const QColor tarjeta = mezclar(color, colores.superficie, 0.1F);
        EXPECT_GE(contraste(color, tarjeta), 4.5) << static_cast<int>(tinte);
        EXPECT_GE(contraste(colores.secundario, tarjeta), 4.5) << static_cast<int>(tinte);
    }
}

TEST_P(PaletaEn, badgesCanBeReadOnTheCardsOfEveryTint)
{
    for (const Tinte tinte : tintes)
        for (const Tinte insignia : {Tinte::Verde, Tinte::Naranja, Tinte::Gris}) {
            const QColor tarjeta = mezclar(colores.tinta(tinte), colores.superficie, 0.1F);
            const QColor pildora = mezclar(colores.tinta(insignia), tarjeta, 0.1F);
            EXPECT_GE(contraste(colores.tinta(insignia), pildora), 4.5)
                << static_cast<int>(insignia) << " on " << static_cast<int>(tinte);
        }
}

TEST_P(PaletaEn, thickShapesStandOutFromTheSurface)
{
    for (const Tinte tinte : tintes)
        EXPECT_GE(contraste(colores.forma(tinte), colores.superficie), 3.0) << static_cast<int>(tinte);
}

TEST_P(PaletaEn, filledButtonsCanBeRead)
{
    EXPECT_GE(contraste(colores.sobreAcento, colores.acento), GetParam().minimo);
    EXPECT_GE(contraste(colores.sobreDestructivo, colores.destructivo), GetParam().minimo);
}

INSTANTIATE_TEST_SUITE_P(Aspectos, PaletaEn,
                         testing::Values(AspectoPaleta{"clara", false, false, 4.5},
                                         AspectoPaleta{"oscura", true, false, 4.5},
                                         AspectoPaleta{"claraDeAltoContraste", false, true, 7.0},
                                         AspectoPaleta{"oscuraDeAltoContraste", true, true, 7.0}),
                         [](const auto &info) { return info.param.nombre; });
