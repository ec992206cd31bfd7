#pragma once

#include "monitors/CargaProcesos.h"
#include "monitors/CierreAplicaciones.h"
#include "monitors/EstadoMemoria.h"
#include "monitors/RankingProcesos.h"
#include "monitors/Recomendaciones.h"
#include "platform/Plataforma.h"

#include <QCoroTask>
#include <QDateTime>
#include <QFuture>
#include <QObject>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ovanta {

/// What takes the machine's memory, and what the user can do about it: read at its creation and every
/// ten seconds, in the background. It also closes applications and asks for a restart. Main thread; one
/// for the life of the process.
class MemoryMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Bytes. `usada` is `apps`, `wired` and `comprimida` together. A source that fails leaves 0.
    Q_PROPERTY(qulonglong total READ total NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong usada READ usada NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong apps READ apps NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong wired READ wired NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong comprimida READ comprimida NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong cache READ cache NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong libre READ libre NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong swapUsado READ swapUsado NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong swapTotal READ swapTotal NOTIFY lecturaChanged)
    std::uint64_t total() const { return m_total; }
    std::uint64_t usada() const;
    std::uint64_t apps() const { return m_lectura.apps; }
    std::uint64_t wired() const { return m_lectura.wired; }
    std::uint64_t comprimida() const { return m_lectura.comprimida; }
    std::uint64_t cache() const { return m_lectura.cache; }
    std::uint64_t libre() const { return m_lectura.libre; }
    std::uint64_t swapUsado() const { return m_lectura.swapUsado; }
    std::uint64_t swapTotal() const { return m_lectura.swapTotal; }

    /// Pages a second written to swap between the last two readings; 0 before there are two.
    Q_PROPERTY(double swapSalidaPorSeg READ swapSalidaPorSeg NOTIFY lecturaChanged)
    double swapSalidaPorSeg() const { return m_swapSalidaPorSeg; }

    /// Whole calendar days since the machine was started.
    Q_PROPERTY(int diasEncendido READ diasEncendido NOTIFY lecturaChanged)
    int diasEncendido() const { return m_diasEncendido; }

    /// The share of the memory that is taken, from 0 to 1.
    Q_PROPERTY(double presion READ presion NOTIFY lecturaChanged)
    double presion() const { return fraccionMemoria(usada(), m_total); }

    /// "normal", "tension" or "critico" for QML. `nivelKernel` is the system's own word.
    Q_PROPERTY(QString estado READ estadoQt NOTIFY lecturaChanged)
    EstadoMemoria estado() const { return estadoMemoria(m_nivelKernel, m_swapSalidaPorSeg); }
    EstadoMemoria nivelKernel() const { return m_nivelKernel; }

    /// The applications that take the most, and what can be done; as they stood at `ultima`.
    const std::vector<Proceso> &procesos() const { return m_procesos; }
    const std::vector<Recomendacion> &recomendaciones() const { return m_recomendaciones; }
    Q_PROPERTY(QDateTime ultima READ ultimaQt NOTIFY rankingChanged)
    Fecha ultima() const { return m_ultima; }

    /// Starts the first reading. `plataforma` must outlive it and all that it started.
    explicit MemoryMonitor(Plataforma &plataforma, QObject *parent = nullptr);

    /// Waits for a reading under way.
    ~MemoryMonitor() override;

    /// Reads everything again, in the background. While a reading is under way only `total` is read.
    Q_INVOKABLE void medir();
    bool leyendo() const { return m_leyendo; }

    /// Asks the applications that were published under these pids to quit and waits for them, 8 seconds at
    /// most. A pid that has gone to another process since it was published is left alone.
    QCoro::Task<ResultadoCierre> cerrarAplicaciones(std::set<std::int32_t> pids);

    /// Ends applications whether they want or not and waits for them, 3 seconds at most; gives the names
    /// of those that did end. What the latest closing left open is still the process it was then.
    QCoro::Task<std::vector<std::string>> forzarSalida(std::set<std::int32_t> pids);

    /// Asks the session to restart; it asks its user again. Failures are ignored.
    QCoro::Task<> pedirReinicio();

Q_SIGNALS:
    void lecturaChanged();
    /// `procesos`, `recomendaciones` and `ultima` are new.
    void rankingChanged();

private:
    using Apps = std::vector<AplicacionEnMarcha>;
    using Orden = void (AplicacionesEnMarcha::*)(const AplicacionEnMarcha &);

    /// What one reading saw.
    struct Vistos
    {
        static Vistos de(Plataforma &plataforma);

        MemoriaSistema::Lectura lectura;
        std::vector<MuestraProceso> muestras;
        unsigned nucleos = 1;
        Apps apps;
        std::optional<std::string> identificadorPropio;
        Fecha fecha;
    };

    QDateTime ultimaQt() const;
    QString estadoQt() const;

    void recargar();
    void publicarLectura(const MemoriaSistema::Lectura &lectura, Fecha ahora);
    void publicarProcesos(const Vistos &vistos);
    void publicarRecomendaciones(Fecha ahora);

    // Closing; these touch no published field.
    QCoro::Task<Apps> ordenar(IdentidadesProcesos pedidas, Orden orden);
    QCoro::Task<> esperarFin(Apps apps, int vueltas, std::chrono::milliseconds pausa);
    QCoro::Task<> terminarRestos(AplicacionEnMarcha app);
    QCoro::Task<> pausar(std::chrono::milliseconds cuanto);
    QFuture<bool> todasTerminadas(Apps apps) const;
    QFuture<std::vector<std::string>> nombresTerminados(Apps apps) const;

    Plataforma &m_plataforma;
    std::uint64_t m_total = 0;
    MemoriaSistema::Lectura m_lectura;
    EstadoMemoria m_nivelKernel = EstadoMemoria::normal;
    double m_swapSalidaPorSeg = 0;
    int m_diasEncendido = 0;
    std::vector<Proceso> m_procesos;
    std::vector<Recomendacion> m_recomendaciones;
    Fecha m_ultima;
    bool m_leyendo = false;
    QFuture<void> m_lecturaEnCurso;
    std::optional<LecturaSwap> m_anterior;
    TiemposCPU m_cpuAnterior;
    IdentidadesProcesos m_publicadas;
    IdentidadesProcesos m_sinCerrar; ///< of the latest closing
    std::unique_ptr<Reloj::Temporizador> m_temporizador;
};

} // namespace ovanta
