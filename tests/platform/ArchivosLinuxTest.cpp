#include "platform/linux/ArchivosLinux.h"
#include "tests/HogarTemporal.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

TEST(ArchivosLinux, aFolderWasMadeWhenItWasMadeWhateverChangesInItLater)
{
    const HogarTemporal casa;
    ArchivosLinux archivos;
    const std::string carpeta = HogarTemporal::carpeta(casa.en("dispositivo"));
    const auto creado = archivos.creado(carpeta);
    if (!creado) GTEST_SKIP() << "this file system keeps no birth times";
    const auto ahora = std::chrono::floor<Fecha::duration>(std::chrono::system_clock::now());
    EXPECT_LE(*creado, ahora);
    EXPECT_GT(*creado, ahora - std::chrono::hours{1});
    std::filesystem::last_write_time(carpeta, std::filesystem::file_time_type::min());
    EXPECT_EQ(archivos.creado(carpeta), creado);
}

TEST(ArchivosLinux, whatIsNotThereWasNeverMadeAndALinkIsNotFollowed)
{
    const HogarTemporal casa;
    ArchivosLinux archivos;
    EXPECT_EQ(archivos.creado(casa.en("nada")), std::nullopt);
    HogarTemporal::enlace(casa.en("roto"), casa.en("nada"));
    HogarTemporal::carpeta(casa.en("carpeta"));
    EXPECT_EQ(archivos.creado(casa.en("roto")).has_value(), archivos.creado(casa.en("carpeta")).has_value());
}
