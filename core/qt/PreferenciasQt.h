#pragma once

#include "core/Preferencias.h"

#include <QSettings>
#include <map>
#include <mutex>

namespace ovanta {

/// The user's settings in an INI file of their own. Safe on any thread.
class PreferenciasQt final : public Preferencias
{
public:
    /// `archivo` is the INI file's path; it and its folder appear at the first `fijar`.
    explicit PreferenciasQt(const std::string &archivo);

    void registrar(std::string_view clave, Valor porDefecto) override;
    std::optional<Valor> leer(std::string_view clave) const override;
    void fijar(std::string_view clave, Valor valor) override;
    void quitar(std::string_view clave) override;

private:
    mutable std::mutex m_cerrojo;
    mutable QSettings m_ajustes;
    std::map<std::string, Valor, std::less<>> m_porDefecto;
};

} // namespace ovanta
