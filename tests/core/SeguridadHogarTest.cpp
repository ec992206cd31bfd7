#include "tests/core/SeguridadBanco.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class SeguridadHogar : public BancoSeguridad
{
protected:
    std::string validarCon(const std::string &hogar, const std::string &ruta)
    {
        const Seguridad otra{{hogar, {}, {}}, preferencias};
        return respuesta([&] { return otra.validar(ruta); });
    }
};

// A chain of `cuantas` folders of that name below `carpeta`, and at its end an entry made by `final`.
template <typename Final>
void construirHondo(const std::string &carpeta, const std::string &nombre, int cuantas, Final final)
{
    int actual = ::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int i = 0; i < cuantas; ++i) {
        ASSERT_EQ(::mkdirat(actual, nombre.c_str(), 0700), 0);
        const int siguiente = ::openat(actual, nombre.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ASSERT_GE(siguiente, 0);
        ::close(actual);
        actual = siguiente;
    }
    final(actual);
    ::close(actual);
}

std::string repetir(const std::string &nombre, int cuantas)
{
    std::string ruta;
    for (int i = 0; i < cuantas; ++i)
        ruta += "/" + nombre;
    return ruta;
}

} // namespace

TEST_F(SeguridadHogar, aTrailingSlashOfHomeIsDropped)
{
    const Seguridad otra{{casa.ruta() + "//", {}, {}}, preferencias};
    EXPECT_EQ(otra.hogar(), casa.ruta());
    EXPECT_EQ(otra.validar("~/a"), casa.en("a"));
}

TEST_F(SeguridadHogar, aHomeThatDoesNotExistStillJudgesByText)
{
    EXPECT_EQ(validarCon("/no/existe/ana", "~/a"), "acepta /no/existe/ana/a");
    EXPECT_EQ(validarCon("/no/existe/ana", "~"), "rechaza Ruta protegida, rechazada: /no/existe/ana");
    EXPECT_EQ(validarCon("/no/existe/ana", "/etc/passwd"),
              "rechaza Fuera de tu carpeta de inicio, rechazado: /etc/passwd");
}

TEST_F(SeguridadHogar, aHomeThatIsNoFolderOfItsOwnHoldsNothing)
{
    for (const std::string hogar : {"", "/", "//", "relativo", "."}) {
        EXPECT_EQ(validarCon(hogar, "/etc/passwd"),
                  "rechaza Fuera de tu carpeta de inicio, rechazado: /etc/passwd");
        EXPECT_EQ(validarCon(hogar, "~/a"), "rechaza Fuera de tu carpeta de inicio, rechazado: /a");
        EXPECT_EQ(validarCon(hogar, "/"), "rechaza Ruta protegida, rechazada: /");
    }
}

TEST_F(SeguridadHogar, inAHomeBehindALinkNothingThatExistsIsAccepted)
{
    HogarTemporal::archivo(casa.fuera("ana/a"));
    const auto hogar = HogarTemporal::enlace(casa.en("hogar"), casa.fuera("ana"));
    EXPECT_EQ(validarCon(hogar, "~/a"),
              "rechaza El enlace apunta fuera de tu carpeta: " + casa.fuera("ana/a"));
    EXPECT_EQ(validarCon(hogar, "~/nada"), "acepta " + hogar + "/nada");
}

// What lies behind a closed door cannot be seen, and so cannot be moved either.
TEST_F(SeguridadHogar, whatMayNotBeLookedAtCountsAsAbsent)
{
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is closed to the superuser";
    HogarTemporal::enlace(casa.en("cerrada/enlace"), casa.fuera());
    std::filesystem::permissions(casa.en("cerrada"), std::filesystem::perms::none);
    EXPECT_EQ(seguridad.validar("~/cerrada/enlace"), casa.en("cerrada/enlace"));
    EXPECT_THROW(seguridad.validarDentroDeSeleccion(casa.en("cerrada/enlace"), casa.en("cerrada")),
                 std::system_error);
    std::filesystem::permissions(casa.en("cerrada"), std::filesystem::perms::owner_all);
}

TEST_F(SeguridadHogar, aThousandComponentsAreAccepted)
{
    EXPECT_EQ(seguridad.validar("~" + repetir("c", 1000)), casa.ruta() + repetir("c", 1000));
    construirHondo(casa.ruta(), "c", 1000, [](int) {});
    EXPECT_EQ(seguridad.validar("~" + repetir("c", 1000)), casa.ruta() + repetir("c", 1000));
}

TEST_F(SeguridadHogar, aNameTooLongForTheSystemCountsAsAbsent)
{
    const std::string largo(300, 'n');
    EXPECT_EQ(seguridad.validar("~/" + largo), casa.en(largo));
    const std::string enorme(1 << 20, 'n');
    EXPECT_EQ(seguridad.validar("~/" + enorme), casa.en(enorme));
}

TEST_F(SeguridadHogar, aLinkOutOfHomeIsFoundInAPathLongerThanTheSystemTakes)
{
    const std::string nombre(200, 'd');
    construirHondo(casa.ruta(), nombre, 30, [&](int carpeta) {
        ASSERT_EQ(::symlinkat(casa.fuera().c_str(), carpeta, "fuera"), 0);
        ASSERT_EQ(::symlinkat(casa.en("dentro").c_str(), carpeta, "dentro"), 0);
        ASSERT_EQ(::symlinkat("bucle", carpeta, "bucle"), 0);
        ASSERT_EQ(::symlinkat((repetir("..", 31).substr(1) + "/fuera/secreto").c_str(), carpeta, "subiendo"),
                  0);
    });
    HogarTemporal::archivo(casa.fuera("secreto"));
    HogarTemporal::archivo(casa.en("dentro/a"));
    const std::string hondo = casa.ruta() + repetir(nombre, 30);
    ASSERT_GT(hondo.size(), 4096U);
    const auto validar = [&](const std::string &ruta) {
        return respuesta([&] { return seguridad.validar(ruta); });
    };
    const auto fuera = "rechaza El enlace apunta fuera de tu carpeta: " + casa.fuera("secreto");
    EXPECT_EQ(validar(hondo + "/fuera/secreto"), fuera);
    EXPECT_EQ(validar(hondo + "/subiendo"), fuera);
    for (const std::string relativa : {"", "/dentro/a", "/bucle", "/bucle/a", "/nada", "/dentro/a/debajo"})
        EXPECT_EQ(validar(hondo + relativa), "acepta " + hondo + relativa);
}

TEST_F(SeguridadHogar, anItemInAChosenFolderIsJudgedAtAnyLength)
{
    const std::string nombre(200, 'd');
    construirHondo(casa.en("."), nombre, 30, [&](int carpeta) {
        ASSERT_EQ(::symlinkat("nada", carpeta, "enlace"), 0);
        ASSERT_EQ(::mkdirat(carpeta, "carpeta", 0700), 0);
    });
    const auto raiz = casa.en(nombre);
    const auto hondo = casa.ruta() + repetir(nombre, 30);
    const auto validar = [&](const std::string &ruta) {
        return respuesta([&] { return seguridad.validarDentroDeSeleccion(ruta, raiz); });
    };
    EXPECT_EQ(validar(hondo + "/carpeta"), "acepta " + hondo + "/carpeta");
    EXPECT_EQ(validar(hondo + "/enlace"), "rechaza No se opera sobre enlaces ni rutas protegidas.");
    EXPECT_EQ(validar(hondo + "/nada"), "error " + std::to_string(ENOENT));
}
