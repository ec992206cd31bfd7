#pragma once

#include "platform/Conexiones.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace ovanta::pruebas {

/// The far end of one connection, in memory: it answers within the client's own call.
struct Extremo
{
    std::string llegado; ///< from the client, not taken in yet
    std::string salida;  ///< for the client, not read yet
    bool cerrado = false;
    std::function<void(Extremo &)> alLlegar = [](Extremo &) {};
};

/// What all channels of a test share.
struct ReglasDeCanal
{
    std::size_t trozo = std::numeric_limits<std::size_t>::max();  ///< bytes that one read gives at most
    std::size_t quedan = std::numeric_limits<std::size_t>::max(); ///< bytes until everything is cut off
    std::size_t dados = 0;                                        ///< bytes read in all
    int abiertos = 0;                                             ///< channels that live now
    std::chrono::milliseconds recibir{0}, enviar{0};              ///< time-outs set last
};

class CanalDePrueba final : public Canal
{
public:
    CanalDePrueba(ReglasDeCanal &reglas, Extremo extremo) : m_reglas(reglas), m_extremo(std::move(extremo))
    {
        ++m_reglas.abiertos;
    }
    ~CanalDePrueba() override { --m_reglas.abiertos; }

    std::expected<std::size_t, Fallo> enviar(std::string_view bytes) override
    {
        if (m_extremo.cerrado || m_reglas.quedan == 0) return std::unexpected(Fallo::cerrado);
        const std::size_t cuantos = std::min(bytes.size(), m_reglas.trozo);
        m_extremo.llegado.append(bytes.substr(0, cuantos));
        m_extremo.alLlegar(m_extremo);
        return cuantos;
    }

    std::expected<std::size_t, Fallo> recibir(std::span<char> lugar) override
    {
        const std::size_t cuantos =
            std::min({lugar.size(), m_reglas.trozo, m_reglas.quedan, m_extremo.salida.size()});
        if (m_reglas.quedan == 0 || (cuantos == 0 && m_extremo.cerrado))
            return std::unexpected(Fallo::cerrado);
        if (cuantos == 0) return std::unexpected(Fallo::silencio);
        std::copy_n(m_extremo.salida.begin(), cuantos, lugar.begin());
        m_extremo.salida.erase(0, cuantos);
        m_reglas.quedan -= cuantos;
        m_reglas.dados += cuantos;
        return cuantos;
    }

    void ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar) override
    {
        m_reglas.recibir = recibir;
        m_reglas.enviar = enviar;
    }

private:
    ReglasDeCanal &m_reglas;
    Extremo m_extremo;
};

/// Connections to far ends in memory.
struct ConexionesEnMemoria final : Conexiones
{
    ReglasDeCanal reglas;
    std::function<Extremo()> usbmuxd; ///< nobody listens where not set
    std::map<std::uint16_t, std::function<Extremo()>> puertos;
    std::vector<std::pair<std::uint16_t, std::chrono::milliseconds>> intentos; ///< at TCP ports
    std::string host;                                                          ///< asked for last
    std::function<void(const Plazo &)> alIntentar = [](const Plazo &) {};

    std::string rutaUsbmuxd() const override { return "/run/usbmuxd-de-prueba"; }

    Resultado abrirUnix(const std::string &ruta, const Plazo &plazo) override
    {
        if (plazo.vencido()) return std::unexpected(Fallo::vencido);
        if (!usbmuxd || ruta != rutaUsbmuxd()) return std::unexpected(Fallo::sinRespuesta);
        return std::make_unique<CanalDePrueba>(reglas, usbmuxd());
    }

    Resultado abrirTcp6(const std::string &h, std::uint16_t puerto, std::chrono::milliseconds espera,
                        const Plazo &plazo) override
    {
        alIntentar(plazo);
        host = h;
        intentos.emplace_back(puerto, espera);
        if (plazo.vencido()) return std::unexpected(Fallo::vencido);
        const auto hallado = puertos.find(puerto);
        if (hallado == puertos.end()) return std::unexpected(Fallo::sinRespuesta);
        return std::make_unique<CanalDePrueba>(reglas, hallado->second());
    }
};

} // namespace ovanta::pruebas
