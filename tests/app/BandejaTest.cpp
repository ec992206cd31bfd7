#include "app/Bandeja.h"
#include "app/SimboloNivel.h"

#include <QSignalSpy>
#include <gtest/gtest.h>
#include <set>

using namespace ovanta;

namespace {

QAction *accion(Bandeja &bandeja, const QString &texto)
{
    for (QAction *candidata : bandeja.menu().actions())
        if (candidata->text() == texto) return candidata;
    return nullptr;
}

QImage imagen(NivelDisco nivel, bool claro, int tamano = 32)
{
    return simboloDeNivel(nivel, claro)
        .pixmap(tamano, tamano)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

int pintados(const QImage &imagen)
{
    int cuenta = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            cuenta += qAlpha(imagen.pixel(x, y)) > 127;
    return cuenta;
}

} // namespace

TEST(Bandeja, theFirstLineOfTheMenuTellsAndCannotBeChosen)
{
    Bandeja bandeja;
    bandeja.actualizar({NivelDisco::ok, QStringLiteral("12,5 GB libres"), {}, true});
    QAction *primera = bandeja.menu().actions().constFirst();
    EXPECT_EQ(primera->text(), QStringLiteral("12,5 GB libres"));
    EXPECT_FALSE(primera->isEnabled());
}

TEST(Bandeja, everyEntryOfTheMenuTellsWhatIsAskedFor)
{
    Bandeja bandeja;
    const struct
    {
        const char16_t *texto;
        void (Bandeja::*senal)();
    } casos[] = {{u"Mostrar panel", &Bandeja::panelPedido},
                 {u"Abrir Ovanta", &Bandeja::abrirPedido},
                 {u"Actualizar ahora", &Bandeja::actualizarPedido},
                 {u"Salir de Ovanta", &Bandeja::salirPedido}};
    for (const auto &caso : casos) {
        const QString texto = QString::fromUtf16(caso.texto);
        QAction *entrada = accion(bandeja, texto);
        ASSERT_NE(entrada, nullptr) << texto.toStdString();
        const QSignalSpy espia(&bandeja, caso.senal);
        entrada->trigger();
        EXPECT_EQ(espia.count(), 1) << texto.toStdString();
    }
}

TEST(Bandeja, theTooltipSaysWhatTheBarSays)
{
    Bandeja bandeja;
    bandeja.aparecer();
    EXPECT_EQ(bandeja.ayuda(), QStringLiteral("Ovanta"));
    bandeja.actualizar({NivelDisco::ok, {}, QStringLiteral("80 GB libres"), true});
    EXPECT_EQ(bandeja.ayuda(), QStringLiteral("Ovanta · 80 GB libres"));
    bandeja.desaparecer();
    EXPECT_FALSE(bandeja.visible());
    bandeja.actualizar({NivelDisco::ok, {}, QStringLiteral("79 GB libres"), true});
    bandeja.aparecer();
    EXPECT_EQ(bandeja.ayuda(), QStringLiteral("Ovanta · 79 GB libres"));
}

TEST(Bandeja, theSymbolIsSetAnewOnlyWhenLevelOrPanelChange)
{
    Bandeja bandeja;
    bandeja.aparecer();
    std::set<qint64> imagenes;
    const auto poner = [&](NivelDisco nivel, const char16_t *texto, bool oscuro) {
        bandeja.actualizar({nivel, QString::fromUtf16(texto), QString::fromUtf16(texto), oscuro});
        imagenes.insert(bandeja.imagen().cacheKey());
        return imagenes.size();
    };
    EXPECT_EQ(poner(NivelDisco::ok, u"80 GB", true), 1);
    for (const char16_t *texto : {u"79 GB", u"78 GB · CPU 4%", u"78 GB · CPU 5%", u""})
        EXPECT_EQ(poner(NivelDisco::ok, texto, true), 1);
    EXPECT_EQ(poner(NivelDisco::aviso, u"", true), 2);
    EXPECT_EQ(poner(NivelDisco::aviso, u"", false), 3);
    EXPECT_EQ(poner(NivelDisco::aviso, u"2 GB", false), 3);
}

TEST(Bandeja, theWholeLabelIsThePictureWhereItIsGivenAndChangesOnlyWhenItLooksDifferent)
{
    Bandeja bandeja;
    bandeja.aparecer();
    Bandeja::Estado estado;
    estado.etiqueta = EtiquetaBarra{
        .simbolo = "internaldrive", .libre = "80 GB", .cpu = 0.121, .ram = {}, .red = {}, .grafica = {}};
    bandeja.actualizar(estado);
    const qint64 primera = bandeja.imagen().cacheKey();
    const QSize tamano = bandeja.imagen().availableSizes().constFirst();
    EXPECT_GT(tamano.width(), 3 * tamano.height());
    estado.etiqueta->cpu = 0.124;
    bandeja.actualizar(estado);
    EXPECT_EQ(bandeja.imagen().cacheKey(), primera);
    estado.etiqueta->cpu = 0.2;
    bandeja.actualizar(estado);
    EXPECT_NE(bandeja.imagen().cacheKey(), primera);
    estado.etiqueta.reset();
    bandeja.actualizar(estado);
    EXPECT_EQ(bandeja.imagen().availableSizes().constFirst(), QSize(16, 16)) << "the symbol again";
}

TEST(SimboloNivel, everyLevelHasAPictureOfItsOwnInBothColours)
{
    for (const bool claro : {false, true}) {
        const QImage ok = imagen(NivelDisco::ok, claro);
        const QImage aviso = imagen(NivelDisco::aviso, claro);
        const QImage critico = imagen(NivelDisco::critico, claro);
        EXPECT_NE(ok, aviso);
        EXPECT_NE(aviso, critico);
        for (const QImage &una : {ok, aviso, critico})
            EXPECT_GT(pintados(una), 32 * 32 / 6);
    }
    EXPECT_NE(imagen(NivelDisco::ok, true), imagen(NivelDisco::ok, false));
}

TEST(SimboloNivel, thePictureStaysInsideItsSquare)
{
    for (const NivelDisco nivel : {NivelDisco::ok, NivelDisco::aviso, NivelDisco::critico}) {
        const QImage una = imagen(nivel, true, 64);
        for (int i = 0; i < 64; ++i)
            for (const QPoint borde : {QPoint(i, 0), QPoint(i, 63), QPoint(0, i), QPoint(63, i)})
                EXPECT_EQ(qAlpha(una.pixel(borde)), 0) << static_cast<int>(nivel) << " " << i;
    }
}
