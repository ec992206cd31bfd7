#pragma once

#include "core/qt/PreferenciasQt.h"
#include "platform/simulada/RegistroMutaciones.h"

namespace ovanta {

/// Settings in a file of the synthetic home; every change is recorded.
class PreferenciasRegistradas final : public Preferencias
{
public:
    PreferenciasRegistradas(const std::string &archivo, RegistroMutaciones &registro)
        : m_preferencias(archivo), m_registro(registro)
    {
    }

    void registrar(std::string_view clave, Valor porDefecto) override;
    std::optional<Valor> leer(std::string_view clave) const override;
    void fijar(std::string_view clave, Valor valor) override;
    void quitar(std::string_view clave) override;

private:
    PreferenciasQt m_preferencias;
    RegistroMutaciones &m_registro;
};

} // namespace ovanta
