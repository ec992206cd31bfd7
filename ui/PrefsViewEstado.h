#pragma once

#include "app/OvantaApp.h"
#include "ui/componentes/Paleta.h"
#include "ui/componentes/Rango.h"

#include <QCoroTask>
#include <QObject>
#include <QStringList>
#include <QtQml/qqml.h>
#include <optional>

namespace ovanta {

/// The rules of the preferences screen. Every setting belongs to its store, which saves it and acts on
/// it at once; of its own the screen has what the system says about the start at login and the Dock.
class PrefsViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    // Disk notices
    Q_PROPERTY(bool notificar READ notificar WRITE fijarNotificar NOTIFY discoChanged)
    Q_PROPERTY(double umbralAviso READ umbralAviso WRITE fijarUmbralAviso NOTIFY discoChanged)
    Q_PROPERTY(double umbralCritico READ umbralCritico WRITE fijarUmbralCritico NOTIFY discoChanged)
    Q_PROPERTY(ovanta::Rango rangoAviso READ rangoAviso CONSTANT)
    Q_PROPERTY(ovanta::Rango rangoCritico READ rangoCritico CONSTANT)
    Q_PROPERTY(QString textoAviso READ textoAviso NOTIFY discoChanged)
    Q_PROPERTY(QString textoCritico READ textoCritico NOTIFY discoChanged)
    /// Whether the critical threshold is not below that of the warning.
    Q_PROPERTY(bool umbralesCruzados READ umbralesCruzados NOTIFY discoChanged)
    Q_PROPERTY(QString permiso READ permiso NOTIFY permisoChanged)
    Q_PROPERTY(QString simboloPermiso READ simboloPermiso NOTIFY permisoChanged)
    Q_PROPERTY(ovanta::Tinte tintePermiso READ tintePermiso NOTIFY permisoChanged)

    // The bar
    Q_PROPERTY(bool textoEnBarra READ textoEnBarra WRITE fijarTextoEnBarra NOTIFY discoChanged)
    Q_PROPERTY(bool barraCPU READ barraCPU WRITE fijarBarraCPU NOTIFY barraChanged)
    Q_PROPERTY(bool barraRAM READ barraRAM WRITE fijarBarraRAM NOTIFY barraChanged)
    Q_PROPERTY(bool barraRed READ barraRed WRITE fijarBarraRed NOTIFY barraChanged)
    Q_PROPERTY(bool barraGrafica READ barraGrafica WRITE fijarBarraGrafica NOTIFY barraChanged)
    Q_PROPERTY(QStringList opcionesBateria READ opcionesBateria CONSTANT)
    /// The option that is set; -1 for a percentage that is none of them.
    Q_PROPERTY(int opcionBateria READ opcionBateria WRITE elegirBateria NOTIFY barraChanged)
    Q_PROPERTY(QString textoBateria READ textoBateria NOTIFY barraChanged)
    Q_PROPERTY(bool enDock READ enDock WRITE fijarEnDock NOTIFY enDockChanged)
    /// As the system reports it, or as the user just asked for while the system is being told.
    Q_PROPERTY(bool alInicio READ alInicio WRITE fijarAlInicio NOTIFY inicioChanged)
    /// Why the last change failed; empty where it did not.
    Q_PROPERTY(QString errorInicio READ errorInicio NOTIFY inicioChanged)

    // The analysis
    Q_PROPERTY(double minimoMB READ minimoMB WRITE fijarMinimoMB NOTIFY analisisChanged)
    Q_PROPERTY(ovanta::Rango rangoMinimo READ rangoMinimo CONSTANT)
    Q_PROPERTY(QString textoMinimo READ textoMinimo NOTIFY analisisChanged)
    Q_PROPERTY(double diasDescargas READ diasDescargas WRITE fijarDiasDescargas NOTIFY analisisChanged)
    Q_PROPERTY(ovanta::Rango rangoDias READ rangoDias CONSTANT)
    Q_PROPERTY(QString textoDias READ textoDias NOTIFY analisisChanged)
public:
    explicit PrefsViewEstado(QObject *parent = nullptr);
    /// What was asked for last is still carried out.
    ~PrefsViewEstado() override;

    bool notificar() const { return m_app.disco().notificar(); }
    double umbralAviso() const { return m_app.disco().umbralAviso(); }
    double umbralCritico() const { return m_app.disco().umbralCritico(); }
    Rango rangoAviso() const { return {.desde = 20, .hasta = 400, .paso = 10}; }
    Rango rangoCritico() const { return {.desde = 5, .hasta = 200, .paso = 5}; }
    QString textoAviso() const;
    QString textoCritico() const;
    bool umbralesCruzados() const { return umbralCritico() >= umbralAviso(); }
    QString permiso() const { return m_app.disco().permisoNotificaciones(); }
    QString simboloPermiso() const;
    Tinte tintePermiso() const;

    bool textoEnBarra() const { return m_app.disco().mostrarTextoEnBarra(); }
    bool barraCPU() const { return m_app.stats().barraCPU(); }
    bool barraRAM() const { return m_app.stats().barraRAM(); }
    bool barraRed() const { return m_app.stats().barraRed(); }
    bool barraGrafica() const { return m_app.stats().barraGrafica(); }
    QStringList opcionesBateria() const;
    int opcionBateria() const;
    QString textoBateria() const;
    bool enDock() const { return m_enDock; }
    bool alInicio() const { return m_alInicio; }
    QString errorInicio() const { return m_errorInicio; }

    double minimoMB() const { return m_app.scanner().minimoMB(); }
    Rango rangoMinimo() const { return {.desde = 0.1, .hasta = 50.0, .paso = 0.9}; }
    QString textoMinimo() const;
    double diasDescargas() const { return m_app.scanner().diasDescargas(); }
    Rango rangoDias() const { return {.desde = 7, .hasta = 365, .paso = 7, .rejilla = false}; }
    QString textoDias() const;

    void fijarNotificar(bool si) { m_app.disco().fijarNotificar(si); }
    void fijarUmbralAviso(double gigas) { m_app.disco().fijarUmbralAviso(gigas); }
    void fijarUmbralCritico(double gigas) { m_app.disco().fijarUmbralCritico(gigas); }
    void fijarTextoEnBarra(bool si) { m_app.disco().fijarMostrarTextoEnBarra(si); }
    void fijarBarraCPU(bool si) { m_app.stats().fijarBarraCPU(si); }
    void fijarBarraRAM(bool si) { m_app.stats().fijarBarraRAM(si); }
    void fijarBarraRed(bool si) { m_app.stats().fijarBarraRed(si); }
    void fijarBarraGrafica(bool si) { m_app.stats().fijarBarraGrafica(si); }
    void elegirBateria(int opcion);
    void fijarEnDock(bool si);
    void fijarAlInicio(bool si);
    void fijarMinimoMB(double megas) { m_app.scanner().fijarMinimoMB(megas); }
    void fijarDiasDescargas(double dias) { m_app.scanner().fijarDiasDescargas(static_cast<int>(dias)); }

    Q_INVOKABLE void probarAviso() { m_app.disco().probarAviso(); }
    Q_INVOKABLE void abrirPapelera() { m_app.plataforma().gestorArchivos().abrirPapelera(); }

Q_SIGNALS:
    void discoChanged();
    void permisoChanged();
    void barraChanged();
    void enDockChanged();
    void inicioChanged();
    void analisisChanged();

private:
    QCoro::Task<> atenderInicio();

    OvantaApp &m_app;
    bool m_enDock;
    bool m_alInicio = false;
    QString m_errorInicio;
    std::optional<bool> m_inicioPedido; ///< not yet told to the system
    bool m_atendiendo = false;
};

} // namespace ovanta
