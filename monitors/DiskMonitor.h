#pragma once

#include "monitors/AvisosDisco.h"
#include "monitors/NivelDisco.h"
#include "platform/Plataforma.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>

namespace ovanta {

/// Watches the free space of the user's volume: reads it at its creation, every minute and after
/// every wake, publishes the figures, and tells the user when space gets short. Every clean-up calls
/// `medir` when it ends. Main thread; one for the life of the process.
class DiskMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Bytes, as they stood at `ultimaLectura`: the last time the volume could be read.
    Q_PROPERTY(qulonglong libre READ libre NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong total READ total NOTIFY lecturaChanged)
    Q_PROPERTY(qulonglong usado READ usado NOTIFY lecturaChanged)
    /// From 0 to 1.
    Q_PROPERTY(double fraccionUsada READ fraccionUsada NOTIFY lecturaChanged)
    Q_PROPERTY(QDateTime ultimaLectura READ ultimaLecturaQt NOTIFY lecturaChanged)
    std::uint64_t libre() const { return m_libre; }
    std::uint64_t total() const { return m_total; }
    std::uint64_t usado() const { return m_libre >= m_total ? 0 : m_total - m_libre; }
    double fraccionUsada() const;
    Fecha ultimaLectura() const { return m_ultimaLectura; }

    /// Thresholds in units of 2^30 bytes, kept in the user's settings. A change is judged at once.
    Q_PROPERTY(double umbralAviso READ umbralAviso WRITE fijarUmbralAviso NOTIFY ajustesChanged)
    Q_PROPERTY(double umbralCritico READ umbralCritico WRITE fijarUmbralCritico NOTIFY ajustesChanged)
    double umbralAviso() const { return m_umbrales.aviso; }
    double umbralCritico() const { return m_umbrales.critico; }
    void fijarUmbralAviso(double umbral);
    void fijarUmbralCritico(double umbral);

    /// Whether notices are raised at all, and whether the tray's label shows the free space. Kept in
    /// the user's settings.
    Q_PROPERTY(bool notificar READ notificar WRITE fijarNotificar NOTIFY ajustesChanged)
    Q_PROPERTY(bool mostrarTextoEnBarra READ mostrarTextoEnBarra WRITE fijarMostrarTextoEnBarra NOTIFY
                   ajustesChanged)
    bool notificar() const { return m_notificar; }
    bool mostrarTextoEnBarra() const { return m_mostrarTextoEnBarra; }
    void fijarNotificar(bool notificar);
    void fijarMostrarTextoEnBarra(bool mostrar);

    /// The level of the last evaluation; "ok", "aviso" or "critico" for QML.
    Q_PROPERTY(QString nivel READ nivelQt NOTIFY nivelChanged)
    NivelDisco nivel() const { return m_nivel; }

    /// Whether notices may be shown, in words for the user.
    Q_PROPERTY(QString permisoNotificaciones READ permisoNotificaciones NOTIFY permisoNotificacionesChanged)
    QString permisoNotificaciones() const { return m_permiso; }

    /// Reads the volume once and only then asks for leave to notify. `plataforma` must outlive it.
    explicit DiskMonitor(Plataforma &plataforma, QObject *parent = nullptr);

    /// Reads the volume, publishes and evaluates. A volume that cannot be read changes nothing.
    Q_INVOKABLE void medir();

    /// Raises the notice for the current level, or the one for `aviso` where there is enough space.
    /// Neither hurries nor delays the real ones.
    Q_INVOKABLE void probarAviso();

Q_SIGNALS:
    void lecturaChanged();
    void ajustesChanged();
    void nivelChanged();
    void permisoNotificacionesChanged();

private:
    QDateTime ultimaLecturaQt() const;
    QString nivelQt() const;

    void leerPreferencias();
    void publicar(const std::optional<Volumen::Espacio> &espacio);
    void revisarNivel();
    void avisar(NivelDisco nivel);
    bool puedeNotificar() const;
    void mostrarDialogo(const std::string &titulo, const std::string &cuerpo);
    void empezarConPermiso();
    void pedirPermiso();
    void recibirPermiso(const std::expected<bool, std::string> &respuesta);
    void fijarPermiso(const QString &permiso);

    Plataforma &m_plataforma;
    std::uint64_t m_libre = 0;
    std::uint64_t m_total = 0;
    Fecha m_ultimaLectura;
    UmbralesDisco m_umbrales;
    bool m_notificar = true;
    bool m_mostrarTextoEnBarra = true;
    NivelDisco m_nivel = NivelDisco::ok;
    QString m_permiso;
    AvisosDisco m_avisos;
    bool m_dialogoAbierto = false;
    std::unique_ptr<Reloj::Temporizador> m_temporizador;
};

} // namespace ovanta
