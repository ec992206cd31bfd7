#include "ui/componentes/Sparkline.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

struct SparklineVista : testing::Test
{
    Sparkline grafica;

    SparklineVista()
    {
        grafica.setSize({40, 20});
        grafica.setProperty("color", QColor(Qt::blue));
    }
    QImage dibujar(const QList<double> &valores)
    {
        grafica.setProperty("valores", QVariant::fromValue(valores));
        QImage imagen(40, 20, QImage::Format_ARGB32);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        grafica.paint(&pintor);
        pintor.end();
        return imagen;
    }
};

int alfa(const QImage &imagen, int x, int y)
{
    return qAlpha(imagen.pixel(x, y));
}

} // namespace

TEST_F(SparklineVista, withoutValuesNothingIsDrawn)
{
    QImage vacia(40, 20, QImage::Format_ARGB32);
    vacia.fill(Qt::transparent);
    grafica.setProperty("relleno", true);
    EXPECT_EQ(dibujar({}), vacia);
}

TEST_F(SparklineVista, valuesAllZeroAreALineAlongTheBottomAlone)
{
    const QImage imagen = dibujar({0, 0, 0});
    EXPECT_GT(alfa(imagen, 20, 19), 100);
    EXPECT_EQ(alfa(imagen, 20, 17), 0);
    EXPECT_EQ(imagen.pixelColor(20, 19).blue(), 255);
}

TEST_F(SparklineVista, theAreaBelowTheLineIsFilledWithAQuarterOfTheColour)
{
    const QList<double> media{0.5, 0.5};
    EXPECT_EQ(alfa(dibujar(media), 20, 15), 0);
    grafica.setProperty("relleno", true);
    const QImage imagen = dibujar(media);
    EXPECT_NEAR(alfa(imagen, 20, 15), 64, 2);
    EXPECT_GT(alfa(imagen, 20, 10), 128) << "the line";
    EXPECT_EQ(alfa(imagen, 20, 5), 0);
}

TEST_F(SparklineVista, theMaximumCanBeGivenAndTakenAway)
{
    const QList<double> valores{2, 2};
    EXPECT_GT(alfa(dibujar(valores), 20, 0), 100);
    grafica.setProperty("maximo", 4.0);
    EXPECT_EQ(alfa(dibujar(valores), 20, 0), 0);
    EXPECT_GT(alfa(dibujar(valores), 20, 10), 100);
    grafica.quitarMaximo();
    EXPECT_GT(alfa(dibujar(valores), 20, 0), 100);
}
