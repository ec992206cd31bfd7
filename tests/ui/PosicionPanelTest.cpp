#include "ui/PosicionPanel.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

constexpr int hueco = 6;
const QSize panel(350, 600);
const QRect completa(0, 0, 1920, 1080);

struct Caso
{
    const char *nombre;
    QRect disponible;
    QRect icono;
    QPoint esperada;
};

QPoint lugar(const QRect &disponible, const QRect &icono, QPoint puntero = {}, QSize tamano = panel)
{
    return posicionPanel(tamano, icono, puntero, {completa, disponible}, hueco);
}

} // namespace

TEST(PosicionPanel, standsBesideTheIconAwayFromTheBarsEdge)
{
    const Caso casos[]{
        {"top bar", {0, 30, 1920, 1050}, {1000, 3, 24, 24}, {836, 36}},
        {"bottom bar", {0, 0, 1920, 1040}, {1000, 1048, 24, 24}, {836, 434}},
        {"left bar", {50, 0, 1870, 1080}, {10, 500, 30, 30}, {56, 214}},
        {"right bar", {0, 0, 1870, 1080}, {1880, 500, 30, 30}, {1514, 214}},
        {"a bar that hides itself", completa, {1000, 1050, 24, 24}, {836, 444}},
        {"an icon in the corner", {0, 30, 1920, 1050}, {1890, 3, 24, 24}, {1564, 36}},
        {"an icon at the left end", {0, 0, 1920, 1040}, {4, 1048, 24, 24}, {6, 434}},
    };
    for (const Caso &caso : casos)
        EXPECT_EQ(lugar(caso.disponible, caso.icono), caso.esperada) << caso.nombre;
}

TEST(PosicionPanel, withoutAKnownIconItStandsInThePointersCorner)
{
    const QRect disponible(0, 30, 1920, 1050);
    EXPECT_EQ(lugar(disponible, {}, {1800, 10}), QPoint(1564, 36));
    EXPECT_EQ(lugar(disponible, {}, {100, 10}), QPoint(6, 36));
    EXPECT_EQ(lugar(disponible, {}, {1800, 1000}), QPoint(1564, 474));
    EXPECT_EQ(lugar(disponible, {}, {100, 1000}), QPoint(6, 474));
    EXPECT_EQ(lugar(disponible, {5000, 5000, 24, 24}, {1800, 10}), QPoint(1564, 36))
        << "an icon off the screen";
}

TEST(PosicionPanel, isWhollyInsideTheAreaWhateverTheIcon)
{
    const QRect disponible(60, 30, 1800, 1000);
    for (int x = -100; x <= 2000; x += 35)
        for (int y = -100; y <= 1200; y += 35)
            for (const QRect &icono : {QRect(x, y, 24, 24), QRect()})
                EXPECT_TRUE(disponible.contains(QRect(lugar(disponible, icono, {x, y}), panel)))
                    << x << "," << y;
}

TEST(PosicionPanel, onTooSmallAScreenItsUpperLeftCornerShows)
{
    EXPECT_EQ(lugar({0, 30, 300, 400}, {}, {290, 390}), QPoint(6, 36));
}

TEST(PosicionPanel, theScreenIsTheIconsThenThePointers)
{
    const QList<PantallaDelPanel> pantallas{{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}},
                                            {{1920, -200, 1280, 1024}, {1920, -200, 1280, 1024}},
                                            {{0, 1080, 1920, 1080}, {0, 1120, 1920, 1040}}};
    EXPECT_EQ(pantallaDelPanel({2000, -190, 24, 24}, {5, 5}, pantallas).total.left(), 1920);
    EXPECT_EQ(pantallaDelPanel({}, {5, 1500}, pantallas).total.top(), 1080);
    EXPECT_EQ(pantallaDelPanel({9000, 9000, 24, 24}, {5, 5}, pantallas).total.top(), 0);
    EXPECT_EQ(pantallaDelPanel({}, {5000, 0}, pantallas).total.left(), 1920) << "the nearest one";
    const PantallaDelPanel segunda = pantallas[1];
    const QPoint donde = posicionPanel(panel, {3160, 800, 24, 20}, {}, segunda, hueco);
    EXPECT_TRUE(segunda.disponible.contains(QRect(donde, panel)));
}
