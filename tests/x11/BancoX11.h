#pragma once

#include "platform/linux/AplicacionesEnMarchaLinux.h"
#include "platform/linux/BarridoProc.h"
#include "platform/linux/IdentidadProceso.h"
#include "tests/HogarTemporal.h"
#include "tests/platform/ProcDePrueba.h"
#include "tests/x11/Pantalla.h"

#include <algorithm>
#include <map>

namespace ovanta::pruebas {

/// A desktop with small programs on it, each an application of its own by its entry.
class BancoX11 : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_pantalla = std::make_unique<Pantalla>(); }
    static void TearDownTestSuite() { s_pantalla.reset(); }

    static Pantalla &pantalla() { return *s_pantalla; }

    std::unique_ptr<AplicacionesEnMarchaLinux> crear(EntornoProcesos entorno,
                                                     std::optional<std::string> donde)
    {
        const auto barrido = std::make_shared<BarridoProc>();
        auto fotografo = std::make_shared<FotografoProcesos>([barrido] { return barrido->barrer(); },
                                                             entradas.lugares(), entorno, donde);
        return std::make_unique<AplicacionesEnMarchaLinux>(std::move(fotografo), "GNOME");
    }
    std::unique_ptr<AplicacionesEnMarchaLinux> crear()
    {
        return crear(EntornoProcesos::deEsteProceso(), pantalla().nombre());
    }

    /// Starts the small program under a name of its own.
    std::unique_ptr<Hijo> abrir(const std::string &modo, const std::string &nombre)
    {
        const std::string programa = hogar.fuera("opt/" + nombre + '/' + nombre);
        std::filesystem::create_directories(std::filesystem::path{programa}.parent_path());
        std::filesystem::copy_file(OVANTA_VENTANA, programa, std::filesystem::copy_options::skip_existing);
        rutas[nombre] = entradas.poner(nombre, "Prueba " + nombre, programa);
        auto hijo = std::make_unique<Hijo>(
            QString::fromStdString(programa),
            QStringList{QString::fromStdString(modo), QString::fromStdString(nombre)}, pantalla().nombre());
        EXPECT_TRUE(hijo->esperarQueDiga("listo")) << nombre;
        return hijo;
    }

    /// Waits until the application shows itself as `politica`.
    AplicacionEnMarcha
    esperarApp(AplicacionesEnMarcha &apps, const std::string &nombre,
               AplicacionEnMarcha::Politica politica = AplicacionEnMarcha::Politica::regular)
    {
        AplicacionEnMarcha hallada;
        EXPECT_TRUE(esperarA([&] {
            for (const auto &app : apps.listar())
                if (app.ruta == rutas[nombre] && app.politica == politica) {
                    hallada = app;
                    return true;
                }
            return false;
        })) << nombre;
        return hallada;
    }

    /// Waits until the window manager shows windows of a process.
    std::vector<VentanaVista> esperarVentanas(VentanasX11 &ventanas, std::int32_t pid,
                                              std::size_t cuantas = 1)
    {
        std::vector<VentanaVista> suyas;
        EXPECT_TRUE(esperarA([&] {
            suyas = ventanas.listar().value_or(std::vector<VentanaVista>{});
            std::erase_if(suyas, [pid](const VentanaVista &ventana) { return ventana.pid != pid; });
            return suyas.size() == cuantas;
        }));
        return suyas;
    }

    /// As `abrir`, once its window is there.
    std::unique_ptr<Hijo> abrirConVentana(const std::string &modo, const std::string &nombre)
    {
        auto hijo = abrir(modo, nombre);
        VentanasX11 ventanas{pantalla().nombre()};
        esperarVentanas(ventanas, hijo->pid());
        return hijo;
    }

    static AplicacionEnMarcha falsa(std::int32_t pid, std::uint64_t inicio, const std::string &ruta)
    {
        AplicacionEnMarcha app;
        app.pid = pid;
        app.inicio = inicio;
        app.ruta = ruta;
        app.politica = AplicacionEnMarcha::Politica::regular;
        return app;
    }

    HogarTemporal hogar;
    EntradasDePrueba entradas{hogar.fuera()};
    std::map<std::string, std::string> rutas;

private:
    static inline std::unique_ptr<Pantalla> s_pantalla;
};

} // namespace ovanta::pruebas
