#include "ApoyoEjecutar.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

const std::string programa = "#!/bin/sh\n";

/// A name that no system folder holds.
const std::string nombre = "ovanta-herramienta-de-prueba";

} // namespace

TEST(BuscarBinario, aToolOfTheSystemIsFoundInItsFolder)
{
    EXPECT_EQ(buscarBinario("sh", "/no/hay"), "/usr/bin/sh");
}

TEST(BuscarBinario, theFolderOfVersionsIsItselfLookedInFirst)
{
    const CarpetaTemporal hogar;
    hogar.crear(".nvm/versions/node/v20/bin/" + nombre, programa, 0755);
    const std::string directo = hogar.crear(".nvm/versions/node/" + nombre, programa, 0755);
    EXPECT_EQ(buscarBinario(nombre, hogar.ruta("")), directo);
}

TEST(BuscarBinario, versionNineComesBeforeVersionTwenty)
{
    const CarpetaTemporal hogar;
    hogar.crear(".nvm/versions/node/v20.1.0/bin/" + nombre, programa, 0755);
    hogar.crear(".nvm/versions/node/v18.0.0/bin/" + nombre, programa, 0755);
    const std::string nueve = hogar.crear(".nvm/versions/node/v9.0.0/bin/" + nombre, programa, 0755);
    EXPECT_EQ(buscarBinario(nombre, hogar.ruta("")), nueve);
}

TEST(BuscarBinario, aVersionWithoutTheToolIsPassedOver)
{
    const CarpetaTemporal hogar;
    hogar.crear(".nvm/versions/node/v9.0.0/bin/otra", programa, 0755);
    hogar.crear(".nvm/versions/node/v8.0.0/bin/" + nombre, programa, 0644);
    std::filesystem::create_directories(hogar.ruta(".nvm/versions/node/v7.0.0/bin/" + nombre));
    const std::string buena = hogar.crear(".nvm/versions/node/v20.1.0/bin/" + nombre, programa, 0755);
    EXPECT_EQ(buscarBinario(nombre, hogar.ruta("")), buena);
}

TEST(BuscarBinario, nothingIsFoundWhereThereIsNoSuchToolOrNoFolderOfVersions)
{
    const CarpetaTemporal hogar;
    EXPECT_EQ(buscarBinario(nombre, hogar.ruta("")), std::nullopt);
    hogar.crear(".nvm/versions/node", "un archivo, no una carpeta", 0755);
    EXPECT_EQ(buscarBinario(nombre, hogar.ruta("")), std::nullopt);
}

TEST(BuscarBinario, anEmptyNameOrOneWithANulFindsNothing)
{
    EXPECT_EQ(buscarBinario("", "/no/hay"), std::nullopt);
    EXPECT_EQ(buscarBinario(std::string_view("sh\0x", 4), "/no/hay"), std::nullopt);
}
