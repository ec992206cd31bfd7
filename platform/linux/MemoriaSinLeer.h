#pragma once

#include "platform/AplicacionesEnMarcha.h"
#include "platform/MemoriaSistema.h"
#include "platform/Procesos.h"
#include "platform/Reinicio.h"

namespace ovanta {

// TEMPORARY: a machine whose memory and processes tell nothing, until the readings of Linux are
// joined to the platform.

struct MemoriaSinLeer final : MemoriaSistema
{
    std::uint64_t fisica() override { return 0; }
    Lectura leer() override { return {}; }
};

struct ProcesosSinLeer final : Procesos
{
    unsigned nucleos() const override { return 1; }
    std::vector<MuestraProceso> muestrear() override { return {}; }
};

struct AplicacionesSinLeer final : AplicacionesEnMarcha
{
    std::optional<std::string> identificadorPropio() const override { return std::nullopt; }
    std::vector<AplicacionEnMarcha> listar() override { return {}; }
    bool terminada(const AplicacionEnMarcha &) override { return false; }
    void cerrar(const AplicacionEnMarcha &) override {}
    void forzar(const AplicacionEnMarcha &) override {}
    std::vector<Proceso> procesosDe(const std::string &) override { return {}; }
    void pedirFin(const std::vector<Proceso> &) override {}
    bool abrirMonitorDeActividad() override { return false; }
};

struct ReinicioImposible final : Reinicio
{
    void pedir() override {}
};

} // namespace ovanta
