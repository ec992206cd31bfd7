#include "platform/simulada/EscritorioSimulado.h"

namespace ovanta {

void NotificacionesSimuladas::pedirPermiso(std::function<void(std::expected<bool, std::string>)> respuesta)
{
    respuesta(m_respuesta);
}

void NotificacionesSimuladas::enviar(const Aviso &aviso)
{
    m_registro.anotar({Mutacion::Clase::notificacion, aviso.id, aviso.titulo + "\n" + aviso.cuerpo});
    m_enviados.push_back(aviso);
}

void NotificacionesSimuladas::fijarDisponible(bool disponible)
{
    if (m_disponible == disponible) return;
    m_disponible = disponible;
    m_oyentes.avisar();
}

void DialogoSimulado::mostrar(const std::string &titulo, const std::string &cuerpo, const std::string &,
                              std::function<void()> alCerrar)
{
    m_registro.anotar({Mutacion::Clase::dialogo, titulo, cuerpo});
    m_alCerrar.push_back(std::move(alCerrar));
}

void DialogoSimulado::cerrar()
{
    if (!abierto()) return;
    const auto alCerrar = std::move(m_alCerrar.back());
    m_alCerrar.pop_back();
    alCerrar();
}

void GestorArchivosSimulado::mostrar(const std::string &ruta)
{
    m_registro.anotar({Mutacion::Clase::archivoMostrado, ruta, {}});
}

void GestorArchivosSimulado::abrirPapelera()
{
    m_registro.anotar({Mutacion::Clase::archivoMostrado, m_papelera, {}});
}

void AparienciaSimulada::fijar(Estado estado)
{
    if (m_estado == estado) return;
    m_estado = estado;
    m_oyentes.avisar();
}

void AnfitrionBandejaSimulado::fijarPresente(bool presente)
{
    if (m_presente == presente) return;
    m_presente = presente;
    m_oyentes.avisar();
}

bool InstanciaUnicaSimulada::adquirir(std::function<void()> alActivar)
{
    m_activaciones.agregar(std::move(alActivar));
    return true;
}

void PoliticaSimulada::fijar(Politica politica)
{
    m_registro.anotar(
        {Mutacion::Clase::politica, politica == Politica::regular ? "regular" : "accesoria", {}});
    m_politica = politica;
}

} // namespace ovanta
