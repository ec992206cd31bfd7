#pragma once

#include "monitors/AvisoBateria.h"
#include "monitors/Muestras.h"
#include "platform/Plataforma.h"

#include <QList>
#include <QObject>
#include <QVariant>
#include <memory>
#include <optional>
#include <vector>

namespace ovanta {

/// The light sampler behind the bar: processor, memory, network, heat and battery, every two seconds
/// while the bar shows figures and every five while it does not. Raises the low-battery notice.
/// Main thread; one for the life of the process.
class SystemStatsMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Shares of the whole, from 0 to 1.
    Q_PROPERTY(double cpu READ cpu NOTIFY muestraChanged)
    Q_PROPERTY(double ram READ ram NOTIFY muestraChanged)
    double cpu() const { return m_cpu; }
    double ram() const { return m_ram; }

    /// Bytes per second.
    Q_PROPERTY(double bajada READ bajada NOTIFY muestraChanged)
    Q_PROPERTY(double subida READ subida NOTIFY muestraChanged)
    double bajada() const { return m_red.bajada; }
    double subida() const { return m_red.subida; }

    /// The last values, the oldest first; of the network both directions together.
    Q_PROPERTY(QList<double> historialCPU READ historialCPUQt NOTIFY muestraChanged)
    Q_PROPERTY(QList<double> historialRAM READ historialRAMQt NOTIFY muestraChanged)
    Q_PROPERTY(QList<double> historialRed READ historialRedQt NOTIFY muestraChanged)
    const std::vector<double> &historialCPU() const { return m_historialCPU; }
    const std::vector<double> &historialRAM() const { return m_historialRAM; }
    const std::vector<double> &historialRed() const { return m_historialRed; }

    /// For QML a number as `EstadoTermico` numbers them.
    Q_PROPERTY(int termico READ termicoQt NOTIFY muestraChanged)
    EstadoTermico termico() const { return m_termico; }

    /// Absent on a machine without one. For QML null, or an object with the fields of
    /// `EstadoBateria`, the absent ones of them null.
    Q_PROPERTY(QVariant bateria READ bateriaQt NOTIFY bateriaChanged)
    const std::optional<EstadoBateria> &bateria() const { return m_bateria; }

    /// What the bar shows. All settings are kept in the user's preferences.
    Q_PROPERTY(bool barraCPU READ barraCPU WRITE fijarBarraCPU NOTIFY ajustesChanged)
    Q_PROPERTY(bool barraRAM READ barraRAM WRITE fijarBarraRAM NOTIFY ajustesChanged)
    Q_PROPERTY(bool barraRed READ barraRed WRITE fijarBarraRed NOTIFY ajustesChanged)
    Q_PROPERTY(bool barraGrafica READ barraGrafica WRITE fijarBarraGrafica NOTIFY ajustesChanged)
    bool barraCPU() const { return m_barraCPU; }
    bool barraRAM() const { return m_barraRAM; }
    bool barraRed() const { return m_barraRed; }
    bool barraGrafica() const { return m_barraGrafica; }
    void fijarBarraCPU(bool mostrar);
    void fijarBarraRAM(bool mostrar);
    void fijarBarraRed(bool mostrar);
    void fijarBarraGrafica(bool mostrar);

    /// Whether the bar shows a live figure; the graph alone is none.
    Q_PROPERTY(bool algoEnBarra READ algoEnBarra NOTIFY ajustesChanged)
    bool algoEnBarra() const { return m_barraCPU || m_barraRAM || m_barraRed; }

    /// The charge in per cent at which the notice is raised; below 1 there is none.
    Q_PROPERTY(int avisoBateria READ avisoBateria WRITE fijarAvisoBateria NOTIFY ajustesChanged)
    int avisoBateria() const { return m_avisoBateria; }
    void fijarAvisoBateria(int porcentaje);

    /// Takes the first sample. `plataforma` must outlive it.
    explicit SystemStatsMonitor(Plataforma &plataforma, QObject *parent = nullptr);

Q_SIGNALS:
    void muestraChanged();
    void bateriaChanged();
    void ajustesChanged();

private:
    QList<double> historialCPUQt() const;
    QList<double> historialRAMQt() const;
    QList<double> historialRedQt() const;
    int termicoQt() const { return static_cast<int>(m_termico); }
    QVariant bateriaQt() const;

    void leerPreferencias();
    void guardar();
    void reprogramar();
    void cambiarFigura(bool &figura, bool mostrar);
    void muestrear();
    void muestrearProcesador();
    void muestrearMemoria();
    void muestrearRed();
    void leerBateria();
    void revisarAvisoBateria();

    Plataforma &m_plataforma;
    double m_cpu = 0;
    double m_ram = 0;
    VelocidadRed m_red;
    std::vector<double> m_historialCPU;
    std::vector<double> m_historialRAM;
    std::vector<double> m_historialRed;
    EstadoTermico m_termico = EstadoTermico::nominal;
    std::optional<EstadoBateria> m_bateria;
    bool m_barraCPU = false;
    bool m_barraRAM = false;
    bool m_barraRed = false;
    bool m_barraGrafica = true;
    int m_avisoBateria = 15;
    AvisoBateria m_aviso;
    std::optional<TicksUso> m_ticksAnteriores;
    std::optional<MuestraRed> m_redAnterior;
    unsigned m_contador = 0;
    std::unique_ptr<Reloj::Temporizador> m_temporizador;
};

} // namespace ovanta
