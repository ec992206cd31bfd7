#pragma once

#include "platform/Conexiones.h"

#include <string>
#include <thread>
#include <vector>

namespace ovanta {

/// What went over several connections, in the order in which it went.
struct PasoGrabado
{
    std::size_t conexion = 0; ///< counted from 0 in the order of their opening
    std::size_t enviados = 0;
    std::size_t recibidos = 0; ///< after these were sent
};
using Conversacion = std::vector<PasoGrabado>;

/// Connections of another that are written down.
class ConexionesGrabadas final : public Conexiones
{
public:
    explicit ConexionesGrabadas(Conexiones &reales) : m_reales(reales) {}

    const Conversacion &conversacion() const { return m_conversacion; }

    std::string rutaUsbmuxd() const override { return m_reales.rutaUsbmuxd(); }
    Resultado abrirUnix(const std::string &ruta, const Plazo &plazo) override;
    Resultado abrirTcp6(const std::string &host, std::uint16_t puerto, std::chrono::milliseconds espera,
                        const Plazo &plazo) override;

private:
    Conexiones &m_reales;
    Conversacion m_conversacion;
    std::size_t m_abiertas = 0;
};

/// The same connections and the same amounts of bytes over bare Unix sockets: the least that the
/// conversation can cost. One thread for each connection answers, as at a device.
class VueltasDesnudas
{
public:
    explicit VueltasDesnudas(Conversacion conversacion);
    ~VueltasDesnudas();
    VueltasDesnudas(const VueltasDesnudas &) = delete;
    VueltasDesnudas &operator=(const VueltasDesnudas &) = delete;

    void recorrer() const;
    std::size_t bytes() const;

private:
    void atender(int escucha) const;
    void responder(int fd, std::size_t conexion) const;

    Conversacion m_conversacion;
    std::size_t m_conexiones = 0;
    std::string m_ruta;
    int m_escucha = -1;
    std::thread m_hilo;
};

} // namespace ovanta
