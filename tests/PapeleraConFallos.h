#pragma once

#include "core/ErrorSistema.h"
#include "platform/Papelera.h"

#include <atomic>
#include <cerrno>
#include <filesystem>

namespace ovanta::pruebas {

/// A Trash in front of another one whose n-th call (measures and moves, counted from 1) goes wrong.
class PapeleraConFallos final : public Papelera
{
public:
    enum class Fallo { permiso, lleno, desaparecido };

    PapeleraConFallos(Papelera &interior, int enLaLlamada, Fallo fallo)
        : m_interior(interior), m_enLaLlamada(enLaLlamada), m_fallo(fallo)
    {
    }

    int llamadas() const { return m_llamadas; }

    std::expected<Medida, std::string> medir(const std::string &ruta) override
    {
        if (auto fallo = fallar(ruta)) return std::unexpected(*fallo);
        return m_interior.medir(ruta);
    }
    std::expected<void, std::string> reciclar(const Medida &medida) override
    {
        if (auto fallo = fallar(medida.ruta)) return std::unexpected(*fallo);
        return m_interior.reciclar(medida);
    }
    bool contiene(const std::string &ruta, Fecha desde) override { return m_interior.contiene(ruta, desde); }

private:
    /// What the call must give in place of its own result. A vanished item gives nothing here: the
    /// Trash behind finds out by itself.
    std::optional<std::string> fallar(const std::string &ruta)
    {
        if (++m_llamadas != m_enLaLlamada) return std::nullopt;
        if (m_fallo != Fallo::desaparecido) return textoErrno(m_fallo == Fallo::permiso ? EACCES : ENOSPC);
        std::filesystem::remove_all(ruta);
        return std::nullopt;
    }

    Papelera &m_interior;
    int m_enLaLlamada;
    Fallo m_fallo;
    std::atomic<int> m_llamadas = 0;
};

} // namespace ovanta::pruebas
