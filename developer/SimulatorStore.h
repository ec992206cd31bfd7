#pragma once

#include "developer/Simulador.h"
#include "platform/Plataforma.h"

#include <QCoroTask>
#include <QObject>
#include <expected>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace ovanta {

/// The iOS simulators of Xcode, as `simctl` lists them, and what each holds on disk. The list leans
/// towards recent creations: what was made within the last `diasNuevo` days counts as new and is
/// selected after every listing. Empty until a screen asks for it. Main thread.
class SimulatorStore : public QObject
{
    Q_OBJECT

    /// A listing is under way, with the measurement that ends it.
    Q_PROPERTY(bool cargando READ cargando NOTIFY estadoChanged)
    Q_PROPERTY(bool midiendoTamanos READ midiendoTamanos NOTIFY estadoChanged)
    /// Whole days; kept in the user's settings.
    Q_PROPERTY(int diasNuevo READ diasNuevo WRITE fijarDiasNuevo NOTIFY simuladoresChanged)
public:
    /// `plataforma` must outlive this store and any listing that it started.
    explicit SimulatorStore(Plataforma &plataforma, QObject *parent = nullptr);

    /// Newest first; those without a date last.
    const std::vector<Simulador> &simuladores() const { return m_simuladores; }
    bool cargando() const { return m_cargando; }
    bool midiendoTamanos() const { return m_midiendoTamanos; }
    /// Why the latest listing failed, for the user.
    const std::optional<std::string> &error() const { return m_error; }
    /// Where the simulators lie.
    const std::string &raiz() const { return m_raiz; }

    int diasNuevo() const { return m_diasNuevo; }
    void fijarDiasNuevo(int dias);

    /// Selected ids.
    const std::set<std::string> &seleccion() const { return m_seleccion; }
    void fijarSeleccion(std::set<std::string> seleccion);

    /// Whole calendar days since it was made; nothing where that is not known.
    std::optional<int> dias(const Simulador &simulador) const;
    /// Those that were made within `diasNuevo` days and are not running.
    std::vector<Simulador> nuevos() const;

    /// Sums over what is measured.
    std::uint64_t bytesTotales() const { return sumaDeBytes(m_simuladores); }
    std::uint64_t bytesSeleccionados() const;
    static std::uint64_t sumaDeBytes(std::span<const Simulador> simuladores);

    /// Lists the simulators, selects the new ones and measures all, in the background. While a listing
    /// is under way it returns at once. A listing that fails sets `error` and leaves the list.
    QCoro::Task<> cargar();

    /// Measures the folders of all simulators with one `du`. Without simulators it returns at once.
    QCoro::Task<> medirTamanos();

    void preseleccionarNuevos();

Q_SIGNALS:
    /// The list, a size in it, or what counts as new.
    void simuladoresChanged();
    void seleccionChanged();
    /// `cargando`, `midiendoTamanos` or `error`.
    void estadoChanged();

private:
    using Lista = std::expected<std::vector<Simulador>, std::string>;

    static Lista listar(Plataforma &plataforma, const std::string &raiz);
    static std::string medirCarpetas(Herramientas &herramientas, const std::vector<std::string> &carpetas);

    bool esNuevo(const Simulador &simulador) const;
    std::vector<std::string> carpetas() const;
    void publicar(std::vector<Simulador> simuladores);
    void anotarTamanos(const std::string &salida);
    void fijarEstado(bool cargando, std::optional<std::string> error);
    void fijarMidiendo(bool midiendo);

    Plataforma &m_plataforma;
    std::string m_raiz;
    std::vector<Simulador> m_simuladores;
    std::set<std::string> m_seleccion;
    bool m_cargando = false;
    bool m_midiendoTamanos = false;
    std::optional<std::string> m_error;
    int m_diasNuevo = 0;
};

} // namespace ovanta
