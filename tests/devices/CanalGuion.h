#pragma once

#include "platform/Conexiones.h"

#include <algorithm>
#include <utility>

namespace ovanta::pruebas {

/// What a device said, written down beforehand, and what was said to it.
struct Guion
{
    std::string llegada = {};                            ///< what can be received
    std::size_t porVez = std::string::npos;              ///< at most so much at once
    Canal::Fallo alFinal = Canal::Fallo::cerrado;        ///< how receiving fails then
    std::optional<Canal::Fallo> alEnviar = std::nullopt; ///< how sending fails
    std::string enviado = {};
    std::chrono::milliseconds esperaRecibir{0}, esperaEnviar{0};
};

class CanalGuion final : public Canal
{
public:
    explicit CanalGuion(Guion &guion) : m_guion(guion) {}

    std::expected<std::size_t, Fallo> enviar(std::string_view bytes) override
    {
        if (m_guion.alEnviar) return std::unexpected(*m_guion.alEnviar);
        const auto cuantos = std::min(bytes.size(), m_guion.porVez);
        m_guion.enviado += bytes.substr(0, cuantos);
        return cuantos;
    }
    std::expected<std::size_t, Fallo> recibir(std::span<char> lugar) override
    {
        const auto cuantos = std::min({lugar.size(), m_guion.porVez, m_guion.llegada.size() - m_lugar});
        if (cuantos == 0) return std::unexpected(m_guion.alFinal);
        m_guion.llegada.copy(lugar.data(), cuantos, m_lugar);
        m_lugar += cuantos;
        return cuantos;
    }
    void ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar) override
    {
        m_guion.esperaRecibir = recibir;
        m_guion.esperaEnviar = enviar;
    }

private:
    Guion &m_guion;
    std::size_t m_lugar = 0;
};

/// Gives the one channel that it was made with, and then none, or fails as it is told.
struct UnaConexion final : Conexiones
{
    explicit UnaConexion(std::unique_ptr<Canal> canal) : canal(std::move(canal)) {}
    explicit UnaConexion(Fallo fallo) : fallo(fallo) {}

    std::string rutaUsbmuxd() const override { return "/usbmuxd"; }
    Resultado abrirUnix(const std::string &, const Plazo &) override { return dar(); }
    Resultado abrirTcp6(const std::string &, std::uint16_t, std::chrono::milliseconds, const Plazo &) override
    {
        return dar();
    }

    std::unique_ptr<Canal> canal;
    Fallo fallo = Fallo::sinRespuesta;

private:
    Resultado dar()
    {
        if (!canal) return std::unexpected(fallo);
        return std::move(canal);
    }
};

inline const Plazo &plazoLargo()
{
    static const Plazo plazo{std::chrono::minutes{10}};
    return plazo;
}

} // namespace ovanta::pruebas
