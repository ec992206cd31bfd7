#include "platform/linux/ProcesosLinux.h"

#include "platform/linux/AplicacionesEnMarchaLinux.h"
#include "tests/HogarTemporal.h"
#include "tests/platform/ProcDePrueba.h"

#include <gtest/gtest.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class ProcesosLinuxTest : public testing::Test
{
protected:
    HogarTemporal hogar;
    EntradasDePrueba entradas{hogar.fuera()};
    ProcDePrueba proc{hogar.fuera("proc")};
    int barridos = 0;

    std::shared_ptr<FotografoProcesos> fotografo()
    {
        return std::make_shared<FotografoProcesos>(
            [this] {
                ++barridos;
                return proc.procesos();
            },
            entradas.lugares(), proc.entorno(), std::nullopt);
    }
};

} // namespace

TEST_F(ProcesosLinuxTest, aSampleCarriesTheKeyOfItsApplication)
{
    const auto ruta = entradas.poner("nav", "Navegador", "nav");
    proc.poner(100, "/usr/bin/nav", {});
    proc.poner(101, "/usr/bin/otro", {});
    const auto muestras = ProcesosLinux{fotografo()}.muestrear();
    ASSERT_EQ(muestras.size(), 2u);
    EXPECT_EQ(muestras[0], (MuestraProceso{100, "nav", ruta, 1000, 0, 1000}));
    EXPECT_EQ(muestras[1], (MuestraProceso{101, "otro", std::nullopt, 1000, 0, 1010}));
}

TEST_F(ProcesosLinuxTest, aProcessWithoutAProgramIsNamedByItsNumber)
{
    proc.poner(123, "", {});
    EXPECT_EQ(ProcesosLinux{fotografo()}.muestrear().at(0).nombre, "pid 123");
}

TEST_F(ProcesosLinuxTest, theListOfApplicationsUsesTheSweepThatWasJustMade)
{
    entradas.poner("nav", "Navegador", "nav");
    proc.poner(100, "/usr/bin/nav", {});
    const auto comun = fotografo();
    ProcesosLinux procesos{comun};
    AplicacionesEnMarchaLinux apps{comun, ""};
    procesos.muestrear();
    const auto lista = apps.listar();
    ASSERT_EQ(lista.size(), 1u);
    EXPECT_EQ(lista[0].nombre, "Navegador");
    EXPECT_EQ(barridos, 1);
    EXPECT_TRUE(apps.procesosDe("/no/hay").empty());
    EXPECT_EQ(barridos, 2) << "what is to be signalled is looked at anew";
}

TEST_F(ProcesosLinuxTest, thereIsAtLeastOneCore)
{
    EXPECT_GE(ProcesosLinux{fotografo()}.nucleos(), 1u);
}

TEST_F(ProcesosLinuxTest, theProcessesOfThisMachineAreSeen)
{
    const auto muestras = ProcesosLinux{FotografoProcesos::deEsteEquipo()}.muestrear();
    EXPECT_TRUE(std::ranges::any_of(muestras, [](const auto &muestra) { return muestra.pid == ::getpid(); }));
}
