#pragma once

#include "app/OvantaApp.h"

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqml.h>

namespace ovanta {

/// What the screens of an analysis share: its head, its empty state, stopping it, and the move of what
/// was marked. A move goes on without the screen that started it.
/// Derive from it by its whole name: QML learns the base as it is written.
class HallazgosEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("base of the state classes")

    Q_PROPERTY(bool analizando READ analizando NOTIFY analisisChanged)
    /// Whether the running analysis was told to stop.
    Q_PROPERTY(bool deteniendo READ deteniendo NOTIFY analisisChanged)
    Q_PROPERTY(QString progreso READ progreso NOTIFY analisisChanged)
    /// "Analizar ahora", or "Analizar de nuevo" once something was looked at.
    Q_PROPERTY(QString textoAnalizar READ textoAnalizar NOTIFY analisisChanged)

    /// What the last move did, empty before one; and what it left where it was, a line each.
    Q_PROPERTY(QString resumen READ resumen NOTIFY resultadoChanged)
    Q_PROPERTY(QStringList fallos READ fallos NOTIFY resultadoChanged)
    Q_PROPERTY(bool moviendo READ moviendo NOTIFY movimientoChanged)
    Q_PROPERTY(QString progresoMover READ progresoMover NOTIFY movimientoChanged)
    Q_PROPERTY(bool confirmando READ confirmando NOTIFY confirmandoChanged)
public:
    bool analizando() const { return m_app.scanner().trabajando(); }
    bool deteniendo() const { return m_app.scanner().deteniendo(); }
    QString progreso() const { return m_app.scanner().progreso(); }
    QString textoAnalizar() const;
    QString resumen() const { return m_resumen; }
    QStringList fallos() const { return m_fallos; }
    bool moviendo() const { return m_app.limpiador().trabajando(); }
    QString progresoMover() const { return m_app.limpiador().progreso(); }
    bool confirmando() const { return m_confirmando; }

    Q_INVOKABLE void analizar();
    Q_INVOKABLE void detener();
    /// "Mover a la Papelera" asks first; `confirmar` moves what is marked then.
    Q_INVOKABLE void pedirConfirmacion();
    Q_INVOKABLE void cancelar() { fijarConfirmando(false); }
    Q_INVOKABLE void confirmar();

Q_SIGNALS:
    void analisisChanged();
    void resultadoChanged();
    void movimientoChanged();
    void confirmandoChanged();

protected:
    explicit HallazgosEstado(QObject *parent);

    OvantaApp &app() const { return m_app; }
    /// Whether anything was looked at since the program began.
    bool yaAnalizado() const { return m_app.scanner().archivosVistos() > 0; }

    /// Whether there is something to move, and nothing is being moved.
    virtual bool hayQueMover() const = 0;
    virtual QCoro::Task<> moverMarcadas() = 0;
    virtual void olvidarMarcas() = 0;
    virtual QString textoMovidos(const QString &cuantos, const QString &bytes) const = 0;

    /// To be called after each change of what is marked: a question about what is no longer so goes.
    void revisarConfirmacion();
    /// Moves paths and shows what came of it; then looks at everything anew.
    QCoro::Task<> mover(std::vector<std::string> rutas, std::string etiqueta, UltimaMirada mirada);

private:
    void fijarConfirmando(bool confirmando);
    void publicarResultado(const ResultadoLimpieza &resultado);

    OvantaApp &m_app;
    QString m_resumen;
    QStringList m_fallos;
    bool m_confirmando = false;
};

} // namespace ovanta
