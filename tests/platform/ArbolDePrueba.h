#pragma once

#include "platform/simulada/ArchivosSinteticos.h"
#include "tests/HogarTemporal.h"

namespace ovanta::pruebas {

/// A folder that stands for "/", with whatever "proc" and "sys" a test needs.
class ArbolDePrueba
{
public:
    std::string raiz() const { return m_hogar.ruta(); }

    void poner(const std::string &ruta, std::string_view texto) const
    {
        escribirTexto(raiz() + "/" + ruta, texto);
    }
    void quitar(const std::string &ruta) const { std::filesystem::remove_all(raiz() + "/" + ruta); }

private:
    HogarTemporal m_hogar;
};

} // namespace ovanta::pruebas
