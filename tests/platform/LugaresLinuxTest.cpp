#include "platform/linux/LugaresLinux.h"

#include "platform/linux/CarpetasXdg.h"
#include "tests/HogarTemporal.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

Lugares lugaresCon(std::optional<std::string> home)
{
    return lugaresLinux({std::move(home), std::nullopt, "/opt/ovanta/bin"});
}

std::string hogarDeLaBase()
{
    return std::filesystem::canonical(::getpwuid(::getuid())->pw_dir);
}

std::vector<std::string> carpetas(std::string_view userDirs)
{
    return carpetasDelUsuario(userDirs, "/home/ana");
}

} // namespace

TEST(LugaresLinux, homeIsWhatTheEnvironmentSays)
{
    const HogarTemporal hogar;
    EXPECT_EQ(lugaresCon(hogar.ruta()).hogar, hogar.ruta());
}

TEST(LugaresLinux, withoutAUsableHomeThePasswordDatabaseTells)
{
    for (const std::optional<std::string> &home :
         {std::optional<std::string>{}, {""}, {"relativa/casa"}, {"~"}})
        EXPECT_EQ(lugaresCon(home).hogar, hogarDeLaBase());
}

TEST(LugaresLinux, theTrashIsWhereTheEnvironmentPutsIt)
{
    const HogarTemporal hogar;
    const auto papelerasCon = [&](std::optional<std::string> datos) {
        return lugaresLinux({hogar.ruta(), {}, "/opt/ovanta/bin", {}, std::move(datos)}).papeleras;
    };
    EXPECT_THAT(papelerasCon({}), ElementsAre(hogar.en(".local/share/Trash")));
    EXPECT_THAT(papelerasCon("relativa"), ElementsAre(hogar.en(".local/share/Trash")));
    EXPECT_THAT(papelerasCon(hogar.en("datos/")), ElementsAre(hogar.en("datos/Trash")));
    HogarTemporal::carpeta(hogar.en("de verdad"));
    HogarTemporal::enlace(hogar.en("enlazados"), hogar.en("de verdad"));
    EXPECT_THAT(papelerasCon(hogar.en("enlazados")),
                ElementsAre(hogar.en("enlazados/Trash"), hogar.en("de verdad/Trash")));
    EXPECT_EQ(lugaresCon(hogar.ruta()).papeleraDeVolumen, ".Trash-" + std::to_string(::geteuid()));
}

TEST(LugaresLinux, slashesAtTheEndOfHomeAreDropped)
{
    const HogarTemporal hogar;
    EXPECT_EQ(lugaresCon(hogar.ruta() + "/").hogar, hogar.ruta());
    EXPECT_EQ(lugaresCon(hogar.ruta() + "///").hogar, hogar.ruta());
}

TEST(LugaresLinux, linksToHomeAreResolved)
{
    const HogarTemporal hogar;
    std::filesystem::create_directory_symlink(hogar.ruta(), hogar.fuera("enlace"));
    EXPECT_EQ(lugaresCon(hogar.fuera("enlace")).hogar, hogar.ruta());
    EXPECT_EQ(lugaresCon(hogar.fuera("enlace/")).hogar, hogar.ruta());
}

TEST(LugaresLinux, aHomeThatDoesNotExistIsTakenAsItsText)
{
    EXPECT_EQ(lugaresCon("/no/hay/tal/casa").hogar, "/no/hay/tal/casa");
    EXPECT_EQ(lugaresCon("/no/hay//tal/casa/").hogar, "/no/hay/tal/casa");
}

TEST(LugaresLinux, dataLiesBesideTheProgram)
{
    const Lugares lugares = lugaresCon("/casa");
    EXPECT_EQ(lugares.recursos, "/opt/ovanta/share/ovanta");
    EXPECT_EQ(lugares.catalogo, "/opt/ovanta/share/ovanta/linux/rules.json");
}

TEST(LugaresLinux, foldersOfTheSessionCountOnlyWhereTheyAreAbsolute)
{
    const EntornoLugares bueno{"/casa", "/conf", "/bin", "/run/user/7"};
    EXPECT_EQ(carpetaDeConfiguracion(bueno, "/casa"), "/conf");
    EXPECT_EQ(carpetaDeSesion(bueno, "/casa"), "/run/user/7");
    for (const std::optional<std::string> &malo : {std::optional<std::string>{}, {""}, {"relativa"}}) {
        EXPECT_EQ(carpetaDeConfiguracion({"/casa", malo, "/bin", malo}, "/casa"), "/casa/.config");
        EXPECT_EQ(carpetaDeSesion({"/casa", malo, "/bin", malo}, "/casa"), "/casa/.cache");
    }
}

TEST(LugaresLinux, theProcessFindsItsOwnFolder)
{
    const std::string programa = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(EntornoLugares::delProceso().carpetaPrograma, std::filesystem::path(programa).parent_path());
}

TEST(LugaresLinux, placesOfLinuxAndTheUsersFoldersAreProtected)
{
    const HogarTemporal hogar;
    std::filesystem::create_directory(hogar.en(".config"));
    std::ofstream{hogar.en(".config/user-dirs.dirs")} << "XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n"
                                                      << "XDG_DOWNLOAD_DIR=\"$HOME/Descargas\"\n";
    const auto protegidas = lugaresCon(hogar.ruta()).protegidas;
    for (const char *nombre : {".local", ".local/share", ".local/state", ".local/share/keyrings", ".var",
                               ".var/app", "snap", ".mozilla", ".thunderbird", ".password-store", ".kube",
                               ".docker", ".pki", ".bashrc", ".profile", "Documentos"})
        EXPECT_THAT(protegidas, Contains(nombre));
    EXPECT_THAT(protegidas, Not(Contains("Descargas")));
}

TEST(LugaresLinux, theUsersFoldersAreReadWhereTheConfigurationIs)
{
    const HogarTemporal hogar;
    std::ofstream{hogar.fuera("user-dirs.dirs")} << "XDG_MUSIC_DIR=\"$HOME/Musika\"\n";
    EXPECT_THAT(lugaresLinux({hogar.ruta(), hogar.fuera(), "/bin"}).protegidas, Contains("Musika"));
}

TEST(LugaresLinux, aHostileFolderFileIsPassedOver)
{
    const HogarTemporal hogar;
    const std::size_t sinCarpetas = lugaresCon(hogar.ruta()).protegidas.size();
    std::filesystem::create_directory(hogar.en(".config"));
    const std::string archivo = hogar.en(".config/user-dirs.dirs");

    ASSERT_EQ(::mkfifo(archivo.c_str(), 0600), 0);
    EXPECT_EQ(lugaresCon(hogar.ruta()).protegidas.size(), sinCarpetas);
    std::filesystem::remove(archivo);

    std::filesystem::create_directory(archivo);
    EXPECT_EQ(lugaresCon(hogar.ruta()).protegidas.size(), sinCarpetas);
    std::filesystem::remove(archivo);

    std::ofstream{archivo} << "XDG_MUSIC_DIR=\"$HOME/Musika\"\n" << std::string(1'000'000, '#');
    EXPECT_EQ(lugaresCon(hogar.ruta()).protegidas.size(), sinCarpetas) << "larger than any honest one";
}

TEST(CarpetasXdg, readsWhatTheDesktopWrites)
{
    EXPECT_THAT(carpetas("# This file is written by xdg-user-dirs-update\n"
                         "XDG_DESKTOP_DIR=\"$HOME/Escritorio\"\n"
                         "XDG_DOWNLOAD_DIR=\"$HOME/Descargas\"\n"
                         "XDG_TEMPLATES_DIR=\"$HOME/\"\n"
                         "XDG_PUBLICSHARE_DIR=\"$HOME\"\n"
                         "XDG_DOCUMENTS_DIR=\"$HOME/Mis datos/Documentos/\"\n"
                         "  XDG_MUSIC_DIR=\"/home/ana/M\\\"u\\\\sica\"  \n"
                         "XDG_PICTURES_DIR=\"/mnt/fotos\"\n"
                         "XDG_VIDEOS_DIR=\"$HOME/Escritorio\"\n"),
                ElementsAre("Escritorio", "Mis datos/Documentos", "M\"u\\sica"));
}

TEST(CarpetasXdg, whatIsNotUnderstoodNamesNothing)
{
    using namespace std::literals;
    for (const std::string_view texto :
         {""sv, "\n\n"sv, "XDG_MUSIC_DIR"sv, "XDG_MUSIC_DIR="sv, "XDG_MUSIC_DIR=\""sv, "XDG_MUSIC_DIR=\"\""sv,
          "XDG_MUSIC_DIR=$HOME/Musika"sv, "XDG_MUSIC_DIR=\"Musika\""sv, "XDG_MUSIC_DIR=\"$HOMEX/Musika\""sv,
          "XDG_MUSIC_DIR=\"$HOME/Musika\\\""sv, "XDG_MUSIC_DIR=\"$HOME/Mu\"sika\""sv,
          "XDG_MUSIC_DIR=\"$HOME/Mu\0sika\""sv, "XDG_MUSIC_DIR=\"$HOME/../otra\""sv, "XDG_MUSIC_DIR=\"/\""sv,
          "XDG_MUSIC_DIR=\"$HOME/a/..\""sv, "XDG_MUSIC_DIR=\"/home/anabel/x\""sv,
          "MUSIC_DIR=\"$HOME/Musika\""sv, "XDG_MUSIC=\"$HOME/Musika\""sv, "\xff\xfe\0\x01=\"\""sv})
        EXPECT_THAT(carpetas(texto), IsEmpty()) << texto;
}
