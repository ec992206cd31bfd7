#pragma once

#include "platform/Apariencia.h"
#include "ui/componentes/Paleta.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqml.h>

namespace ovanta {

/// How the desktop wants programs to look, live, with the colours that go with it. `Tema` adds the
/// measures. Lives as long as the process, as its listener does.
class Aspecto : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the windows")
    Q_PROPERTY(bool oscuro READ oscuro NOTIFY aspectoChanged)
    Q_PROPERTY(bool altoContraste READ altoContraste NOTIFY aspectoChanged)
    Q_PROPERTY(bool movimientoReducido READ movimientoReducido NOTIFY aspectoChanged)
    Q_PROPERTY(ovanta::Colores colores READ colores NOTIFY aspectoChanged)
    Q_PROPERTY(QString familia READ familia CONSTANT)
    Q_PROPERTY(QString familiaSimbolos READ familiaSimbolos CONSTANT)
    Q_PROPERTY(int duracionDatos READ duracionDatos CONSTANT)
    Q_PROPERTY(QVariantList curvaDatos READ curvaDatos CONSTANT)
    Q_PROPERTY(int duracionPanel READ duracionPanel CONSTANT)
    Q_PROPERTY(QVariantList curvaPanel READ curvaPanel CONSTANT)
public:
    /// `apariencia` must outlive this object.
    explicit Aspecto(Apariencia &apariencia, QObject *parent = nullptr);

    bool oscuro() const { return m_estado.oscuro; }
    bool altoContraste() const { return m_estado.altoContraste; }
    bool movimientoReducido() const { return m_estado.movimientoReducido; }
    const Colores &colores() const { return m_colores; }

    /// The families of the embedded fonts; the program's text font has figures of one width.
    QString familia() const;
    QString familiaSimbolos() const;

    /// The springs `ovantaDatos` and `ovantaPanel` (see Muelle.h).
    int duracionDatos() const;
    QVariantList curvaDatos() const;
    int duracionPanel() const;
    QVariantList curvaPanel() const;

Q_SIGNALS:
    void aspectoChanged();

private:
    void leer();

    Apariencia &m_apariencia;
    Apariencia::Estado m_estado;
    Colores m_colores;
};

} // namespace ovanta
