#pragma once

#include "platform/AplicacionesEnMarcha.h"
#include "platform/MemoriaSistema.h"
#include "platform/Procesos.h"
#include "platform/Reinicio.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <utility>

namespace ovanta::pruebas {

struct MemoriaDePrueba final : MemoriaSistema
{
    std::uint64_t total = 16ULL << 30;
    Lectura actual;
    std::function<void()> alLeer; ///< runs in the background before each reading
    std::atomic<int> lecturas = 0;

    std::uint64_t fisica() override { return total; }
    Lectura leer() override
    {
        ++lecturas;
        if (alLeer) alLeer();
        return actual;
    }
};

struct ProcesosDePrueba final : Procesos
{
    std::vector<MuestraProceso> muestras;
    unsigned cuantosNucleos = 1;

    unsigned nucleos() const override { return cuantosNucleos; }
    std::vector<MuestraProceso> muestrear() override { return muestras; }
};

/// Applications by script: which quit when asked, and which only when forced.
struct AplicacionesEnMarchaDePrueba final : AplicacionesEnMarcha
{
    std::optional<std::string> propio = "com.belmora.Ovanta";
    std::vector<AplicacionEnMarcha> abiertas;
    std::set<std::int32_t> sordas;      ///< stay when they are asked to quit
    std::set<std::int32_t> inmortales;  ///< stay even when they are forced
    std::vector<Proceso> restos;        ///< of every application
    std::vector<std::int32_t> pedidas;  ///< pids that were asked to quit, in order
    std::vector<std::int32_t> forzadas; ///< pids that were forced, in order
    std::vector<std::string> rutasDeRestos;
    std::vector<Proceso> terminados; ///< processes that got the polite signal
    int preguntas = 0;               ///< how often somebody asked whether one has ended
    bool hayMonitor = true;
    int monitorAbierto = 0;
    mutable std::mutex cerrojo;

    std::optional<std::string> identificadorPropio() const override { return propio; }
    std::vector<AplicacionEnMarcha> listar() override
    {
        const std::lock_guard guardia{cerrojo};
        return abiertas;
    }
    bool terminada(const AplicacionEnMarcha &app) override
    {
        const std::lock_guard guardia{cerrojo};
        ++preguntas;
        return !abierta(app);
    }
    void cerrar(const AplicacionEnMarcha &app) override
    {
        const std::lock_guard guardia{cerrojo};
        pedidas.push_back(app.pid);
        if (!sordas.contains(app.pid)) quitar(app.pid);
    }
    void forzar(const AplicacionEnMarcha &app) override
    {
        const std::lock_guard guardia{cerrojo};
        forzadas.push_back(app.pid);
        if (!inmortales.contains(app.pid)) quitar(app.pid);
    }
    std::vector<Proceso> procesosDe(const std::string &ruta) override
    {
        const std::lock_guard guardia{cerrojo};
        rutasDeRestos.push_back(ruta);
        return restos;
    }
    void pedirFin(const std::vector<Proceso> &procesos) override
    {
        const std::lock_guard guardia{cerrojo};
        terminados.insert(terminados.end(), procesos.begin(), procesos.end());
    }
    bool abrirMonitorDeActividad() override
    {
        const std::lock_guard guardia{cerrojo};
        ++monitorAbierto;
        return hayMonitor;
    }

    /// It goes by itself, or its user quits it.
    void salir(std::int32_t pid)
    {
        const std::lock_guard guardia{cerrojo};
        quitar(pid);
    }

private:
    bool abierta(const AplicacionEnMarcha &app) const
    {
        return std::ranges::any_of(abiertas, [&](const AplicacionEnMarcha &una) {
            return una.pid == app.pid && una.inicio == app.inicio;
        });
    }
    void quitar(std::int32_t pid)
    {
        std::erase_if(abiertas, [pid](const AplicacionEnMarcha &app) { return app.pid == pid; });
    }
};

struct ReinicioDePrueba final : Reinicio
{
    std::atomic<int> pedidos = 0;

    void pedir() override { ++pedidos; }
};

} // namespace ovanta::pruebas
