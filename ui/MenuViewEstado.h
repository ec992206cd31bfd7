#pragma once

#include "app/OvantaApp.h"
#include "ui/AspectoNivel.h"

#include <QList>
#include <QObject>
#include <QtQml/qqml.h>

namespace ovanta {

class Interfaz;

/// The rules of the panel that opens from the tray. It follows the stores while it lives; windows are
/// opened by the `Interfaz` that shows it.
class MenuViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString simboloNivel READ simboloNivel NOTIFY discoChanged)
    Q_PROPERTY(ovanta::Tinte tinteNivel READ tinteNivel NOTIFY discoChanged)
    Q_PROPERTY(QString libres READ libres NOTIFY discoChanged)
    Q_PROPERTY(QString textoNivel READ textoNivel NOTIFY discoChanged)
    Q_PROPERTY(qreal fraccionUsada READ fraccionUsada NOTIFY discoChanged)
    Q_PROPERTY(QString usado READ usado NOTIFY discoChanged)
    Q_PROPERTY(QString umbrales READ umbrales NOTIFY discoChanged)
    Q_PROPERTY(QString ultimaLectura READ ultimaLectura NOTIFY discoChanged)

    Q_PROPERTY(QString cpu READ cpu NOTIFY vivoChanged)
    Q_PROPERTY(ovanta::Tinte tinteCPU READ tinteCPU NOTIFY vivoChanged)
    Q_PROPERTY(QList<double> historialCPU READ historialCPU NOTIFY vivoChanged)
    /// How short of memory the machine is, in words and in the colours of the words and of the curve.
    Q_PROPERTY(QString memoria READ memoria NOTIFY memoriaChanged)
    Q_PROPERTY(ovanta::Tinte tinteMemoria READ tinteMemoria NOTIFY memoriaChanged)
    Q_PROPERTY(ovanta::Tinte tinteCurvaMemoria READ tinteCurvaMemoria NOTIFY memoriaChanged)
    Q_PROPERTY(QString ram READ ram NOTIFY vivoChanged)
    Q_PROPERTY(QList<double> historialRAM READ historialRAM NOTIFY vivoChanged)
    Q_PROPERTY(QString bajada READ bajada NOTIFY vivoChanged)
    Q_PROPERTY(QString subida READ subida NOTIFY vivoChanged)
    Q_PROPERTY(QList<double> historialRed READ historialRed NOTIFY vivoChanged)
    Q_PROPERTY(QString termico READ termico NOTIFY vivoChanged)
    /// Empty texts on a machine without a battery, and where its health is not known.
    Q_PROPERTY(QString bateria READ bateria NOTIFY vivoChanged)
    Q_PROPERTY(QString simboloBateria READ simboloBateria NOTIFY vivoChanged)
    Q_PROPERTY(ovanta::Tinte tinteBateria READ tinteBateria NOTIFY vivoChanged)
    Q_PROPERTY(QString salud READ salud NOTIFY vivoChanged)
    Q_PROPERTY(ovanta::Tinte tinteSalud READ tinteSalud NOTIFY vivoChanged)

    Q_PROPERTY(bool consultando READ consultando NOTIFY simuladoresChanged)
    /// What is known of the simulators, and of the new ones among them where there is a list.
    Q_PROPERTY(QString simuladores READ simuladores NOTIFY simuladoresChanged)
    Q_PROPERTY(QString nuevos READ nuevos NOTIFY simuladoresChanged)
    Q_PROPERTY(bool hayNuevos READ hayNuevos NOTIFY simuladoresChanged)
public:
    explicit MenuViewEstado(QObject *parent = nullptr);

    QString simboloNivel() const { return aspecto().simbolo; }
    Tinte tinteNivel() const { return aspecto().tinte; }
    QString libres() const;
    QString textoNivel() const { return aspecto().texto; }
    qreal fraccionUsada() const { return m_app.disco().fraccionUsada(); }
    QString usado() const;
    QString umbrales() const;
    QString ultimaLectura() const;

    QString cpu() const;
    Tinte tinteCPU() const;
    QList<double> historialCPU() const;
    QString memoria() const;
    Tinte tinteMemoria() const;
    Tinte tinteCurvaMemoria() const;
    QString ram() const;
    QList<double> historialRAM() const;
    QString bajada() const;
    QString subida() const;
    QList<double> historialRed() const;
    QString termico() const;
    QString bateria() const;
    QString simboloBateria() const;
    Tinte tinteBateria() const;
    QString salud() const;
    Tinte tinteSalud() const;

    bool consultando() const { return m_app.sims().cargando(); }
    QString simuladores() const;
    QString nuevos() const;
    bool hayNuevos() const;

    /// To be called when the panel is first shown: makes sure that there is a list of simulators.
    Q_INVOKABLE void alMostrar();
    Q_INVOKABLE void revisarSimuladores();
    Q_INVOKABLE void abrirOvanta();
    Q_INVOKABLE void actualizarAhora();
    Q_INVOKABLE void salir();

Q_SIGNALS:
    void discoChanged();
    void vivoChanged();
    void memoriaChanged();
    void simuladoresChanged();

private:
    AspectoNivel aspecto() const { return aspectoDe(m_app.disco().nivel()); }
    bool hayLista() const;

    OvantaApp &m_app;
    Interfaz &m_interfaz;
};

} // namespace ovanta
