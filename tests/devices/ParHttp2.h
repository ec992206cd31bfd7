#pragma once

#include "devices/DescubrimientoRSD.h"

#include <map>
#include <nghttp2/nghttp2.h>
#include <string>
#include <vector>

namespace ovanta::pruebas {

/// The far end of a discovery, whose HTTP/2 is that of libnghttp2: it takes in what the client writes and
/// frames what it is told to answer. It minds everything that the protocol forbids but header rules, since
/// the client sends none.
class ParHttp2
{
public:
    /// `trozo` is how many bytes a DATA frame carries at most.
    explicit ParHttp2(std::size_t trozo) : m_trozo(trozo)
    {
        nghttp2_session_callbacks *oyentes = nullptr;
        nghttp2_session_callbacks_new(&oyentes);
        nghttp2_session_callbacks_set_on_frame_recv_callback(oyentes, alRecibir);
        nghttp2_session_callbacks_set_on_data_chunk_recv_callback(oyentes, alRecibirDatos);
        nghttp2_session_callbacks_set_on_invalid_frame_recv_callback(oyentes, alRecibirMal);
        nghttp2_option *opciones = nullptr;
        nghttp2_option_new(&opciones);
        nghttp2_option_set_no_http_messaging(opciones, 1);
        nghttp2_session_server_new2(&m_sesion, oyentes, this, opciones);
        nghttp2_option_del(opciones);
        nghttp2_session_callbacks_del(oyentes);
        nghttp2_submit_settings(m_sesion, NGHTTP2_FLAG_NONE, nullptr, 0);
    }
    ParHttp2(const ParHttp2 &) = delete;
    ParHttp2 &operator=(const ParHttp2 &) = delete;
    ~ParHttp2() { nghttp2_session_del(m_sesion); }

    /// What is said on a stream once the client has opened it.
    std::map<std::int32_t, std::string> respuestas;
    bool despedirse = false;

    std::vector<int> tipos;                    ///< of the frames that came, in order
    std::map<std::int32_t, std::string> datos; ///< that came, by stream
    std::map<int, std::uint32_t> ajustes;      ///< that came
    std::int32_t incremento = 0;               ///< that came for the whole connection
    int acuses = 0;                            ///< of its own settings
    int faltas = 0;                            ///< frames against the protocol
    bool cortada = false;                      ///< the bytes themselves made no sense

    std::expected<ServiciosRSD, ErrorIOS> descubrir()
    {
        return descubrirServicios({.leer = [this](std::size_t n) { return leer(n); },
                                   .escribir = [this](std::string_view b) { return escribir(b); }});
    }

private:
    static ParHttp2 &de(void *este) { return *static_cast<ParHttp2 *>(este); }

    static int alRecibir(nghttp2_session *, const nghttp2_frame *trama, void *este)
    {
        ParHttp2 &par = de(este);
        par.tipos.push_back(trama->hd.type);
        if (trama->hd.type == NGHTTP2_WINDOW_UPDATE)
            par.incremento = trama->window_update.window_size_increment;
        if (trama->hd.type == NGHTTP2_HEADERS) par.contestar(trama->hd.stream_id);
        if (trama->hd.type != NGHTTP2_SETTINGS) return 0;
        if ((trama->hd.flags & NGHTTP2_FLAG_ACK) != 0) ++par.acuses;
        for (std::size_t i = 0; i < trama->settings.niv; ++i)
            par.ajustes[trama->settings.iv[i].settings_id] = trama->settings.iv[i].value;
        return 0;
    }

    static int alRecibirDatos(nghttp2_session *, std::uint8_t, std::int32_t stream, const std::uint8_t *bytes,
                              std::size_t cuantos, void *este)
    {
        de(este).datos[stream].append(reinterpret_cast<const char *>(bytes), cuantos);
        return 0;
    }

    static int alRecibirMal(nghttp2_session *, const nghttp2_frame *, int, void *este)
    {
        ++de(este).faltas;
        return 0;
    }

    void contestar(std::int32_t stream)
    {
        if (despedirse) nghttp2_session_terminate_session(m_sesion, NGHTTP2_NO_ERROR);
        const nghttp2_data_provider fuente{.source = {.ptr = this}, .read_callback = alLeerFuente};
        if (respuestas.contains(stream)) nghttp2_submit_response(m_sesion, stream, nullptr, 0, &fuente);
    }

    static ssize_t alLeerFuente(nghttp2_session *, std::int32_t stream, std::uint8_t *lugar, std::size_t cabe,
                                std::uint32_t *, nghttp2_data_source *fuente, void *)
    {
        ParHttp2 &par = de(fuente->ptr);
        std::string &queda = par.respuestas[stream];
        if (queda.empty()) return NGHTTP2_ERR_DEFERRED;
        const std::size_t cuantos = std::min({cabe, par.m_trozo, queda.size()});
        std::copy_n(queda.begin(), cuantos, lugar);
        queda.erase(0, cuantos);
        return static_cast<ssize_t>(cuantos);
    }

    std::expected<void, ErrorIOS> escribir(std::string_view bytes)
    {
        // Byte by byte: nothing may depend on how the client cuts its writes.
        for (const char byte : bytes)
            if (nghttp2_session_mem_recv(m_sesion, reinterpret_cast<const std::uint8_t *>(&byte), 1) != 1)
                cortada = true;
        return {};
    }

    std::expected<std::string, ErrorIOS> leer(std::size_t cuantos)
    {
        while (m_salida.size() < cuantos) {
            const std::uint8_t *bytes = nullptr;
            const ssize_t largo = nghttp2_session_mem_send(m_sesion, &bytes);
            if (largo <= 0) return std::unexpected(ErrorIOS::socket("el dispositivo cerró la conexión"));
            m_salida.append(reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(largo));
        }
        std::string leidos = m_salida.substr(0, cuantos);
        m_salida.erase(0, cuantos);
        return leidos;
    }

    std::size_t m_trozo;
    nghttp2_session *m_sesion = nullptr;
    std::string m_salida;
};

} // namespace ovanta::pruebas
