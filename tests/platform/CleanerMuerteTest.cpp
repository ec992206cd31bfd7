#include "core/Cleaner.h"
#include "core/Ejecutar.h"
#include "core/Historial.h"
#include "core/RegistroPrevio.h"
#include "core/qt/SegundoPlano.h"
#include "platform/linux/PapeleraLinux.h"
#include "tests/HogarTemporal.h"
#include "tests/OtroProceso.h"
#include "tests/PlataformaDePrueba.h"

#include <QCoreApplication>
#include <atomic>
#include <csignal>
#include <gmock/gmock.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::IsEmpty;

namespace {

/// Counts the steps of a batch and kills the process at one of them.
class Parca
{
public:
    explicit Parca(int en) : m_en(en) {}
    void paso()
    {
        if (++m_pasos == m_en) ::kill(::getpid(), SIGKILL);
    }

private:
    int m_en;
    std::atomic<int> m_pasos = 0;
};

PapeleraLinux papeleraDe(const std::string &hogar, AlPaso alPaso = {})
{
    const Fecha ahora = RelojManual{}.ahora();
    return PapeleraLinux({{hogar, hogar + "/.local/share"}, [ahora] { return ahora; }}, std::move(alPaso));
}

/// The real Trash, with a step before and after each of its operations besides its own.
class PapeleraConParca final : public Papelera
{
public:
    PapeleraConParca(const std::string &hogar, Parca &parca)
        : m_parca(parca), m_interior(papeleraDe(hogar, [&parca](PasoPapelera) { parca.paso(); }))
    {
    }

    std::expected<Medida, std::string> medir(const std::string &ruta) override
    {
        m_parca.paso();
        return m_interior.medir(ruta);
    }
    std::expected<void, std::string> reciclar(const Medida &medida) override
    {
        m_parca.paso();
        auto resultado = m_interior.reciclar(medida);
        m_parca.paso();
        return resultado;
    }
    bool contiene(const std::string &ruta, Fecha desde) override { return m_interior.contiene(ruta, desde); }

private:
    Parca &m_parca;
    PapeleraLinux m_interior;
};

std::vector<std::string> objetosDe(const std::string &hogar)
{
    return {hogar + "/caja/archivo", hogar + "/caja/carpeta", hogar + "/caja/rota\xFF\n"};
}

const std::vector<Movimiento> antiguos{
    {"00000000-0000-4000-8000-000000000001", "/casa/1", 1, Fecha{std::chrono::seconds{1'700'000'000}}, "a"},
    {"00000000-0000-4000-8000-000000000002", "/casa/2", 2, Fecha{std::chrono::seconds{1'600'000'000}}, "b"}};

/// A home with three items to move and a history of two entries.
struct Casa
{
    HogarTemporal hogar;
    std::string datos = hogar.en("Library/Application Support/Ovanta");
    std::string historial = datos + "/historial.json";
    std::vector<std::string> objetos = objetosDe(hogar.ruta());

    Casa()
    {
        HogarTemporal::archivo(objetos[0]);
        HogarTemporal::archivo(objetos[1] + "/dentro");
        HogarTemporal::archivo(objetos[2]);
        HogarTemporal::carpeta(datos);
        std::ofstream(historial) << codificarHistorial(antiguos);
    }
};

/// Runs the batch in a process that dies at the step; false where it ended before there was such a step.
bool morirEn(int paso, const Casa &casa)
{
    try {
        correrEnOtroProceso("CleanerMuerte.DISABLED_unLote",
                            {"OVANTA_PASO=" + std::to_string(paso), "OVANTA_CASA=" + casa.hogar.ruta()});
        return false;
    } catch (const ShellError &error) {
        EXPECT_EQ(error.codigo(), 128 + SIGKILL) << error.what();
        return true;
    }
}

std::vector<std::string> rutas(const std::vector<Movimiento> &historial)
{
    std::vector<std::string> lista;
    for (const auto &movimiento : historial)
        lista.push_back(movimiento.ruta);
    return lista;
}

/// A new start of the program: every item that is gone is in the Trash and in the history, once.
void comprobarElArranque(const Casa &casa)
{
    auto papelera = papeleraDe(casa.hogar.ruta());
    PlataformaDePrueba plataforma;
    plataforma.m_lugares.hogar = casa.hogar.ruta();
    plataforma.m_otraPapelera = &papelera;
    std::vector<std::string> esperadas;
    for (const auto &objeto : casa.objetos) {
        if (std::filesystem::exists(objeto)) continue;
        EXPECT_TRUE(papelera.contiene(objeto, plataforma.m_reloj.ahora())) << "it is nowhere";
        esperadas.push_back(objeto);
    }
    esperadas.insert(esperadas.end(), {"/casa/1", "/casa/2"});

    const Cleaner cleaner(plataforma);
    EXPECT_EQ(rutas(cleaner.historial()), esperadas);
    esperarSegundoPlano(30'000);
    QCoreApplication::processEvents();
    EXPECT_EQ(cargarHistorial(casa.historial), cleaner.historial());
    EXPECT_THAT(registrosPrevios(casa.datos), IsEmpty());
}

} // namespace

TEST(CleanerMuerte, aBatchKilledAtAnyStepIsFoundAgainAtTheNextStart)
{
    int paso = 1;
    for (bool muerto = true; muerto; ++paso) {
        SCOPED_TRACE("step " + std::to_string(paso));
        const Casa casa;
        muerto = morirEn(paso, casa);
        EXPECT_GE(cargarHistorial(casa.historial).size(), antiguos.size()) << "the file is valid at any time";
        comprobarElArranque(casa);
        comprobarElArranque(casa);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(paso, 30) << "the batch must really have gone through its steps";
}

TEST(CleanerMuerte, DISABLED_unLote)
{
    const char *hogar = std::getenv("OVANTA_CASA");
    const char *paso = std::getenv("OVANTA_PASO");
    ASSERT_TRUE(hogar && paso);
    Parca parca(std::atoi(paso));
    PapeleraConParca papelera(hogar, parca);
    PlataformaDePrueba plataforma;
    plataforma.m_lugares.hogar = hogar;
    plataforma.m_otraPapelera = &papelera;
    plataforma.m_herramientas.alEjecutar = [&parca](const auto &, const auto &) {
        parca.paso();
        return std::string{"4\tx"};
    };
    Cleaner cleaner(plataforma);
    for (const auto senal :
         {&Cleaner::trabajandoChanged, &Cleaner::progresoChanged, &Cleaner::historialChanged})
        QObject::connect(&cleaner, senal, &cleaner, [&parca] { parca.paso(); });
    const auto resultado = QCoro::waitFor(cleaner.limpiarRutas(objetosDe(hogar), "pesados"));
    EXPECT_EQ(resultado, (ResultadoLimpieza{3, 3 * 4096, {}}));
}
