#include "app/ImagenBarra.h"

#include <gmock/gmock.h>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

EtiquetaBarra soloSimbolo(const char *nombre = "internaldrive")
{
    EtiquetaBarra etiqueta;
    etiqueta.simbolo = nombre;
    return etiqueta;
}

EtiquetaBarra conCPU(double cpu = 0.12)
{
    EtiquetaBarra etiqueta = soloSimbolo();
    etiqueta.cpu = cpu;
    return etiqueta;
}

EtiquetaBarra conTres()
{
    EtiquetaBarra etiqueta = conCPU();
    etiqueta.ram = 0.45;
    etiqueta.red = 1.26e6;
    return etiqueta;
}

QImage dibujar(const EtiquetaBarra &etiqueta, double escala = 1)
{
    const auto imagen = imagenBarra(etiqueta, escala);
    EXPECT_TRUE(imagen);
    return imagen.value_or(QImage()).convertToFormat(QImage::Format_ARGB32);
}

/// How much ink lies in a part of the picture, in whole pixels.
double tinta(const QImage &imagen, const QRect &parte)
{
    double suma = 0;
    const QRect dentro = parte & imagen.rect();
    for (int y = dentro.top(); y <= dentro.bottom(); ++y)
        for (int x = dentro.left(); x <= dentro.right(); ++x)
            suma += qAlpha(imagen.pixel(x, y)) / 255.0;
    return suma;
}

double tinta(const QImage &imagen)
{
    return tinta(imagen, imagen.rect());
}

/// The columns from `desde` on that hold ink: the first and the last of them.
std::pair<int, int> columnasConTinta(const QImage &imagen, int desde)
{
    int primera = -1;
    int ultima = -1;
    for (int x = desde; x < imagen.width(); ++x) {
        if (tinta(imagen, {x, 0, 1, imagen.height()}) < 0.05) continue;
        if (primera < 0) primera = x;
        ultima = x;
    }
    return {primera, ultima};
}

} // namespace

TEST(EtiquetaBarra, itsFiguresStandInOrderAndAreRounded)
{
    using M = EtiquetaBarra::Metrica;
    EXPECT_THAT(conTres().metricas(), ElementsAre(M{"CPU", "12%"}, M{"RAM", "45%"}, M{"NET", "1.3M"}));
    EXPECT_THAT(conCPU(0.125).metricas(), ElementsAre(M{"CPU", "13%"}));
    EXPECT_THAT(conCPU(1.0).metricas(), ElementsAre(M{"CPU", "100%"}));
    EXPECT_THAT(soloSimbolo().metricas(), IsEmpty());
}

TEST(EtiquetaBarra, itsTextIsTheFreeSpaceAndTheFigures)
{
    EtiquetaBarra etiqueta = conTres();
    EXPECT_EQ(etiqueta.texto(), "CPU 12% · RAM 45% · NET 1.3M");
    etiqueta.libre = "87 GB";
    EXPECT_EQ(etiqueta.texto(), "87 GB · CPU 12% · RAM 45% · NET 1.3M");
    EXPECT_EQ(soloSimbolo().texto(), "");
}

TEST(EtiquetaBarra, looksTheSameWhereOnlyWhatIsRoundedAwayDiffers)
{
    EXPECT_TRUE(conCPU(0.121).seVeIgual(conCPU(0.124)));
    EXPECT_FALSE(conCPU(0.121).seVeIgual(conCPU(0.131)));
    EtiquetaBarra conGrafica = conCPU();
    conGrafica.grafica = {0.5};
    EXPECT_FALSE(conCPU().seVeIgual(conGrafica));
    EXPECT_FALSE(soloSimbolo().seVeIgual(soloSimbolo("exclamationmark.triangle.fill")));
}

TEST(ImagenBarra, withOnlyASymbolThereIsNothingButTheSymbol)
{
    const QImage imagen = dibujar(soloSimbolo());
    EXPECT_EQ(imagen.size(), QSize(16, 16));
    EXPECT_GT(tinta(imagen), 60);
    EXPECT_EQ(tinta(dibujar(soloSimbolo("no.hay.tal.simbolo"))), 0);
}

TEST(ImagenBarra, everyLevelHasItsOwnSymbol)
{
    const QImage unidad = dibujar(soloSimbolo());
    const QImage aviso = dibujar(soloSimbolo("exclamationmark.triangle.fill"));
    const QImage critico = dibujar(soloSimbolo("exclamationmark.octagon.fill"));
    EXPECT_NE(unidad, aviso);
    EXPECT_NE(aviso, critico);
    EXPECT_NE(critico, unidad);
}

TEST(ImagenBarra, isATemplateOfOneColourOnNothing)
{
    EtiquetaBarra etiqueta = conTres();
    etiqueta.libre = "87 GB";
    etiqueta.grafica = {0.1, 0.9, 0.4};
    const QImage imagen = dibujar(etiqueta, 2);
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (qAlpha(imagen.pixel(x, y)) > 0) ASSERT_EQ(imagen.pixel(x, y) & 0xffffff, 0) << x << "," << y;
}

TEST(ImagenBarra, theScaleMultipliesThePixelsAndNotTheSize)
{
    for (const EtiquetaBarra &etiqueta : {soloSimbolo(), conCPU(), conTres()}) {
        const QImage sencilla = dibujar(etiqueta, 1);
        const QImage doble = dibujar(etiqueta, 2);
        EXPECT_NEAR(doble.width(), 2 * sencilla.width(), 1);
        EXPECT_NEAR(doble.height(), 2 * sencilla.height(), 1);
        EXPECT_EQ(doble.devicePixelRatio(), 2);
        EXPECT_NEAR(tinta(doble) / tinta(sencilla), 4.0, 0.4);
    }
}

TEST(ImagenBarra, theGraphTakesItsRoomAndDrawsFromTheBottomUp)
{
    const int sinGrafica = dibujar(conCPU()).width();
    EtiquetaBarra etiqueta = conCPU();
    etiqueta.grafica = std::vector<double>{};
    const QImage vacia = dibujar(etiqueta);
    EXPECT_NEAR(vacia.width(), sinGrafica + 16 + 6, 1);
    const QRect caja(22, (vacia.height() - 12) / 2, 16, 12);
    EXPECT_EQ(tinta(vacia, caja), 0);
    etiqueta.grafica = {1.0, 1.0, 1.0};
    const double llena = tinta(dibujar(etiqueta), caja);
    etiqueta.grafica = {0.0, 0.0, 0.0};
    const double llana = tinta(dibujar(etiqueta), caja);
    EXPECT_GT(llana, 0);
    EXPECT_GT(llena, llana + 16 * 12 * 0.2) << "filled with a quarter of the colour";
    EXPECT_LT(llena, 16 * 12 * 0.5);
}

TEST(ImagenBarra, theNameOfAFigureStandsStillWhileItsDigitsChange)
{
    const QImage uno = dibujar(conCPU(0.01), 2);
    const QImage ocho = dibujar(conCPU(0.88), 2);
    EXPECT_EQ(uno.size(), ocho.size());
    constexpr int finDelSimbolo = 32;
    EXPECT_EQ(columnasConTinta(uno, finDelSimbolo).first, columnasConTinta(ocho, finDelSimbolo).first);
    EXPECT_NEAR(columnasConTinta(uno, finDelSimbolo).second, columnasConTinta(ocho, finDelSimbolo).second, 1)
        << "aligned to the right";
}

TEST(ImagenBarra, aSingleFigureIsLargeAndTwoStandOneAboveTheOther)
{
    const QImage una = dibujar(conCPU(), 2);
    EtiquetaBarra dos = conCPU();
    dos.ram = 0.45;
    const QImage ambas = dibujar(dos, 2);
    EXPECT_LT(ambas.width(), una.width());
    EXPECT_GT(ambas.height(), una.height());
    const int mitad = ambas.height() / 2;
    const int resto = ambas.width() - 38;
    EXPECT_GT(tinta(ambas, {38, 0, resto, mitad}), 30);
    EXPECT_GT(tinta(ambas, {38, mitad, resto, mitad}), 30);
}

TEST(ImagenBarra, aThirdFigureStandsBesideTheColumn)
{
    EtiquetaBarra dos = conTres();
    dos.red.reset();
    const QImage ambas = dibujar(dos, 2);
    const QImage tres = dibujar(conTres(), 2);
    EXPECT_EQ(tres.height(), ambas.height());
    EXPECT_GT(tres.width(), ambas.width() + 2 * 8.5 * 2.4);
    const QRect tercera(ambas.width(), 0, tres.width() - ambas.width(), tres.height());
    EXPECT_GT(tinta(tres, tercera), 30);
    EXPECT_EQ(tinta(tres, {tercera.x(), 0, tercera.width(), 8}), 0) << "in the middle of the height";
}

TEST(ImagenBarra, theFreeSpaceFollowsTheSymbol)
{
    EtiquetaBarra etiqueta = soloSimbolo();
    etiqueta.libre = "87 GB";
    const QImage imagen = dibujar(etiqueta);
    EXPECT_GT(imagen.width(), 40);
    EXPECT_GT(tinta(imagen, {20, 0, imagen.width() - 20, imagen.height()}), 60);
}

TEST(ImagenBarra, aLabelWithoutAnyPixelGivesNoImage)
{
    EXPECT_FALSE(imagenBarra(conTres(), 0));
}

TEST(ImagenBarra, tintingChangesTheColourAndNotTheShape)
{
    const QImage negra = dibujar(conTres(), 2);
    const QImage roja = tenir(*imagenBarra(conTres(), 2), Qt::red).convertToFormat(QImage::Format_ARGB32);
    EXPECT_NEAR(tinta(roja), tinta(negra), 1);
    for (int y = 0; y < roja.height(); ++y)
        for (int x = 0; x < roja.width(); ++x)
            if (qAlpha(roja.pixel(x, y)) > 250) ASSERT_GT(qRed(roja.pixel(x, y)), 250);
}
