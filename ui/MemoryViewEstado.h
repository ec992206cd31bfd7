#pragma once

#include "app/OvantaApp.h"
#include "ui/FilasMemoria.h"
#include "ui/ModeloFilas.h"

#include <QCoroTask>
#include <QObject>
#include <QStringList>
#include <QtQml/qqml.h>

namespace ovanta {

/// The rules of the memory screen: what it shows, what may be ticked, and the three questions before
/// something is closed, forced or restarted. Ticks and results live as long as the screen; a closing
/// that it started goes on without it.
class MemoryViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString enUso READ enUso NOTIFY lecturaChanged)
    Q_PROPERTY(QString ultimaLectura READ ultimaLectura NOTIFY lecturaChanged)
    Q_PROPERTY(QString etiqueta READ etiqueta NOTIFY lecturaChanged)
    Q_PROPERTY(QString explicacion READ explicacion NOTIFY lecturaChanged)
    Q_PROPERTY(QString simbolo READ simbolo NOTIFY lecturaChanged)
    Q_PROPERTY(ovanta::Tinte tinte READ tinte NOTIFY lecturaChanged)
    Q_PROPERTY(double presion READ presion NOTIFY lecturaChanged)
    Q_PROPERTY(QString porcentaje READ porcentaje NOTIFY lecturaChanged)
    Q_PROPERTY(QAbstractItemModel *categorias READ categorias CONSTANT)

    Q_PROPERTY(QString swap READ swap NOTIFY lecturaChanged)
    Q_PROPERTY(double fraccionSwap READ fraccionSwap NOTIFY lecturaChanged)
    Q_PROPERTY(ovanta::Tinte tinteSwap READ tinteSwap NOTIFY lecturaChanged)
    Q_PROPERTY(QString actividadSwap READ actividadSwap NOTIFY lecturaChanged)
    Q_PROPERTY(QString simboloActividad READ simboloActividad NOTIFY lecturaChanged)
    Q_PROPERTY(ovanta::Tinte tinteActividad READ tinteActividad NOTIFY lecturaChanged)

    Q_PROPERTY(QAbstractItemModel *recomendaciones READ recomendaciones CONSTANT)
    Q_PROPERTY(bool hayRecomendaciones READ hayRecomendaciones NOTIFY rankingChanged)
    Q_PROPERTY(QAbstractItemModel *filas READ filas CONSTANT)
    Q_PROPERTY(bool vacio READ vacio NOTIFY rankingChanged)
    Q_PROPERTY(QString ayudaMemoria READ ayudaMemoria NOTIFY lecturaChanged)
    /// Why the system's monitor did not open; empty where it did.
    Q_PROPERTY(QString errorMonitor READ errorMonitor NOTIFY flujoChanged)

    Q_PROPERTY(bool haySeleccion READ haySeleccion NOTIFY flujoChanged)
    Q_PROPERTY(QString textoCerrar READ textoCerrar NOTIFY flujoChanged)
    Q_PROPERTY(bool cerrando READ cerrando NOTIFY flujoChanged)
    Q_PROPERTY(bool confirmandoCierre READ confirmandoCierre NOTIFY flujoChanged)
    Q_PROPERTY(bool confirmandoForzar READ confirmandoForzar NOTIFY flujoChanged)
    Q_PROPERTY(bool confirmandoReinicio READ confirmandoReinicio NOTIFY flujoChanged)
    /// What the last closing did; empty before one.
    Q_PROPERTY(QString resultadoCierre READ resultadoCierre NOTIFY flujoChanged)
    /// "Forzar salida de " and names; empty where nothing refused to close.
    Q_PROPERTY(QString textoForzar READ textoForzar NOTIFY flujoChanged)
public:
    explicit MemoryViewEstado(QObject *parent = nullptr);

    QString enUso() const;
    QString ultimaLectura() const;
    QString etiqueta() const;
    QString explicacion() const;
    QString simbolo() const;
    Tinte tinte() const;
    double presion() const { return m_mem.presion(); }
    QString porcentaje() const;
    QAbstractItemModel *categorias() { return &m_categorias; }

    QString swap() const;
    double fraccionSwap() const { return fraccionMemoria(m_mem.swapUsado(), m_mem.swapTotal()); }
    Tinte tinteSwap() const { return m_mem.swapUsado() > 0 ? Tinte::Naranja : Tinte::Secundario; }
    QString actividadSwap() const;
    QString simboloActividad() const;
    Tinte tinteActividad() const;

    QAbstractItemModel *recomendaciones() { return &m_recomendaciones; }
    bool hayRecomendaciones() const { return !m_recomendaciones.filas().empty(); }
    QAbstractItemModel *filas() { return &m_filas; }
    bool vacio() const { return m_filas.filas().empty(); }
    QString ayudaMemoria() const;
    QString errorMonitor() const { return m_errorMonitor; }

    bool haySeleccion() const { return !m_seleccionadas.empty(); }
    QString textoCerrar() const;
    bool cerrando() const { return m_cerrando; }
    bool confirmandoCierre() const { return m_confirmandoCierre; }
    bool confirmandoForzar() const { return m_confirmandoForzar; }
    bool confirmandoReinicio() const { return m_confirmandoReinicio; }
    QString resultadoCierre() const { return m_resultadoCierre; }
    QString textoForzar() const;

    /// "Actualizar".
    Q_INVOKABLE void medir();
    /// The button of a recommendation, by its id.
    Q_INVOKABLE void seguir(const QString &recomendacion);
    /// Ticks or unticks a row; one that may not be closed stays unticked.
    Q_INVOKABLE void marcar(int pid, bool marcada);
    /// Each asks first; `confirmar…` does it, `cancelar…` forgets the question.
    Q_INVOKABLE void pedirCierre();
    Q_INVOKABLE void confirmarCierre();
    Q_INVOKABLE void cancelarCierre();
    Q_INVOKABLE void pedirForzar();
    Q_INVOKABLE void confirmarForzar();
    Q_INVOKABLE void cancelarForzar();
    Q_INVOKABLE void confirmarReinicio();
    Q_INVOKABLE void cancelarReinicio();
    Q_INVOKABLE void abrirMonitorDeActividad();

Q_SIGNALS:
    void lecturaChanged();
    void rankingChanged();
    void flujoChanged();

private:
    void publicarLectura();
    void publicarRanking();
    void publicarFilas();
    QCoro::Task<> cerrar();
    QCoro::Task<> forzar();
    QCoro::Task<> abrirMonitor();
    void publicarCierre(const ResultadoCierre &resultado);

    OvantaApp &m_app;
    MemoryMonitor &m_mem;
    ModeloFilas<FilaCategoria> m_categorias;
    ModeloFilas<FilaRecomendacion> m_recomendaciones;
    ModeloFilas<FilaProceso> m_filas;
    SeleccionProcesos m_seleccionadas;
    bool m_confirmandoCierre = false;
    QString m_resultadoCierre;
    bool m_confirmandoReinicio = false;
    std::map<std::int32_t, std::string> m_sinCerrar;
    bool m_confirmandoForzar = false;
    bool m_cerrando = false;
    QString m_errorMonitor;
};

/// What the screen says of a closing.
QString textoDeCierre(const ResultadoCierre &resultado);

/// What it says of a forced end, by the names of those that ended.
QString textoDeForzar(const std::vector<std::string> &terminadas);

} // namespace ovanta
