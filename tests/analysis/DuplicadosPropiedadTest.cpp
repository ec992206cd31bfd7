#include "analysis/Duplicados.h"

#include "tests/analysis/AccesoConFallos.h"
#include "tests/analysis/ArbolDeArchivos.h"
#include "tests/analysis/EmbudoIngenuo.h"

#include <gtest/gtest.h>
#include <random>

namespace ovanta::pruebas {
namespace {

using Grupos = std::map<std::string, std::vector<std::string>>;

/// A tree in which nearly everything is nearly the same.
class ArbolEnredado
{
public:
    explicit ArbolEnredado(unsigned semilla) : m_azar(semilla)
    {
        for (int i = 0; i < 60; ++i)
            escribir("c" + std::to_string(m_azar() % 4) + "/" + std::to_string(i));
    }

    const ArbolDeArchivos &arbol() const { return m_arbol; }

    void romperAlgunos(AccesoConFallos &acceso)
    {
        constexpr std::uint64_t lugares[] = {0, 500, 1024, 3000, 65535, 65536, 66000, 140'000, 262'144};
        for (const std::string &ruta : m_rutas) {
            if (m_azar() % 4 == 0) acceso.romperDesde(ruta, lugares[m_azar() % std::size(lugares)]);
            if (m_azar() % 15 == 0) acceso.cerrar(ruta);
        }
    }

private:
    void escribir(const std::string &nombre)
    {
        if (!m_nombres.empty() && m_azar() % 6 == 0) {
            m_arbol.escribir(nombre, "");
            std::filesystem::remove(m_arbol.en(nombre));
            m_arbol.enlazar(m_nombres[m_azar() % m_nombres.size()], nombre);
        } else {
            constexpr std::size_t tamanos[] = {0, 1, 1024, 2048, 2049, 5000, 65536, 65537, 131'072, 300'000};
            std::string contenido(tamanos[m_azar() % std::size(tamanos)], 'x');
            constexpr std::size_t cambios[] = {0, 1023, 1024, 3000, 65535, 65536, 131'071, 299'999};
            const std::size_t lugar = cambios[m_azar() % std::size(cambios)];
            if (m_azar() % 2 && lugar < contenido.size()) contenido[lugar] = 'y';
            m_arbol.escribir(nombre, contenido);
        }
        m_nombres.push_back(nombre);
        m_rutas.push_back(m_arbol.en(nombre));
    }

    std::mt19937 m_azar;
    ArbolDeArchivos m_arbol;
    std::vector<std::string> m_nombres;
    std::vector<std::string> m_rutas;
};

Grupos hallados(const ListaArchivos &archivos, AccesoArchivos &acceso)
{
    Grupos grupos;
    for (const ContenidoIgual &igual : contenidosIguales(archivos, acceso, nullptr))
        for (const ListaArchivos::Numero i : igual.archivos)
            grupos[igual.clave].push_back(archivos.ruta(i));
    return grupos;
}

TEST(DuplicadosPropiedad, theFunnelGivesWhatComparingEverythingGives)
{
    for (unsigned semilla = 0; semilla < 40; ++semilla) {
        const ArbolEnredado enredo(semilla);
        AccesoConFallos acceso;
        const ListaArchivos archivos = enredo.arbol().archivos();
        const Grupos esperados = duplicadosIngenuos(archivos, acceso);
        EXPECT_FALSE(esperados.empty());
        EXPECT_EQ(hallados(archivos, acceso), esperados) << "seed " << semilla;
    }
}

TEST(DuplicadosPropiedad, alsoWithReadErrorsAndFilesThatCannotBeOpened)
{
    for (unsigned semilla = 100; semilla < 160; ++semilla) {
        ArbolEnredado enredo(semilla);
        AccesoConFallos acceso;
        enredo.romperAlgunos(acceso);
        const ListaArchivos archivos = enredo.arbol().archivos();
        EXPECT_EQ(hallados(archivos, acceso), duplicadosIngenuos(archivos, acceso)) << "seed " << semilla;
    }
}

} // namespace
} // namespace ovanta::pruebas
