#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqml.h>

namespace ovanta {

Q_NAMESPACE
QML_NAMED_ELEMENT(Paleta)

/// The colours by the names that the screens' rules use. `Secundario` is the colour of quiet text.
enum class Tinte { Azul, Verde, Naranja, Rojo, Morado, Rosa, Turquesa, Indigo, Gris, Secundario };
Q_ENUM_NS(Tinte)

/// Every colour of the program for one look of the desktop. Nothing else names a colour.
/// Texts and tints have a contrast of at least 4.5:1 on each of the surfaces, and on a surface that
/// carries a tenth of the same tint (WCAG 2.1, contrast ratio of relative luminances).
struct Colores
{
    Q_GADGET
    QML_VALUE_TYPE(colores)

    Q_PROPERTY(QColor fondo MEMBER fondo CONSTANT FINAL)
    Q_PROPERTY(QColor lateral MEMBER lateral CONSTANT FINAL)
    Q_PROPERTY(QColor superficie MEMBER superficie CONSTANT FINAL)
    Q_PROPERTY(QColor borde MEMBER borde CONSTANT FINAL)
    Q_PROPERTY(QColor bordeControl MEMBER bordeControl CONSTANT FINAL)
    Q_PROPERTY(QColor realce MEMBER realce CONSTANT FINAL)
    Q_PROPERTY(QColor pulsado MEMBER pulsado CONSTANT FINAL)
    Q_PROPERTY(QColor texto MEMBER texto CONSTANT FINAL)
    Q_PROPERTY(QColor secundario MEMBER secundario CONSTANT FINAL)
    Q_PROPERTY(QColor acento MEMBER acento CONSTANT FINAL)
    Q_PROPERTY(QColor sobreAcento MEMBER sobreAcento CONSTANT FINAL)
    Q_PROPERTY(QColor destructivo MEMBER destructivo CONSTANT FINAL)
    Q_PROPERTY(QColor sobreDestructivo MEMBER sobreDestructivo CONSTANT FINAL)
    Q_PROPERTY(QColor velo MEMBER velo CONSTANT FINAL)
    Q_PROPERTY(QColor sombra MEMBER sombra CONSTANT FINAL)
    Q_PROPERTY(QColor azul MEMBER azul CONSTANT FINAL)
    Q_PROPERTY(QColor verde MEMBER verde CONSTANT FINAL)
    Q_PROPERTY(QColor naranja MEMBER naranja CONSTANT FINAL)
    Q_PROPERTY(QColor rojo MEMBER rojo CONSTANT FINAL)
public:
    QColor fondo;        ///< behind a screen
    QColor lateral;      ///< behind the sidebar
    QColor superficie;   ///< cards, lists, dialogs
    QColor borde;        ///< between surfaces
    QColor bordeControl; ///< around controls
    QColor realce;       ///< laid over a surface under the pointer
    QColor pulsado;      ///< laid over a surface while it is pressed
    QColor texto;
    QColor secundario;
    QColor acento;
    QColor sobreAcento;
    QColor destructivo;
    QColor sobreDestructivo;
    QColor velo;   ///< over the window behind a dialog
    QColor sombra; ///< one layer of a soft shadow
    QColor azul, verde, naranja, rojo, morado, rosa, turquesa, indigo, gris;
    QColor verdeVivo, naranjaVivo, rojoVivo; ///< for thick shapes, which need only 3:1

    Q_INVOKABLE QColor tinta(ovanta::Tinte tinte) const;
    /// The colour of a thick shape (a ring, a bar) in this tint.
    Q_INVOKABLE QColor forma(ovanta::Tinte tinte) const;
    Q_INVOKABLE QColor conOpacidad(QColor color, qreal opacidad) const;

    bool operator==(const Colores &) const = default;
};

Colores paleta(bool oscuro, bool altoContraste);

} // namespace ovanta
