#pragma once

#include "app/OvantaApp.h"
#include "ui/FilaRegla.h"
#include "ui/ModeloFilas.h"
#include "ui/Simulacion.h"

#include <QCoroTask>
#include <QObject>
#include <QtQml/qqml.h>
#include <optional>

namespace ovanta {

/// The rules of the caches screen: what is listed, what may be ticked, the dry run and the move.
/// Selection and result live as long as the screen; a move that it started goes on without it.
class SpaceViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QAbstractItemModel *filas READ filas CONSTANT)
    Q_PROPERTY(bool vacio READ vacio NOTIFY estadoChanged)
    /// Why the catalogue could not be read; empty where it could.
    Q_PROPERTY(QString error READ error NOTIFY estadoChanged)
    Q_PROPERTY(bool midiendo READ midiendo NOTIFY estadoChanged)
    Q_PROPERTY(QString seguros READ seguros NOTIFY estadoChanged)
    Q_PROPERTY(QString encontrados READ encontrados NOTIFY estadoChanged)
    Q_PROPERTY(bool soloConTamano READ soloConTamano WRITE fijarSoloConTamano NOTIFY estadoChanged)

    Q_PROPERTY(bool haySeleccion READ haySeleccion NOTIFY estadoChanged)
    Q_PROPERTY(QString textoSeleccion READ textoSeleccion NOTIFY estadoChanged)
    Q_PROPERTY(QString tamanoSeleccion READ tamanoSeleccion NOTIFY estadoChanged)
    /// Whether the buttons that work on the selection may be used now.
    Q_PROPERTY(bool puedeMover READ puedeMover NOTIFY estadoChanged)
    Q_PROPERTY(bool trabajando READ trabajando NOTIFY estadoChanged)
    Q_PROPERTY(QString progreso READ progreso NOTIFY estadoChanged)

    /// The open sheet: "detalle-" and a rule's id, "simulacion", or empty.
    Q_PROPERTY(QString presentacion READ presentacion NOTIFY presentacionChanged)
    Q_PROPERTY(bool muestraDetalle READ muestraDetalle NOTIFY presentacionChanged)
    Q_PROPERTY(bool muestraSimulacion READ muestraSimulacion NOTIFY presentacionChanged)
    Q_PROPERTY(ovanta::DetalleDeRegla detalle READ detalle NOTIFY presentacionChanged)
    Q_PROPERTY(QAbstractItemModel *simulados READ simulados CONSTANT)
    Q_PROPERTY(QString totalSimulado READ totalSimulado NOTIFY presentacionChanged)
    Q_PROPERTY(bool confirmando READ confirmando NOTIFY presentacionChanged)
    Q_PROPERTY(QString tituloConfirmacion READ tituloConfirmacion NOTIFY estadoChanged)

    /// What the last move did; empty before one.
    Q_PROPERTY(QString resumen READ resumen NOTIFY estadoChanged)
    Q_PROPERTY(bool conFallos READ conFallos NOTIFY estadoChanged)
public:
    explicit SpaceViewEstado(QObject *parent = nullptr);

    QAbstractItemModel *filas() { return &m_filas; }
    bool vacio() const { return m_filas.filas().empty(); }
    QString error() const;
    bool midiendo() const { return m_app.reglas().midiendo(); }
    QString seguros() const;
    QString encontrados() const;
    bool soloConTamano() const { return m_soloConTamano; }
    void fijarSoloConTamano(bool soloConTamano);

    bool haySeleccion() const { return !elegidas().empty(); }
    QString textoSeleccion() const;
    QString tamanoSeleccion() const;
    bool puedeMover() const { return haySeleccion() && !trabajando(); }
    bool trabajando() const { return m_app.limpiador().trabajando(); }
    QString progreso() const { return m_app.limpiador().progreso(); }

    QString presentacion() const { return m_presentacion; }
    bool muestraDetalle() const { return m_presentacion.startsWith(QStringLiteral("detalle-")); }
    bool muestraSimulacion() const { return m_presentacion == QStringLiteral("simulacion"); }
    const DetalleDeRegla &detalle() const { return m_detalle; }
    QAbstractItemModel *simulados() { return &m_simulados; }
    QString totalSimulado() const { return m_totalSimulado; }
    bool confirmando() const { return m_confirmando; }
    QString tituloConfirmacion() const;
    QString resumen() const { return m_resumen; }
    bool conFallos() const { return m_conFallos; }

    /// To be called when the screen is first shown: makes sure that the data is there.
    Q_INVOKABLE void alMostrar();
    Q_INVOKABLE void volverAMedir();
    /// Ticks or unticks a rule; one that is manual stays unticked.
    Q_INVOKABLE void marcar(const QString &clave, bool marcada);
    Q_INVOKABLE void marcarSeguros();
    Q_INVOKABLE void desmarcarTodo();
    Q_INVOKABLE void verDetalle(const QString &clave);
    Q_INVOKABLE void mostrarEnGestor(const QString &clave);
    /// "Simular": looks at the selection in the background, then opens its sheet. Nothing moves.
    Q_INVOKABLE void prepararSimulacion();
    Q_INVOKABLE void cerrarPresentacion();
    /// "Mover a la Papelera" asks first; `confirmar` moves what is selected then.
    Q_INVOKABLE void pedirConfirmacion();
    Q_INVOKABLE void cancelar();
    Q_INVOKABLE void confirmar();
    Q_INVOKABLE void verPapelera();

Q_SIGNALS:
    void estadoChanged();
    void presentacionChanged();

private:
    std::vector<Regla> elegidas() const;
    std::optional<Regla> reglaDe(const QString &clave) const;
    void actualizar();
    void fijarSeleccion(SeleccionReglas seleccion);
    void fijarPresentacion(const QString &presentacion);
    void fijarConfirmando(bool confirmando);
    QCoro::Task<> simularElegidas();
    QCoro::Task<> moverElegidas();
    void publicarResultado(const ResultadoLimpieza &resultado);

    OvantaApp &m_app;
    ModeloFilas<FilaRegla> m_filas;
    ModeloFilas<FilaSimulada> m_simulados;
    SeleccionReglas m_seleccion;
    bool m_soloConTamano = false;
    QString m_presentacion;
    DetalleDeRegla m_detalle;
    QString m_totalSimulado;
    bool m_confirmando = false;
    QString m_resumen;
    bool m_conFallos = false;
};

/// What the screen says of a move: what went, and the first three failures.
QString resumenDe(const ResultadoLimpieza &resultado);

} // namespace ovanta
