#include "platform/linux/UnidadPropia.h"

#include "tests/HogarTemporal.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

const std::string sesion = "/user.slice/user-1000.slice/user@1000.service/app.slice/";

class UnidadPropiaTest : public testing::Test
{
protected:
    HogarTemporal hogar;

    /// A made-up group that holds those processes.
    OrigenProceso unidad(const std::string &grupo, const std::string &pids)
    {
        const std::string carpeta = HogarTemporal::carpeta(hogar.ruta() + grupo);
        std::ofstream{carpeta + "/cgroup.procs"} << pids;
        std::ofstream{carpeta + "/cgroup.kill"} << "";
        OrigenProceso origen;
        origen.clase = OrigenProceso::Clase::aplicacion;
        origen.grupo = grupo;
        origen.unificado = true;
        return origen;
    }
    std::string orden(const OrigenProceso &origen) const
    {
        std::ifstream archivo{hogar.ruta() + origen.grupo + "/cgroup.kill"};
        return {std::istreambuf_iterator<char>{archivo}, {}};
    }
    bool matar(const OrigenProceso &origen) const
    {
        return matarUnidad(hogar.ruta(), origen, 1000, {10, 11, 12});
    }
};

} // namespace

TEST_F(UnidadPropiaTest, theUnitOfOneApplicationIsKilledAtOnce)
{
    for (const char *nombre : {"app-gnome-x-10.scope", "app-x@1a.service", "snap.x.x-1.scope"}) {
        const auto origen = unidad(sesion + nombre, "10\n11\n");
        EXPECT_TRUE(matar(origen)) << nombre;
        EXPECT_EQ(orden(origen), "1") << nombre;
    }
}

TEST_F(UnidadPropiaTest, aUnitThatIsNotTheApplicationsAloneIsLeft)
{
    std::vector<OrigenProceso> casos = {
        unidad(sesion + "app-x-1.scope", "10\n99\n"),
        unidad(sesion + "app-x-2.scope", ""),
        unidad(sesion + "app-x-3.scope", "basura\n"),
        unidad("/user.slice/user-1000.slice/session-2.scope", "10\n"),
        unidad("/user.slice/user-1001.slice/user@1001.service/app.slice/app-x-4.scope", "10\n"),
        unidad("/system.slice/app-x-5.scope", "10\n"),
        unidad("/user.slice/user-1000.slice/user@1000.service/../../app-x-6.scope", "10\n"),
        unidad(sesion + "app-x-7.slice", "10\n"),
        unidad(sesion + "app-x-8.scope", "10\n"),
        unidad(sesion + "app-x-9.scope", "10\n"),
    };
    HogarTemporal::carpeta(hogar.ruta() + casos[8].grupo + "/dentro");
    casos[9].unificado = false;
    for (const auto &origen : casos) {
        EXPECT_FALSE(matar(origen)) << origen.grupo;
        EXPECT_EQ(orden(origen), "") << origen.grupo;
    }
    EXPECT_FALSE(matarUnidad("/no/hay", casos[0], 1000, {10, 99}));
    EXPECT_FALSE(matar(OrigenProceso{}));
}
