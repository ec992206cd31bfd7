#include "analysis/DigestosAparte.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace ovanta {

namespace {

constexpr std::size_t bytesPorLote = 128 << 10;
/// Steps without bytes need an end too.
constexpr std::size_t pasosPorLote = 4096;

} // namespace

DigestosAparte::DigestosAparte(std::function<bool()> mientrasTanto)
    : m_mientrasTanto(std::move(mientrasTanto)), m_hilo([this](const std::stop_token &alto) { servir(alto); })
{
}

DigestosAparte::~DigestosAparte()
{
    m_hilo.request_stop();
    m_hilo.join();
}

void DigestosAparte::agregar(const EnCurso &digesto, const void *datos, std::size_t bytes)
{
    const auto *desde = static_cast<const unsigned char *>(datos);
    while (bytes > 0) {
        Lote &lote = conLugar();
        const std::size_t caben = std::min(bytes, bytesPorLote - lote.ocupados);
        std::memcpy(lote.datos.get() + lote.ocupados, desde, caben);
        lote.ocupados += caben;
        lote.pasos.push_back({.digesto = digesto, .origen = nullptr, .bytes = caben});
        desde += caben;
        bytes -= caben;
    }
}

DigestosAparte::EnCurso DigestosAparte::copiar(const EnCurso &digesto)
{
    EnCurso copia = empezar();
    conLugar().pasos.push_back({.digesto = copia, .origen = digesto});
    return copia;
}

const Digesto *DigestosAparte::terminar(const EnCurso &digesto)
{
    Digesto *const destino = &m_digestos.emplace_back();
    conLugar().pasos.push_back({.digesto = digesto, .destino = destino});
    return destino;
}

DigestosAparte::Lote &DigestosAparte::conLugar()
{
    if (m_abierto.ocupados == bytesPorLote || m_abierto.pasos.size() == pasosPorLote) entregar();
    if (!m_abierto.datos) m_abierto.datos = std::make_unique_for_overwrite<unsigned char[]>(bytesPorLote);
    return m_abierto;
}

/// Whether a batch is still waiting for the thread.
bool DigestosAparte::espera()
{
    const std::lock_guard cerrojo(m_cerrojo);
    return m_hayEntregado;
}

/// Changes the full batch for the one that was digested before.
void DigestosAparte::entregar()
{
    while (espera() && m_mientrasTanto()) {
    }
    std::unique_lock cerrojo(m_cerrojo);
    m_cambio.wait(cerrojo, [this] { return !m_hayEntregado; });
    std::swap(m_abierto, m_entregado);
    m_hayEntregado = true;
    m_cambio.notify_all();
    m_abierto.ocupados = 0;
    m_abierto.pasos.clear();
}

void DigestosAparte::esperar()
{
    entregar();
    std::unique_lock cerrojo(m_cerrojo);
    m_cambio.wait(cerrojo, [this] { return !m_hayEntregado && !m_ocupado; });
    if (m_fallo) std::rethrow_exception(m_fallo);
}

void DigestosAparte::servir(const std::stop_token &alto)
{
    Lote lote;
    std::unique_lock cerrojo(m_cerrojo);
    while (m_cambio.wait(cerrojo, alto, [this] { return m_hayEntregado; }) && !alto.stop_requested()) {
        std::swap(lote, m_entregado);
        m_hayEntregado = false;
        m_ocupado = true;
        m_cambio.notify_all();
        cerrojo.unlock();
        std::exception_ptr fallo;
        try {
            digerir(lote);
        } catch (...) {
            fallo = std::current_exception();
        }
        cerrojo.lock();
        if (fallo) m_fallo = fallo;
        m_ocupado = false;
        m_cambio.notify_all();
    }
}

void DigestosAparte::digerir(const Lote &lote)
{
    const unsigned char *datos = lote.datos.get();
    for (const Paso &paso : lote.pasos) {
        if (paso.origen) paso.digesto->copiar(*paso.origen);
        if (paso.bytes > 0) paso.digesto->agregar(datos, paso.bytes);
        if (paso.destino) *paso.destino = paso.digesto->terminar();
        datos += paso.bytes;
    }
}

} // namespace ovanta
