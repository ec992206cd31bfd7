#include "platform/simulada/PreferenciasRegistradas.h"

namespace ovanta {

void PreferenciasRegistradas::registrar(std::string_view clave, Valor porDefecto)
{
    m_preferencias.registrar(clave, std::move(porDefecto));
}

std::optional<Preferencias::Valor> PreferenciasRegistradas::leer(std::string_view clave) const
{
    return m_preferencias.leer(clave);
}

void PreferenciasRegistradas::fijar(std::string_view clave, Valor valor)
{
    m_registro.anotar({Mutacion::Clase::ajuste, std::string(clave), "fijar"});
    m_preferencias.fijar(clave, std::move(valor));
}

void PreferenciasRegistradas::quitar(std::string_view clave)
{
    m_registro.anotar({Mutacion::Clase::ajuste, std::string(clave), "quitar"});
    m_preferencias.quitar(clave);
}

} // namespace ovanta
