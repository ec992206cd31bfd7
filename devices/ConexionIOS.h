#pragma once

#include "core/plist/ValorPlist.h"
#include "devices/ErrorIOS.h"
#include "devices/IdentidadTemporal.h"
#include "platform/Conexiones.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

class CanalTLS;

/// The byte pipe of a conversation with a device: plain first, TLS from `activarTLS` on and never back.
/// It belongs to one thread at a time; all calls block, each within the time-outs (10 s a step, see
/// `ponerTiempos`) and the whole within the `Plazo`. Bytes are held in `std::string`.
class ConexionIOS
{
public:
    /// A frame of a property list is at most this long.
    static constexpr std::uint32_t maximoPlist = 0x1FFFFFF;

    template <typename Tipo>
    using Resultado = std::expected<Tipo, ErrorIOS>;

    static Resultado<ConexionIOS> abrirUnix(Conexiones &conexiones, const std::string &ruta,
                                            const Plazo &plazo);
    static Resultado<ConexionIOS> abrirTcp6(Conexiones &conexiones, const std::string &host,
                                            std::uint16_t puerto, std::chrono::milliseconds espera,
                                            const Plazo &plazo);

    ConexionIOS(ConexionIOS &&) noexcept;
    ConexionIOS &operator=(ConexionIOS &&) noexcept;
    ~ConexionIOS();

    /// All the bytes, through TLS where it is active.
    Resultado<void> escribir(std::string_view bytes);
    /// Exactly so many bytes, through TLS where it is active.
    Resultado<std::string> leer(std::size_t cuantos);
    /// The same on the bare socket, never through TLS.
    Resultado<void> escribirCrudo(std::string_view bytes);
    Resultado<std::string> leerCrudo(std::size_t cuantos);

    /// One property list behind its length in 4 bytes, big-endian. XML is sent; XML or binary is read.
    /// An error of the property list itself is passed on as it came.
    Resultado<void> enviarPlist(const DiccionarioPlist &mensaje);
    Resultado<DiccionarioPlist> recibirPlist();
    /// Sends a copy with `Label` set to "Ovanta" and reads the reply. A text under `Error` there is raised
    /// as "{Request}: {Error}".
    Resultado<DiccionarioPlist> peticion(const DiccionarioPlist &mensaje);

    /// Makes a TLS client channel of the connection. Only the device whose certificate is, byte for byte,
    /// `certificadoDispositivo` (PEM) is let in; nothing else about the certificate matters. Where this
    /// fails the connection stays plain.
    Resultado<void> activarTLS(const IdentidadTemporal &identidad, std::string_view certificadoDispositivo);
    bool cifrada() const { return m_tls != nullptr; }

    /// How long one step waits at most.
    void ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar);

    /// The bytes that a PEM holds. Strict on purpose: carriage returns make it nothing.
    static std::optional<std::string> der(std::string_view desdePEM);

private:
    explicit ConexionIOS(std::unique_ptr<Canal> canal);

    std::unique_ptr<Canal> m_canal;
    std::unique_ptr<CanalTLS> m_tls; ///< uses `*m_canal`
};

} // namespace ovanta
