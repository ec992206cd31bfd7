#include "app/SimboloNivel.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <cmath>
#include <numbers>

namespace ovanta {

namespace {

constexpr std::string_view simboloUnidad = "internaldrive";
constexpr std::string_view simboloAviso = "exclamationmark.triangle.fill";
constexpr std::string_view simboloCritico = "exclamationmark.octagon.fill";

QPainterPath unidad()
{
    QPainterPath cuerpo;
    cuerpo.addRoundedRect(QRectF(2.5, 6.0, 19.0, 12.0), 3.0, 3.0);
    QPainterPath huecos;
    huecos.addRect(QRectF(2.5, 13.0, 19.0, 1.4));
    huecos.addEllipse(QPointF(18.0, 16.1), 0.95, 0.95);
    huecos.addRoundedRect(QRectF(5.0, 15.5, 6.0, 1.2), 0.6, 0.6);
    return cuerpo.subtracted(huecos);
}

QPainterPath exclamacion(double arriba, double abajo)
{
    QPainterPath signo;
    signo.addRoundedRect(QRectF(11.0, arriba, 2.0, abajo - arriba - 3.6), 1.0, 1.0);
    signo.addEllipse(QPointF(12.0, abajo - 1.2), 1.25, 1.25);
    return signo;
}

QPainterPath poligono(int lados, double radio, QPointF centro, double giro)
{
    QPolygonF puntos;
    for (int i = 0; i < lados; ++i) {
        const double angulo = giro + 2.0 * std::numbers::pi * i / lados;
        puntos << centro + radio * QPointF(std::cos(angulo), std::sin(angulo));
    }
    QPainterPath forma;
    forma.addPolygon(puntos);
    forma.closeSubpath();
    return forma;
}

/// The sharp corners of a polygon softened by its own outline.
QPainterPath redondeado(const QPainterPath &forma, double ancho)
{
    QPainterPathStroker trazo;
    trazo.setWidth(ancho);
    trazo.setJoinStyle(Qt::RoundJoin);
    return forma.united(trazo.createStroke(forma));
}

QPainterPath triangulo()
{
    const QPainterPath forma = redondeado(poligono(3, 10.2, {12.0, 14.2}, -std::numbers::pi / 2), 2.6);
    return forma.subtracted(exclamacion(8.6, 18.6));
}

QPainterPath octogono()
{
    const QPainterPath forma = redondeado(poligono(8, 9.6, {12.0, 12.0}, std::numbers::pi / 8), 1.6);
    return forma.subtracted(exclamacion(6.6, 17.4));
}

QColor colorDe(NivelDisco nivel, bool claro)
{
    switch (nivel) {
    case NivelDisco::ok:
        return claro ? QColor(0xf2, 0xf2, 0xf4) : QColor(0x2b, 0x2d, 0x33);
    case NivelDisco::aviso:
        return claro ? QColor(0xff, 0xb3, 0x40) : QColor(0xd9, 0x6a, 0x00);
    case NivelDisco::critico:
        return claro ? QColor(0xff, 0x6b, 0x61) : QColor(0xd1, 0x1f, 0x1f);
    }
    return {};
}

} // namespace

std::string_view nombreDeSimbolo(NivelDisco nivel)
{
    switch (nivel) {
    case NivelDisco::ok:
        return simboloUnidad;
    case NivelDisco::aviso:
        return simboloAviso;
    case NivelDisco::critico:
        return simboloCritico;
    }
    return simboloUnidad;
}

QPainterPath formaDeSimbolo(std::string_view nombre)
{
    if (nombre == simboloUnidad) return unidad();
    if (nombre == simboloAviso) return triangulo();
    if (nombre == simboloCritico) return octogono();
    return {};
}

QIcon simboloDeNivel(NivelDisco nivel, bool claro)
{
    const QPainterPath forma = formaDeSimbolo(nombreDeSimbolo(nivel));
    QIcon icono;
    for (const int tamano : {16, 22, 24, 32, 48, 64}) {
        QPixmap imagen(tamano, tamano);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.scale(tamano / ladoDeSimbolo, tamano / ladoDeSimbolo);
        pintor.fillPath(forma, colorDe(nivel, claro));
        pintor.end();
        icono.addPixmap(imagen);
    }
    return icono;
}

} // namespace ovanta
