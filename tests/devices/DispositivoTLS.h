#pragma once

#include "platform/Conexiones.h"
#include "tests/devices/ParDePrueba.h"

#include <functional>

namespace ovanta::pruebas {

/// The other end of a TLS channel, without a socket: it answers while it is written
/// to and read from.
class DispositivoTLS final : public Canal
{
public:
    struct Opciones
    {
        const ParDePrueba *par = nullptr;
        int minima = TLS1_VERSION;
        int maxima = TLS1_3_VERSION;
        const char *cifrados = "DEFAULT:@SECLEVEL=0";
        const ParDePrueba *admite = nullptr;        ///< where set, no other client is let in
        std::size_t cortarTras = std::string::npos; ///< closes after so many bytes
        Fallo alCortar = Fallo::cerrado;
        std::size_t porVez = std::string::npos; ///< at most so much at once
        int silencios = 3;                      ///< after so many empty reads the deadline is over
        bool despedirse = false;                ///< says goodbye after the handshake
    };
    /// What became of it; outlives the channel.
    struct Parte
    {
        bool saludado = false;
        bool clienteConocido = false; ///< a client certificate came
        int version = 0;
        std::string recibido;   ///< every byte that came
        std::string aplicacion; ///< what came through the cipher
        std::string respuesta;  ///< sent through the cipher once something came
        std::size_t entregado = 0;
        bool despedido = false; ///< the client said goodbye
    };

    DispositivoTLS(const Opciones &opciones, Parte &parte);

    std::expected<std::size_t, Fallo> enviar(std::string_view bytes) override;
    std::expected<std::size_t, Fallo> recibir(std::span<char> lugar) override;
    void ponerTiempos(std::chrono::milliseconds, std::chrono::milliseconds) override {}

private:
    void avanzar();

    Opciones m_opciones;
    Parte &m_parte;
    Contexto m_contexto;
    Sesion m_sesion;
    int m_silencios = 0;
    bool m_rota = false;
};

} // namespace ovanta::pruebas
