#include "tests/platform/ApoyoPapelera.h"

#include <sys/stat.h>

#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

class PapeleraConCarpetas : public ConPapelera
{
};

std::string momentoDe(const std::string &ruta)
{
    struct stat estado{};
    EXPECT_EQ(::lstat(ruta.c_str(), &estado), 0) << ruta;
    return std::to_string(estado.st_mtim.tv_sec);
}

} // namespace

TEST_F(PapeleraConCarpetas, aFolderMovesWithAllItHoldsAndItsSizeIsNoted)
{
    escribir(hogar + "/mi carpeta/a/b/c.bin", std::string(100'000, 'c'));
    fs::create_hard_link(hogar + "/mi carpeta/a/b/c.bin", hogar + "/mi carpeta/otro nombre");
    fs::create_symlink("/", hogar + "/mi carpeta/raíz");
    EXPECT_EQ(reciclar(hogar + "/mi carpeta"), "");
    EXPECT_EQ(leer(suya + "/files/mi carpeta/a/b/c.bin").size(), 100'000U);

    const std::string du = salidaDe({"du", "-s", "-B1", suya + "/files/mi carpeta"}, hogar);
    const std::string momento = momentoDe(suya + "/info/mi carpeta.trashinfo");
    EXPECT_EQ(leer(suya + "/directorysizes"),
              du.substr(0, du.find('\t')) + " " + momento + " mi%20carpeta\n");
}

TEST_F(PapeleraConCarpetas, theListOfFolderSizesKeepsTheOtherLines)
{
    escribir(suya + "/directorysizes", "5 6 otra\n7 8 nueva\n9 10 casi%20nueva");
    fs::create_directory(hogar + "/nueva");
    EXPECT_EQ(reciclar(hogar + "/nueva"), "");
    const std::string lista = leer(suya + "/directorysizes");
    EXPECT_TRUE(lista.starts_with("5 6 otra\n9 10 casi%20nueva\n")) << lista;
    EXPECT_EQ(lista.find("7 8"), std::string::npos);
    EXPECT_TRUE(lista.ends_with(" nueva\n"));
    EXPECT_EQ(nombresEn(suya).size(), 3U);
}

TEST_F(PapeleraConCarpetas, aListOfFolderSizesThatCannotBeKeptDoesNotKeepTheFolder)
{
    fs::create_directories(suya + "/directorysizes/ocupado");
    fs::create_directory(hogar + "/carpeta");
    EXPECT_EQ(reciclar(hogar + "/carpeta"), "");
    EXPECT_TRUE(fs::is_directory(suya + "/files/carpeta"));
    EXPECT_EQ(nombresEn(suya).size(), 3U);
}
