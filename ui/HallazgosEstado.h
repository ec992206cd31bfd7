#pragma once

#include "app/OvantaApp.h"

#include <QObject>
#include <QString>
#include <QtQml/qqml.h>

namespace ovanta {

/// What the screens of an analysis share: its head, its empty state, and stopping it.
class HallazgosEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("base of the state classes")

    Q_PROPERTY(bool analizando READ analizando NOTIFY analisisChanged)
    Q_PROPERTY(bool puedeDetener READ puedeDetener NOTIFY analisisChanged)
    Q_PROPERTY(QString progreso READ progreso NOTIFY analisisChanged)
    /// "Analizar ahora", or "Analizar de nuevo" once something was looked at.
    Q_PROPERTY(QString textoAnalizar READ textoAnalizar NOTIFY analisisChanged)
    Q_PROPERTY(bool yaAnalizado READ yaAnalizado NOTIFY analisisChanged)

    /// What the last move did, empty before one; and what it left where it was, in words.
    Q_PROPERTY(QString resumen READ resumen NOTIFY resultadoChanged)
    Q_PROPERTY(QString fallos READ fallos NOTIFY resultadoChanged)
    Q_PROPERTY(bool moviendo READ moviendo NOTIFY movimientoChanged)
    Q_PROPERTY(QString progresoMover READ progresoMover NOTIFY movimientoChanged)
    Q_PROPERTY(bool confirmando READ confirmando NOTIFY confirmandoChanged)
public:
    bool analizando() const { return m_app.scanner().trabajando(); }
    bool puedeDetener() const { return analizando() && !m_app.scanner().deteniendo(); }
    QString progreso() const { return m_app.scanner().progreso(); }
    QString textoAnalizar() const;
    bool yaAnalizado() const { return m_app.scanner().archivosVistos() > 0; }
    QString resumen() const { return m_resumen; }
    QString fallos() const { return m_fallos; }
    bool moviendo() const { return m_app.limpiador().trabajando(); }
    QString progresoMover() const { return m_app.limpiador().progreso(); }
    bool confirmando() const { return m_confirmando; }

    Q_INVOKABLE void analizar();
    Q_INVOKABLE void detener();
    Q_INVOKABLE void cancelar() { fijarConfirmando(false); }
    Q_INVOKABLE void verPapelera();

Q_SIGNALS:
    void analisisChanged();
    void resultadoChanged();
    void movimientoChanged();
    void confirmandoChanged();

protected:
    explicit HallazgosEstado(QObject *parent);

    OvantaApp &app() const { return m_app; }
    void fijarConfirmando(bool confirmando);
    /// Shows what a move did: `movidos` is the line of what went.
    void publicarResultado(const QString &movidos, const ResultadoLimpieza &resultado);

private:
    OvantaApp &m_app;
    QString m_resumen;
    QString m_fallos;
    bool m_confirmando = false;
};

} // namespace ovanta
