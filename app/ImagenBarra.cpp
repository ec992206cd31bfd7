#include "app/ImagenBarra.h"

#include "app/PintarSparkline.h"
#include "app/SimboloNivel.h"
#include "core/qt/Texto.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <functional>

namespace ovanta {

namespace {

constexpr double tamanoTexto = 12.0;
/// The symbols leave a border in their square, so that it is larger than the text beside it.
constexpr double ladoSimbolo = tamanoTexto * 4 / 3;
constexpr QSizeF tamanoGrafica(16.0, 12.0);
constexpr double tamanoUna = 11.0;
constexpr double tamanoVarias = 8.5;
constexpr double huecoColumna = -1.0;
constexpr double etiquetaRespectoAValor = 0.78;
constexpr double anchoMinimoValor = 2.4;
constexpr double huecoEntrePiezas = 6.0;
constexpr double huecoEtiquetaValor = 2.0;

/// A part of the label: its natural size, and how to draw it with its top left corner at a point.
struct Pieza
{
    QSizeF tamano;
    std::function<void(QPainter &, QPointF)> pintar;
};

/// On a picture with 72 dots per inch a font's points are the label's units.
void fijarPuntos(QImage &imagen)
{
    constexpr int puntosPorMetro = 2835;
    imagen.setDotsPerMeterX(puntosPorMetro);
    imagen.setDotsPerMeterY(puntosPorMetro);
}

/// A piece of text whose digits all take the same room.
class Texto
{
public:
    Texto(const std::string &texto, double tamano, QFont::Weight peso)
        : m_texto(mostrar(texto)), m_fuente(QGuiApplication::font()), m_medidas(medidas(tamano, peso))
    {
        for (QChar cifra = u'0'; cifra <= u'9'; cifra = QChar(cifra.unicode() + 1))
            m_anchoCifra = std::max(m_anchoCifra, m_medidas.horizontalAdvance(cifra));
    }

    double alto() const { return m_medidas.ascent() + m_medidas.descent(); }
    double ascenso() const { return m_medidas.ascent(); }
    double ancho() const
    {
        double total = 0;
        for (const QChar letra : m_texto)
            total += anchoDe(letra);
        return total;
    }

    void pintar(QPainter &pintor, QPointF base) const
    {
        pintor.setFont(m_fuente);
        for (const QChar letra : m_texto) {
            const double sobra = anchoDe(letra) - m_medidas.horizontalAdvance(letra);
            pintor.drawText(base + QPointF(sobra / 2, 0), QString(letra));
            base.rx() += anchoDe(letra);
        }
    }

private:
    QFontMetricsF medidas(double tamano, QFont::Weight peso)
    {
        m_fuente.setPointSizeF(tamano);
        m_fuente.setWeight(peso);
        m_fuente.setHintingPreference(QFont::PreferNoHinting);
        QImage lienzo(1, 1, QImage::Format_ARGB32_Premultiplied);
        fijarPuntos(lienzo);
        return {m_fuente, &lienzo};
    }
    double anchoDe(QChar letra) const
    {
        return letra >= u'0' && letra <= u'9' ? m_anchoCifra : m_medidas.horizontalAdvance(letra);
    }

    QString m_texto;
    QFont m_fuente;
    QFontMetricsF m_medidas;
    double m_anchoCifra = 0;
};

Pieza piezaSimbolo(const std::string &nombre)
{
    return {QSizeF(ladoSimbolo, ladoSimbolo),
            [forma = formaDeSimbolo(nombre)](QPainter &pintor, QPointF donde) {
                pintor.save();
                pintor.translate(donde);
                pintor.scale(ladoSimbolo / ladoDeSimbolo, ladoSimbolo / ladoDeSimbolo);
                pintor.fillPath(forma, Qt::black);
                pintor.restore();
            }};
}

Pieza piezaTexto(const std::string &texto)
{
    const Texto medio(texto, tamanoTexto, QFont::Medium);
    return {QSizeF(medio.ancho(), medio.alto()), [medio](QPainter &pintor, QPointF donde) {
                medio.pintar(pintor, donde + QPointF(0, medio.ascenso()));
            }};
}

Pieza piezaGrafica(const std::vector<double> &valores)
{
    return {tamanoGrafica, [valores](QPainter &pintor, QPointF donde) {
                pintarSparkline(pintor, QRectF(donde, tamanoGrafica), valores, {1.0, Qt::black, true});
            }};
}

/// A figure after its name. The room for the figure has a least width, so that the name stands still
/// while the digits change.
Pieza fila(const EtiquetaBarra::Metrica &metrica, double tamano)
{
    const Texto nombre(metrica.etiqueta, tamano * etiquetaRespectoAValor, QFont::Bold);
    const Texto valor(metrica.valor, tamano, QFont::DemiBold);
    const double anchoValor = std::max(valor.ancho(), tamano * anchoMinimoValor);
    const double ancho = nombre.ancho() + huecoEtiquetaValor + anchoValor;
    return {QSizeF(ancho, valor.alto()), [nombre, valor, ancho](QPainter &pintor, QPointF donde) {
                const QPointF base = donde + QPointF(0, valor.ascenso());
                nombre.pintar(pintor, base);
                valor.pintar(pintor, base + QPointF(ancho - valor.ancho(), 0));
            }};
}

/// One above the other, with their right edges in line.
Pieza columna(const Pieza &arriba, const Pieza &abajo)
{
    const double ancho = std::max(arriba.tamano.width(), abajo.tamano.width());
    const double alto = arriba.tamano.height() + huecoColumna + abajo.tamano.height();
    return {QSizeF(ancho, alto), [arriba, abajo, ancho, alto](QPainter &pintor, QPointF donde) {
                arriba.pintar(pintor, donde + QPointF(ancho - arriba.tamano.width(), 0));
                abajo.pintar(pintor,
                             donde + QPointF(ancho - abajo.tamano.width(), alto - abajo.tamano.height()));
            }};
}

void agregarMetricas(std::vector<Pieza> &piezas, const std::vector<EtiquetaBarra::Metrica> &metricas)
{
    if (metricas.size() == 1) piezas.push_back(fila(metricas[0], tamanoUna));
    if (metricas.size() < 2) return;
    piezas.push_back(columna(fila(metricas[0], tamanoVarias), fila(metricas[1], tamanoVarias)));
    for (std::size_t i = 2; i < metricas.size(); ++i)
        piezas.push_back(fila(metricas[i], tamanoVarias));
}

std::vector<Pieza> piezasDe(const EtiquetaBarra &etiqueta)
{
    std::vector<Pieza> piezas{piezaSimbolo(etiqueta.simbolo)};
    if (etiqueta.libre) piezas.push_back(piezaTexto(*etiqueta.libre));
    if (etiqueta.grafica) piezas.push_back(piezaGrafica(*etiqueta.grafica));
    agregarMetricas(piezas, etiqueta.metricas());
    return piezas;
}

QSizeF tamanoDe(const std::vector<Pieza> &piezas)
{
    QSizeF total(-huecoEntrePiezas, 0);
    for (const Pieza &pieza : piezas)
        total = {total.width() + huecoEntrePiezas + pieza.tamano.width(),
                 std::max(total.height(), pieza.tamano.height())};
    return total;
}

} // namespace

double escalaDePantalla()
{
    const QScreen *pantalla = QGuiApplication::primaryScreen();
    return pantalla ? pantalla->devicePixelRatio() : 2.0;
}

std::optional<QImage> imagenBarra(const EtiquetaBarra &etiqueta, double escala)
{
    const std::vector<Pieza> piezas = piezasDe(etiqueta);
    const QSizeF tamano = tamanoDe(piezas);
    QImage imagen(static_cast<int>(std::ceil(tamano.width() * escala)),
                  static_cast<int>(std::ceil(tamano.height() * escala)), QImage::Format_ARGB32_Premultiplied);
    if (imagen.isNull()) return std::nullopt;
    imagen.fill(Qt::transparent);
    imagen.setDevicePixelRatio(escala);
    fijarPuntos(imagen);
    QPainter pintor(&imagen);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    double x = 0;
    for (const Pieza &pieza : piezas) {
        pieza.pintar(pintor, {x, (tamano.height() - pieza.tamano.height()) / 2});
        x += pieza.tamano.width() + huecoEntrePiezas;
    }
    return imagen;
}

QImage tenir(QImage plantilla, const QColor &color)
{
    QPainter pintor(&plantilla);
    pintor.setCompositionMode(QPainter::CompositionMode_SourceIn);
    pintor.fillRect(QRectF(QPointF(), plantilla.deviceIndependentSize()), color);
    return plantilla;
}

} // namespace ovanta
