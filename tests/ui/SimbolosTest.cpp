#include "ui/componentes/Simbolos.h"
#include "app/Seccion.h"
#include "ui/componentes/Fuentes.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

constexpr std::string_view usados[] = {"internaldrive",
                                       "minus",
                                       "plus",
                                       "chevron.up.chevron.down",
                                       "exclamationmark.triangle.fill",
                                       "exclamationmark.octagon.fill",
                                       "sparkles",
                                       "magnifyingglass",
                                       "trash",
                                       "checkmark.shield",
                                       "checkmark.shield.fill",
                                       "shippingbox",
                                       "doc.on.doc",
                                       "shippingbox.fill",
                                       "iphone.gen3",
                                       "memorychip",
                                       "arrow.down.circle",
                                       "externaldrive.fill",
                                       "list.bullet",
                                       "arrow.clockwise",
                                       "checkmark.circle.fill",
                                       "hand.raised.fill",
                                       "clock.arrow.circlepath",
                                       "clock.badge.questionmark",
                                       "clock",
                                       "checkmark",
                                       "waveform.path.ecg",
                                       "cpu",
                                       "arrow.up.arrow.down",
                                       "thermometer.medium",
                                       "battery.100.bolt",
                                       "battery.0",
                                       "battery.25",
                                       "battery.50",
                                       "battery.75",
                                       "battery.100",
                                       "macwindow",
                                       "power",
                                       "gearshape",
                                       "arrow.down.to.line",
                                       "checkmark.circle",
                                       "folder.fill",
                                       "folder.badge.plus",
                                       "doc.fill",
                                       "chart.treemap",
                                       "photo",
                                       "photo.stack",
                                       "photo.on.rectangle.angled",
                                       "puzzlepiece.extension",
                                       "square.stack.3d.up",
                                       "lock.fill",
                                       "lock.open",
                                       "lock.shield",
                                       "info.circle",
                                       "info.circle.fill",
                                       "exclamationmark.triangle",
                                       "exclamationmark.circle",
                                       "exclamationmark.arrow.triangle.2.circlepath",
                                       "chevron.right",
                                       "power.circle",
                                       "powerplug",
                                       "ipad",
                                       "moon.zzz",
                                       "menubar.rectangle",
                                       "iphone.gen3.slash",
                                       "clock.badge.checkmark",
                                       "chart.line.downtrend.xyaxis",
                                       "chart.bar.xaxis",
                                       "camera.viewfinder",
                                       "arrow.clockwise.circle"};

QRawFont fuenteDeSimbolos()
{
    QFile archivo(QStringLiteral(":/ovanta/fuentes/simbolos.ttf"));
    if (!archivo.open(QIODevice::ReadOnly)) return {};
    return QRawFont(archivo.readAll(), 24);
}

} // namespace

TEST(Simbolos, everySymbolOfTheScreensHasAGlyphInTheEmbeddedFont)
{
    const QRawFont fuente = fuenteDeSimbolos();
    ASSERT_TRUE(fuente.isValid());
    for (const std::string_view nombre : usados) {
        const auto glifo = glifoDeSimbolo(nombre);
        ASSERT_TRUE(glifo) << nombre;
        EXPECT_TRUE(fuente.supportsCharacter(QChar(*glifo))) << nombre;
    }
}

TEST(Simbolos, everySectionHasItsGlyph)
{
    for (const FichaSeccion &f : secciones)
        EXPECT_TRUE(glifoDeSimbolo(f.icono)) << f.icono;
}

TEST(Simbolos, anUnknownNameHasNone)
{
    EXPECT_EQ(glifoDeSimbolo("no.hay"), std::nullopt);
    EXPECT_EQ(glifoDeSimbolo(""), std::nullopt);
    EXPECT_EQ(Simbolos().glifo(QStringLiteral("zzz")), QString());
}

TEST(Fuentes, bothFamiliesAreKnownOnceLoaded)
{
    cargarFuentes();
    EXPECT_TRUE(QFontDatabase::families().contains(familiaDeTexto()));
    EXPECT_TRUE(QFontDatabase::families().contains(familiaDeSimbolos()));
}

TEST(Fuentes, figuresAreOfOneWidth)
{
    cargarFuentes();
    for (const auto peso : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
        QFont fuente(familiaDeTexto());
        fuente.setPixelSize(40);
        fuente.setWeight(peso);
        const QFontMetricsF medidas(fuente);
        for (char16_t cifra = u'1'; cifra <= u'9'; ++cifra)
            EXPECT_EQ(medidas.horizontalAdvance(QChar(cifra)), medidas.horizontalAdvance(QLatin1Char('0')));
    }
}
