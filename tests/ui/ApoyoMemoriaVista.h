#pragma once

#include "tests/Medidas.h"
#include "tests/ui/BancoInterfaz.h"
#include "ui/MemoryViewEstado.h"

#include <memory>

namespace ovanta::pruebas {

/// The rules of the memory screen over a machine by script.
class MemoriaEstado : public BancoInterfaz
{
protected:
    MemoriaSistema::Lectura &lectura() { return plataforma.m_memoriaSistema.actual; }
    AplicacionesEnMarchaDePrueba &enMarcha() { return plataforma.m_enMarcha; }

    void poner(std::int32_t pid, const std::string &nombre, std::uint64_t huella,
               AplicacionEnMarcha::Politica politica = AplicacionEnMarcha::Politica::regular)
    {
        const std::string ruta = "/Applications/" + nombre + ".app";
        const std::uint64_t inicio = static_cast<std::uint64_t>(pid) * 10;
        plataforma.m_procesos.muestras.push_back({pid, nombre, ruta, huella, 0, inicio});
        enMarcha().abiertas.push_back({pid, inicio, ruta, "org." + nombre, nombre, politica, ""});
    }
    void empezar()
    {
        app();
        leerMemoria();
        estado = std::make_unique<MemoryViewEstado>();
    }
    const std::vector<FilaProceso> &filas() const
    {
        return static_cast<ModeloFilas<FilaProceso> *>(estado->filas())->filas();
    }
    const std::vector<FilaRecomendacion> &recomendaciones() const
    {
        return static_cast<ModeloFilas<FilaRecomendacion> *>(estado->recomendaciones())->filas();
    }
    /// Turns the loop until nothing is being closed; the clock goes on with every turn.
    void hastaCerrar()
    {
        esperar([&] {
            plataforma.m_reloj.avanzar(std::chrono::milliseconds{500});
            return !estado->cerrando();
        });
    }

    std::unique_ptr<MemoryViewEstado> estado;
};

} // namespace ovanta::pruebas
