#include "tests/platform/ApoyoPapelera.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

/// The Trash is shared with other programs: they find what we moved, and we what they moved.
class PapeleraConOtrosProgramas : public ConPapelera
{
protected:
    std::string restaurar(const std::string &ruta) const
    {
        return salidaDe({"trash-restore", ruta}, hogar, "0\n");
    }
};

/// Everything of a file that a restoration has to bring back.
struct Rastro
{
    std::string texto;
    mode_t modo = 0;
    long segundos = 0, nanos = 0;

    bool operator==(const Rastro &) const = default;
};

Rastro rastroDe(const std::string &ruta)
{
    struct stat estado{};
    EXPECT_EQ(::lstat(ruta.c_str(), &estado), 0) << ruta;
    return {leer(ruta), estado.st_mode, estado.st_mtim.tv_sec, estado.st_mtim.tv_nsec};
}

} // namespace

TEST_F(PapeleraConOtrosProgramas, trashCliListsWhatWeMoved)
{
    escribir(hogar + "/una carta.txt");
    escribir(hogar + "/año/x");
    ASSERT_EQ(reciclar(hogar + "/una carta.txt"), "");
    ASSERT_EQ(reciclar(hogar + "/año"), "");
    const std::string lista = salidaDe({"trash-list"}, hogar);
    EXPECT_NE(lista.find("2026-11-21 05:18:36 " + hogar + "/una carta.txt\n"), std::string::npos) << lista;
    EXPECT_NE(lista.find("2026-11-21 05:18:36 " + hogar + "/año\n"), std::string::npos) << lista;
}

TEST_F(PapeleraConOtrosProgramas, trashCliBringsBackBytesModeAndTimes)
{
    for (const std::string nombre : {"sencillo", "con espacios y ñ", "con\nsalto", "%41%"}) {
        const std::string ruta = hogar + "/" + nombre;
        escribir(ruta, "bytes\1\xff" + nombre);
        ASSERT_EQ(::chmod(ruta.c_str(), 0751), 0);
        const timespec momentos[] = {{.tv_sec = 1'000'000'000, .tv_nsec = 7},
                                     {.tv_sec = 1'234'567'890, .tv_nsec = 123'456'789}};
        ASSERT_EQ(::utimensat(AT_FDCWD, ruta.c_str(), momentos, 0), 0);
        const Rastro antes = rastroDe(ruta);
        ASSERT_EQ(reciclar(ruta), "");
        const std::string salida = restaurar(ruta);
        ASSERT_TRUE(hay(ruta)) << salida;
        EXPECT_EQ(rastroDe(ruta), antes);
    }
    EXPECT_TRUE(nombresEn(suya + "/files").empty());
    EXPECT_TRUE(nombresEn(suya + "/info").empty());
}

TEST_F(PapeleraConOtrosProgramas, trashCliBringsBackAFolderAndANameTooLongForTheTrash)
{
    const std::string largo = hogar + "/" + std::string(255, 'n');
    escribir(largo, "largo");
    escribir(hogar + "/carpeta/a/b", "dentro");
    ASSERT_EQ(reciclar(largo), "");
    ASSERT_EQ(reciclar(hogar + "/carpeta"), "");
    restaurar(largo);
    restaurar(hogar + "/carpeta");
    EXPECT_EQ(leer(largo), "largo");
    EXPECT_EQ(leer(hogar + "/carpeta/a/b"), "dentro");
}

TEST_F(PapeleraConOtrosProgramas, ourInfoFilesSayTheSameAsThoseOfGio)
{
    for (const std::string nombre :
         {"sencillo", "con espacios y ñ", "con\nsalto", "roto\xff", "a%41&b;c=d"}) {
        const std::string ruta = hogar + "/" + nombre;
        escribir(ruta);
        ASSERT_EQ(reciclar(ruta), "");
        escribir(ruta);
        const std::string salida = salidaDe({"gio", "trash", ruta}, hogar);
        ASSERT_FALSE(hay(ruta)) << salida;
    }
    const auto contenido = contenidoDe(suya);
    EXPECT_EQ(contenido.objetos.size(), 10U);
    EXPECT_TRUE(contenido.sinInfo.empty());
    std::map<std::string, int> veces;
    for (const auto &[nombre, info] : contenido.objetos)
        ++veces[info.ruta];
    EXPECT_EQ(veces.size(), 5U);
    for (const auto &[ruta, cuantas] : veces)
        EXPECT_EQ(cuantas, 2) << ruta;
}

TEST_F(PapeleraConOtrosProgramas, weFindWhatTheyMoved)
{
    escribir(hogar + "/de gio");
    escribir(hogar + "/de trash-put");
    salidaDe({"gio", "trash", hogar + "/de gio"}, hogar);
    salidaDe({"trash-put", hogar + "/de trash-put"}, hogar);
    EXPECT_TRUE(hacer().contiene(hogar + "/de gio", Fecha{}));
    EXPECT_TRUE(hacer().contiene(hogar + "/de trash-put", Fecha{}));
}
