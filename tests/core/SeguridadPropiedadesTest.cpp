#include "tests/core/SeguridadPropiedades.h"

#include "core/CaminoLargo.h"
#include "tests/HogarTemporal.h"

#include <gtest/gtest.h>
#include <random>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int REDUCIR = 20;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr int REDUCIR = 20;
#else
constexpr int REDUCIR = 1;
#endif
#else
constexpr int REDUCIR = 1;
#endif

/// Paths that a hostile disk, a careless rule or an odd keyboard could come up with.
class Azar
{
public:
    explicit Azar(unsigned semilla) : m_motor(semilla) {}

    std::size_t hasta(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_motor); }

    const std::string &uno(const std::vector<std::string> &de) { return de[hasta(de.size())]; }

    std::string nombre()
    {
        static const std::vector<std::string> nombres{
            "a",         "b",      "c",         "..",      "..",          ".",
            "",          "~",      ".git",      ".ssh",    ".gnupg",      "Keychains",
            ".GIT",      ".Ssh",   "keychains", ".git ",   ".gitignore",  "Library",
            "Documents", "Caches", "documents", ".config", "Descargas",   "Application Support",
            "\n",        "a\nb",   ".git\n",    " ",       "a ",          "\u00A0",
            "\u2003x",   "\xFF",   "\xC3",      "\xC2",    "M\u00FAsica", "Mu\u0301sica",
            "*",         "\\",     "...",       "..a",     "-rf",         "a\0b"s,
        };
        if (hasta(400) == 0) return std::string(200 + hasta(100), 'n');
        if (hasta(20) == 0) return {static_cast<char>(hasta(256)), static_cast<char>(hasta(256))};
        return uno(nombres);
    }

    std::string relativa(std::size_t maximo)
    {
        std::string ruta;
        for (auto n = hasta(maximo); n > 0; --n)
            ruta += "/" + nombre();
        return hasta(8) == 0 ? ruta + "/" : ruta;
    }

    std::string ruta(const std::string &hogar)
    {
        const std::vector<std::string> comienzos{hogar,         hogar,  hogar, "~",    "~",
                                                 hogar + "bel", " \t~", "",    "~bel", "x"};
        const auto componentes = hasta(20'000) == 0 ? 1000 : 8;
        return uno(comienzos) + relativa(componentes) + (hasta(16) == 0 ? " " : "");
    }

private:
    std::mt19937 m_motor;
};

/// Folders, files and links of every kind, in home and out of it.
class ArbolAlAzar
{
public:
    ArbolAlAzar(HogarTemporal &casa, Azar &azar) : m_azar(azar), m_hogar(casa.ruta())
    {
        m_carpetas = {casa.ruta(), casa.ruta(), casa.ruta(), casa.fuera()};
        for (int i = 0; i < 40; ++i)
            agregar("n" + std::to_string(i));
    }

    /// A path that mostly exists, or is a small change of one that does.
    std::string ruta()
    {
        auto ruta = m_azar.uno(m_todo);
        for (auto n = m_azar.hasta(3); n > 0; --n)
            ruta += "/n" + std::to_string(m_azar.hasta(40));
        if (m_azar.hasta(4) == 0) ruta += m_azar.relativa(4);
        return ruta;
    }
    const std::string &carpeta() { return m_azar.uno(m_carpetas); }

private:
    void agregar(const std::string &nombre)
    {
        const auto ruta = m_azar.uno(m_carpetas) + "/" + nombre;
        switch (m_azar.hasta(4)) {
        case 0:
            HogarTemporal::archivo(ruta);
            break;
        case 1:
            m_carpetas.push_back(HogarTemporal::carpeta(ruta));
            break;
        default:
            HogarTemporal::enlace(ruta, destino(nombre));
            break;
        }
        m_todo.push_back(ruta);
    }

    std::string destino(const std::string &propio)
    {
        const std::vector<std::string> destinos{
            m_azar.uno(m_carpetas),
            m_todo.empty() ? "/" : m_azar.uno(m_todo),
            propio,
            "no-hay",
            "..",
            "../..",
            "../../fuera",
            "/",
            m_hogar,
            m_hogar + "bel",
            "n" + std::to_string(m_azar.hasta(40)),
            "./../ana/.",
        };
        return m_azar.uno(destinos);
    }

    Azar &m_azar;
    std::string m_hogar;
    std::vector<std::string> m_carpetas, m_todo;
};

class SeguridadPropiedades : public testing::Test
{
protected:
    PreferenciasEnMemoria preferencias;

    Seguridad crear(const std::string &hogar)
    {
        preferencias.fijar(Seguridad::claveProtecciones,
                           std::vector<std::string>{hogar + "/b/b", hogar + "/n7", "/c"});
        return {{hogar, {".local/share", "Descargas"}, {}}, preferencias};
    }
};

} // namespace

TEST_F(SeguridadPropiedades, noTextEverLeavesHomeOrEntersAProtectedPlace)
{
    const auto seguridad = crear("/no/existe/ana");
    Azar azar(1);
    for (int i = 0; i < 2'000'000 / REDUCIR; ++i) {
        const auto ruta = azar.ruta(seguridad.hogar());
        ASSERT_EQ(incumplimientoDeValidar(seguridad, ruta), "") << testing::PrintToString(ruta);
    }
}

TEST_F(SeguridadPropiedades, theQuickAnswersOfAnAnalysisAreThoseOfTheirDefinition)
{
    const auto seguridad = crear("/no/existe/ana");
    Azar azar(2);
    ConjuntoRutas rutas{"", "/", "/c", "/no/existe/ana/a"};
    for (int i = 0; i < 500'000 / REDUCIR; ++i) {
        if (i % 1000 == 0) rutas.insert(estandarizar(azar.ruta(seguridad.hogar())));
        if (rutas.size() > 12)
            rutas.erase(std::next(rutas.begin(), static_cast<int>(azar.hasta(rutas.size()))));
        const auto ruta = azar.ruta(seguridad.hogar());
        ASSERT_EQ(incumplimientoDeAnalisis(seguridad, ruta, rutas), "") << testing::PrintToString(ruta);
    }
}

TEST_F(SeguridadPropiedades, noLinkEverLeadsOutOfHomeOrOfTheChosenFolder)
{
    Azar azar(3);
    int seguidas = 0;
    for (int arbol = 0; arbol < 40 / REDUCIR; ++arbol) {
        HogarTemporal casa;
        const auto seguridad = crear(casa.ruta());
        ArbolAlAzar hechos(casa, azar);
        for (int i = 0; i < 2000; ++i) {
            const auto ruta = hechos.ruta();
            ASSERT_EQ(incumplimientoDeValidar(seguridad, ruta), "") << testing::PrintToString(ruta);
            const auto raiz = azar.hasta(2) ? hechos.carpeta() : hechos.ruta();
            ASSERT_EQ(incumplimientoDeSeleccion(seguridad, ruta, raiz), "")
                << testing::PrintToString(ruta) << " in " << testing::PrintToString(raiz);
            seguidas += segunElNucleo(ruta).has_value();
        }
    }
    EXPECT_GT(seguidas, 40 / REDUCIR * 200) << "most paths led nowhere: the trees test too little";
}

TEST_F(SeguridadPropiedades, theLongWalkEndsWhereTheKernelEnds)
{
    Azar azar(4);
    for (int arbol = 0; arbol < 20 / REDUCIR; ++arbol) {
        HogarTemporal casa;
        ArbolAlAzar hechos(casa, azar);
        for (int i = 0; i < 2000; ++i) {
            const auto ruta = estandarizar(hechos.ruta());
            if (ruta.find('\0') != std::string::npos) continue;
            const auto andada = andarCaminoLargo(ruta, UltimoEnlace::seguir);
            const auto esperada = segunElNucleo(ruta);
            ASSERT_EQ(andada.has_value(), esperada.has_value()) << testing::PrintToString(ruta);
            if (andada) ASSERT_EQ(andada->ruta, *esperada) << testing::PrintToString(ruta);
        }
    }
}
