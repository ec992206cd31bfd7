#include "app/Bandeja.h"
#include "app/SimboloNivel.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

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

TEST(Bandeja, theMenuSaysTheFreeSpaceFirstAndItCannotBeChosen)
{
    Bandeja bandeja;
    bandeja.actualizar({NivelDisco::ok, QStringLiteral("12,5 GB"), true});
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
    } casos[] = {{u"Abrir Ovanta", &Bandeja::abrirPedido},
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

TEST(Bandeja, theTooltipFollowsTheFreeSpace)
{
    Bandeja bandeja;
    bandeja.aparecer();
    bandeja.actualizar({NivelDisco::ok, QStringLiteral("80 GB"), true});
    EXPECT_EQ(bandeja.ayuda(), QStringLiteral("Ovanta · 80 GB libres"));
    bandeja.desaparecer();
    EXPECT_FALSE(bandeja.visible());
    bandeja.actualizar({NivelDisco::ok, QStringLiteral("79 GB"), true});
    bandeja.aparecer();
    EXPECT_EQ(bandeja.ayuda(), QStringLiteral("Ovanta · 79 GB libres"));
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
