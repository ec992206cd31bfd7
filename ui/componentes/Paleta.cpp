#include "ui/componentes/Paleta.h"

namespace ovanta {

namespace {

/// `0xRRGGBB`, and how much of it covers what lies below.
QColor tono(QRgb rgb, double opacidad = 1.0)
{
    QColor color(rgb | 0xff000000U);
    color.setAlphaF(static_cast<float>(opacidad));
    return color;
}

Colores clara()
{
    return {.fondo = tono(0xf4f5f9),
            .lateral = tono(0xe9ebf2),
            .superficie = tono(0xffffff),
            .borde = tono(0x101828, 0.09),
            .bordeControl = tono(0x101828, 0.20),
            .realce = tono(0x101828, 0.045),
            .pulsado = tono(0x101828, 0.09),
            .texto = tono(0x171a21),
            .secundario = tono(0x525a67),
            .acento = tono(0x0a5cc7),
            .sobreAcento = tono(0xffffff),
            .destructivo = tono(0xb81c22),
            .sobreDestructivo = tono(0xffffff),
            .velo = tono(0x0d1220, 0.38),
            .sombra = tono(0x101828, 0.008),
            .azul = tono(0x0a5cc7),
            .verde = tono(0x176b36),
            .naranja = tono(0x9a4800),
            .rojo = tono(0xb81c22),
            .morado = tono(0x7433b8),
            .rosa = tono(0xb31f66),
            .turquesa = tono(0x0a6670),
            .indigo = tono(0x4644c4),
            .gris = tono(0x555d69),
            .verdeVivo = tono(0x1f9150),
            .naranjaVivo = tono(0xd17200),
            .rojoVivo = tono(0xd9303a)};
}

Colores oscura()
{
    return {.fondo = tono(0x14161b),
            .lateral = tono(0x191c22),
            .superficie = tono(0x1f232a),
            .borde = tono(0xffffff, 0.08),
            .bordeControl = tono(0xffffff, 0.20),
            .realce = tono(0xffffff, 0.05),
            .pulsado = tono(0xffffff, 0.10),
            .texto = tono(0xf1f3f7),
            .secundario = tono(0xa9b2bf),
            .acento = tono(0x2467cc),
            .sobreAcento = tono(0xffffff),
            .destructivo = tono(0xc2333a),
            .sobreDestructivo = tono(0xffffff),
            .velo = tono(0x000000, 0.55),
            .sombra = tono(0x000000, 0.035),
            .azul = tono(0x6cb2ff),
            .verde = tono(0x5bd28a),
            .naranja = tono(0xffb35a),
            .rojo = tono(0xff8a82),
            .morado = tono(0xc9a0ff),
            .rosa = tono(0xff90c4),
            .turquesa = tono(0x54d0d9),
            .indigo = tono(0xa9aeff),
            .gris = tono(0xa7b0bd),
            .verdeVivo = tono(0x5bd28a),
            .naranjaVivo = tono(0xffb35a),
            .rojoVivo = tono(0xff8a82)};
}

Colores claraDeAltoContraste()
{
    return {.fondo = tono(0xffffff),
            .lateral = tono(0xf2f3f6),
            .superficie = tono(0xffffff),
            .borde = tono(0x000000, 0.55),
            .bordeControl = tono(0x000000, 0.75),
            .realce = tono(0x000000, 0.07),
            .pulsado = tono(0x000000, 0.14),
            .texto = tono(0x000000),
            .secundario = tono(0x343a44),
            .acento = tono(0x00429b),
            .sobreAcento = tono(0xffffff),
            .destructivo = tono(0x98101a),
            .sobreDestructivo = tono(0xffffff),
            .velo = tono(0x000000, 0.6),
            .sombra = tono(0x000000, 0.0),
            .azul = tono(0x00429b),
            .verde = tono(0x0b5226),
            .naranja = tono(0x733500),
            .rojo = tono(0x98101a),
            .morado = tono(0x57218f),
            .rosa = tono(0x8c104c),
            .turquesa = tono(0x004d55),
            .indigo = tono(0x302e9e),
            .gris = tono(0x3d444e),
            .verdeVivo = tono(0x0b5226),
            .naranjaVivo = tono(0x733500),
            .rojoVivo = tono(0x98101a)};
}

Colores oscuraDeAltoContraste()
{
    return {.fondo = tono(0x000000),
            .lateral = tono(0x0a0b0d),
            .superficie = tono(0x0d0f12),
            .borde = tono(0xffffff, 0.55),
            .bordeControl = tono(0xffffff, 0.75),
            .realce = tono(0xffffff, 0.10),
            .pulsado = tono(0xffffff, 0.18),
            .texto = tono(0xffffff),
            .secundario = tono(0xd5dae2),
            .acento = tono(0x9ccbff),
            .sobreAcento = tono(0x000000),
            .destructivo = tono(0xffb0aa),
            .sobreDestructivo = tono(0x000000),
            .velo = tono(0x000000, 0.75),
            .sombra = tono(0x000000, 0.0),
            .azul = tono(0x9ccbff),
            .verde = tono(0x86e8ac),
            .naranja = tono(0xffcc8a),
            .rojo = tono(0xffb0aa),
            .morado = tono(0xdec4ff),
            .rosa = tono(0xffb8da),
            .turquesa = tono(0x86e6ec),
            .indigo = tono(0xc8cbff),
            .gris = tono(0xcfd5de),
            .verdeVivo = tono(0x86e8ac),
            .naranjaVivo = tono(0xffcc8a),
            .rojoVivo = tono(0xffb0aa)};
}

} // namespace

QColor Colores::tinta(Tinte tinte) const
{
    switch (tinte) {
    case Tinte::Azul:
        return azul;
    case Tinte::Verde:
        return verde;
    case Tinte::Naranja:
        return naranja;
    case Tinte::Rojo:
        return rojo;
    case Tinte::Morado:
        return morado;
    case Tinte::Rosa:
        return rosa;
    case Tinte::Turquesa:
        return turquesa;
    case Tinte::Indigo:
        return indigo;
    case Tinte::Gris:
        return gris;
    case Tinte::Secundario:
        return secundario;
    }
    Q_UNREACHABLE();
}

QColor Colores::forma(Tinte tinte) const
{
    switch (tinte) {
    case Tinte::Verde:
        return verdeVivo;
    case Tinte::Naranja:
        return naranjaVivo;
    case Tinte::Rojo:
        return rojoVivo;
    default:
        return tinta(tinte);
    }
}

QColor Colores::conOpacidad(QColor color, qreal opacidad) const
{
    color.setAlphaF(static_cast<float>(opacidad));
    return color;
}

Colores paleta(bool oscuro, bool altoContraste)
{
    if (altoContraste) return oscuro ? oscuraDeAltoContraste() : claraDeAltoContraste();
    return oscuro ? oscura() : clara();
}

} // namespace ovanta
