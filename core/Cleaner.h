#pragma once

#include "core/CleanerPedidos.h"
#include "core/EscritorHistorial.h"
#include "core/Movimiento.h"
#include "core/Previsualizar.h"
#include "core/Regla.h"
#include "platform/Plataforma.h"

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ovanta {

/// The one place that removes the user's files, and it removes them by moving them to the Trash.
/// Every path is validated again at the last moment, then measured, moved and recorded, one item
/// after another. What cannot go to the Trash stays, and becomes a line of the result.
///
/// Two batches may run at once: they take turns item by item, each has its own result, and the
/// first to end clears `trabajando`. Views keep their buttons disabled while it is set.
///
/// `plataforma` must outlive the background tasks. Where the store is destroyed during a batch, the
/// item under way still moves; the next run finds the batch's moves in its record.
class Cleaner final : public QObject
{
    Q_OBJECT

    /// Whether a batch is under way.
    Q_PROPERTY(bool trabajando READ trabajando NOTIFY trabajandoChanged)
    /// What the running batch is doing now, as a text for the user.
    Q_PROPERTY(QString progreso READ progreso NOTIFY progresoChanged)

public:
    /// Reads the history, and takes in what batches of earlier runs moved before they died.
    explicit Cleaner(Plataforma &plataforma, QObject *parent = nullptr);

    bool trabajando() const { return m_trabajando; }
    QString progreso() const { return m_progreso; }
    /// Newest first, at most `maximoHistorial`.
    const std::vector<Movimiento> &historial() const { return m_historial; }

    /// Cleans rules of the catalogue.
    QCoro::Task<ResultadoLimpieza> limpiar(std::vector<Regla> reglas);
    /// Moves paths under the home directory. `mirada`, where given, looks at each right before its move.
    QCoro::Task<ResultadoLimpieza> limpiarRutas(std::vector<std::string> rutas, std::string etiqueta,
                                                UltimaMirada mirada = {});
    /// Moves paths inside a folder that the user chose.
    QCoro::Task<ResultadoLimpieza> limpiarRutasSeleccionadas(std::vector<std::string> rutas,
                                                             std::string dentroDe, std::string etiqueta);
    /// Moves an application and those of its traces that belong to exactly it.
    QCoro::Task<ResultadoLimpieza> desinstalarAplicacion(std::string ruta, std::string bundleID,
                                                         std::vector<std::string> restos);
    /// Moves a launch agent of the user; it is not unloaded by any other means.
    QCoro::Task<ResultadoLimpieza> desactivarAgenteInicio(std::string ruta);

    /// What a rule would move; moves nothing.
    Previsualizacion previsualizar(const Regla &regla) const;

    /// Records what a tool deleted by itself: a path or a title.
    void registrarAccion(std::string ruta, std::uint64_t bytes, std::string etiqueta);

Q_SIGNALS:
    void trabajandoChanged();
    void progresoChanged();
    void historialChanged();

private:
    struct Lote;
    /// Makes the request for one item of a batch, when its turn has come.
    using Pedir = std::function<Pedido(const std::string &ruta)>;

    std::shared_ptr<Lote> empezar();
    QCoro::Task<> mover(std::shared_ptr<Lote> lote, std::vector<std::string> rutas, Pedir pedir);
    QCoro::Task<> terminar(std::shared_ptr<Lote> lote);
    QCoro::Task<ResultadoLimpieza> limpiarRutasInternas(std::vector<std::string> rutas, std::string etiqueta);
    QCoro::Task<> guardarHistorial();

    void fijarTrabajando(bool trabajando);
    void fijarProgreso(const std::string &progreso);
    void anteponerAlHistorial(std::vector<Movimiento> movimientos);

    Plataforma &m_plataforma;
    Puerta m_puerta;
    std::shared_ptr<EscritorHistorial> m_escritor;
    bool m_trabajando = false;
    QString m_progreso;
    std::vector<Movimiento> m_historial;
    std::vector<std::string> m_registros; ///< records of batches that the file does not hold yet
    std::uint64_t m_numeroDeGuardado = 0;
};

} // namespace ovanta
