#pragma once

#include "app/OvantaApp.h"
#include "ui/ModeloFilas.h"
#include "ui/TarjetasResumen.h"

#include <QObject>
#include <QtQml/qqml.h>

namespace ovanta {

/// The rules of the summary screen.
class ResumenViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString ultimoAnalisis READ ultimoAnalisis NOTIFY resumenChanged)
    Q_PROPERTY(qreal fraccionUsada READ fraccionUsada NOTIFY resumenChanged)
    Q_PROPERTY(QString porcentajeUsado READ porcentajeUsado NOTIFY resumenChanged)
    Q_PROPERTY(QString libres READ libres NOTIFY resumenChanged)
    Q_PROPERTY(QString textoNivel READ textoNivel NOTIFY resumenChanged)
    Q_PROPERTY(QString simboloNivel READ simboloNivel NOTIFY resumenChanged)
    Q_PROPERTY(ovanta::Tinte tinteNivel READ tinteNivel NOTIFY resumenChanged)
    Q_PROPERTY(QString volumen READ volumen CONSTANT)
    Q_PROPERTY(QString umbrales READ umbrales NOTIFY resumenChanged)
    /// The estimate of what can be saved.
    Q_PROPERTY(QString ahorro READ ahorro NOTIFY resumenChanged)
    Q_PROPERTY(bool midiendoAlgo READ midiendo NOTIFY resumenChanged)
    /// Only the scanner can be stopped; where it rests there is nothing to stop.
    Q_PROPERTY(bool puedeDetener READ puedeDetener NOTIFY resumenChanged)
    Q_PROPERTY(QString textoDetener READ textoDetener NOTIFY resumenChanged)
    Q_PROPERTY(QString textoAnalizar READ textoAnalizar NOTIFY resumenChanged)
    Q_PROPERTY(QAbstractItemModel *tarjetas READ tarjetas CONSTANT)
public:
    explicit ResumenViewEstado(QObject *parent = nullptr);

    QString ultimoAnalisis() const;
    qreal fraccionUsada() const;
    QString porcentajeUsado() const;
    QString libres() const;
    QString textoNivel() const;
    QString simboloNivel() const;
    Tinte tinteNivel() const;
    QString volumen() const;
    QString umbrales() const;
    QString ahorro() const;
    bool midiendo() const { return midiendoAlgo(m_entradas); }
    bool puedeDetener() const { return m_entradas.escaneando && !m_entradas.deteniendo; }
    QString textoDetener() const;
    QString textoAnalizar() const;
    QAbstractItemModel *tarjetas() { return &m_tarjetas; }

    /// To be called when the screen is first shown: makes sure that the data is there.
    Q_INVOKABLE void alMostrar();
    Q_INVOKABLE void analizarTodo();
    Q_INVOKABLE void detener();
    Q_INVOKABLE void verPapelera();
    /// Leads to a section by its key.
    Q_INVOKABLE void ir(const QString &seccion);

Q_SIGNALS:
    void resumenChanged();

private:
    void actualizar();

    OvantaApp &m_app;
    EntradasResumen m_entradas;
    ModeloFilas<TarjetaResumen> m_tarjetas;
};

} // namespace ovanta
