#include "platform/simulada/FotosSinteticas.h"

#include "platform/simulada/ArchivosSinteticos.h"

#include <QBuffer>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>
#include <array>
#include <string_view>

namespace ovanta {

namespace {

struct Paisaje
{
    std::string_view nombre;
    int tono;      ///< hue of the sky
    double sol;    ///< where the sun stands, 0 left to 1 right
    double cumbre; ///< height of the mountain, 0 to 1
    int copias;    ///< how many photographs of it, each a little brighter than the one before
    int dias;      ///< age
};

constexpr std::array<Paisaje, 4> paisajes{{
    {"Playa al atardecer", 25, 0.7, 0.25, 3, 40},
    {"Sierra", 205, 0.3, 0.75, 3, 200},
    {"Lago", 180, 0.5, 0.45, 1, 15},
    {"Campo en primavera", 95, 0.2, 0.35, 1, 400},
}};

constexpr QSize tamano{960, 640};

QImage pintar(const Paisaje &paisaje, int copia)
{
    QImage foto(tamano, QImage::Format_RGB32);
    QPainter pintor(&foto);
    pintor.setRenderHint(QPainter::Antialiasing);
    const double ancho = tamano.width();
    const double alto = tamano.height();
    QLinearGradient cielo(0, 0, 0, alto);
    cielo.setColorAt(0, QColor::fromHsv(paisaje.tono, 150, 200 + 5 * copia));
    cielo.setColorAt(1, QColor::fromHsv(paisaje.tono, 60, 240 + 5 * copia));
    pintor.fillRect(foto.rect(), cielo);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(QColor(255, 240, 190));
    pintor.drawEllipse(QPointF(paisaje.sol * ancho, alto * 0.3), 50, 50);
    pintor.setBrush(QColor::fromHsv((paisaje.tono + 120) % 360, 90, 110 + 5 * copia));
    pintor.drawPolygon(QPolygonF{{0, alto},
                                 {0, alto * 0.8},
                                 {ancho * 0.45, alto * (1 - paisaje.cumbre)},
                                 {ancho, alto * 0.75},
                                 {ancho, alto}});
    return foto;
}

std::string codificada(const QImage &foto)
{
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    foto.save(&memoria, "JPEG", 90);
    return bytes.toStdString();
}

} // namespace

void ponerFotos(const std::string &hogar, Fecha ahora)
{
    for (const Paisaje &paisaje : paisajes) {
        for (int copia = 0; copia < paisaje.copias; ++copia) {
            const std::string numero = copia == 0 ? "" : " " + std::to_string(copia + 1);
            const std::string ruta =
                hogar + "/Pictures/Viajes/" + std::string(paisaje.nombre) + numero + ".jpg";
            escribirTexto(ruta, codificada(pintar(paisaje, copia)));
            fechar(ruta, ahora - std::chrono::days(paisaje.dias) + std::chrono::seconds(copia));
        }
    }
}

} // namespace ovanta
