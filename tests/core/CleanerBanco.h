#pragma once

#include "core/Cleaner.h"
#include "core/Historial.h"
#include "core/LeerArchivo.h"
#include "core/qt/SegundoPlano.h"
#include "tests/HogarTemporal.h"
#include "tests/PlataformaDePrueba.h"

#include <QCoreApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace ovanta::pruebas {

/// A `Cleaner` over a synthetic home whose Trash lies beside it and whose `du` tells 4 KiB.
class BancoCleaner : public testing::Test
{
protected:
    BancoCleaner()
    {
        plataforma.m_lugares.hogar = casa.ruta();
        plataforma.m_papelera.carpeta = casa.fuera("papelera");
        plataforma.m_herramientas.alEjecutar = [](const auto &, const auto &args) {
            return "4\t" + args.back() + "\n";
        };
    }
    ~BancoCleaner() override { cerrar(); }

    Cleaner &cleaner()
    {
        if (!m_cleaner) m_cleaner = std::make_unique<Cleaner>(plataforma);
        return *m_cleaner;
    }
    /// Ends the store as the end of the program does; the next `cleaner()` is a new start.
    void cerrar()
    {
        esperarEscritura();
        m_cleaner.reset();
        esperarEscritura();
    }

    /// Destroys the store at once, whatever it is doing.
    void destruir() { m_cleaner.reset(); }

    ResultadoLimpieza limpiar(std::vector<Regla> reglas)
    {
        return QCoro::waitFor(cleaner().limpiar(std::move(reglas)));
    }
    ResultadoLimpieza limpiarRutas(std::vector<std::string> rutas, std::string etiqueta = "pesados")
    {
        return QCoro::waitFor(cleaner().limpiarRutas(std::move(rutas), std::move(etiqueta)));
    }
    ResultadoLimpieza limpiarSeleccion(std::vector<std::string> rutas, std::string dentroDe)
    {
        return QCoro::waitFor(
            cleaner().limpiarRutasSeleccionadas(std::move(rutas), std::move(dentroDe), "duplicados"));
    }
    static void esperarEscritura()
    {
        esperarSegundoPlano(30'000);
        QCoreApplication::processEvents();
    }

    std::string carpetaDatos() const { return casa.en("Library/Application Support/Ovanta"); }
    std::string archivo() const { return carpetaDatos() + "/historial.json"; }
    std::vector<Movimiento> guardado() const { return cargarHistorial(archivo()); }
    void escribirHistorial(const std::string &bytes) const
    {
        std::filesystem::create_directories(carpetaDatos());
        std::ofstream(archivo(), std::ios::binary) << bytes;
    }

    /// The paths of a history, in its order.
    static std::vector<std::string> rutas(const std::vector<Movimiento> &historial)
    {
        std::vector<std::string> lista;
        for (const auto &movimiento : historial)
            lista.push_back(movimiento.ruta);
        return lista;
    }
    static bool hay(const std::string &ruta)
    {
        return std::filesystem::exists(std::filesystem::symlink_status(ruta));
    }

    static Regla regla(const std::string &id, const std::string &ruta, const std::string &modo = "self",
                       const std::string &riesgo = "safe")
    {
        Regla una;
        una.id = id;
        una.name = "Regla " + id;
        una.path = ruta;
        una.category = "cache";
        una.risk = riesgo;
        una.mode = modo;
        return una;
    }
    static Movimiento movimiento(int numero)
    {
        std::string cifras = std::to_string(numero);
        cifras.insert(0, 12 - cifras.size(), '0');
        return {"00000000-0000-4000-8000-" + cifras, "/casa/" + std::to_string(numero), 1024,
                Fecha{std::chrono::seconds{1'700'000'000 + numero}}, "pesados"};
    }
    static std::vector<Movimiento> movimientos(int cuantos)
    {
        std::vector<Movimiento> lista;
        for (int i = 0; i < cuantos; ++i)
            lista.push_back(movimiento(i));
        return lista;
    }

    HogarTemporal casa;
    PlataformaDePrueba plataforma;

private:
    std::unique_ptr<Cleaner> m_cleaner;
};

} // namespace ovanta::pruebas
