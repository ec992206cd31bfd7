#pragma once

#include "core/Preferencias.h"

#include <map>
#include <mutex>

namespace ovanta::pruebas {

/// Settings that live as long as the test.
class PreferenciasEnMemoria final : public Preferencias
{
public:
    void registrar(std::string_view clave, Valor porDefecto) override
    {
        const std::lock_guard guardia{m_cerrojo};
        m_porDefecto.insert_or_assign(std::string{clave}, std::move(porDefecto));
    }

    std::optional<Valor> leer(std::string_view clave) const override
    {
        const std::lock_guard guardia{m_cerrojo};
        for (const auto *mapa : {&m_valores, &m_porDefecto})
            if (const auto hallado = mapa->find(clave); hallado != mapa->end()) return hallado->second;
        return std::nullopt;
    }

    void fijar(std::string_view clave, Valor valor) override
    {
        const std::lock_guard guardia{m_cerrojo};
        m_valores.insert_or_assign(std::string{clave}, std::move(valor));
    }

    void quitar(std::string_view clave) override
    {
        const std::lock_guard guardia{m_cerrojo};
        if (const auto hallado = m_valores.find(clave); hallado != m_valores.end()) m_valores.erase(hallado);
    }

private:
    using Mapa = std::map<std::string, Valor, std::less<>>;

    mutable std::mutex m_cerrojo;
    Mapa m_valores;
    Mapa m_porDefecto;
};

} // namespace ovanta::pruebas
