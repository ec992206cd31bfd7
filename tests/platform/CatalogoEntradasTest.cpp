#include "platform/linux/CatalogoEntradas.h"

#include "platform/linux/ProgramasConocidos.h"
#include "tests/HogarTemporal.h"
#include "tests/platform/ProcDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class CatalogoEntradasTest : public testing::Test
{
protected:
    HogarTemporal hogar;
    EntradasDePrueba entradas{hogar.fuera()};

    CatalogoEntradas catalogo() const
    {
        CatalogoEntradas leido{entradas.lugares()};
        leido.refrescar();
        return leido;
    }

    static std::string idDe(const EntradaRef &entrada) { return entrada ? entrada->id : "nada"; }
};

} // namespace

TEST_F(CatalogoEntradasTest, anEntryIsFoundByIdFileWindowAndProgram)
{
    const auto ruta =
        entradas.poner("org.x.Editor", "Editor", "/usr/lib/editor/editor %U", "StartupWMClass=Ed");
    const auto c = catalogo();
    EXPECT_EQ(idDe(c.porId("org.x.Editor")), "org.x.Editor");
    EXPECT_EQ(idDe(c.porRuta(ruta)), "org.x.Editor");
    EXPECT_EQ(idDe(c.porClaseVentana("ed")), "org.x.Editor");
    EXPECT_EQ(idDe(c.porClaseVentana("ORG.X.Editor")), "org.x.Editor");
    EXPECT_EQ(idDe(c.porPrograma("/usr/lib/editor/editor", "editor")), "org.x.Editor");
    EXPECT_EQ(idDe(c.porClaseVentana("")), "nada");
    EXPECT_EQ(idDe(c.porPrograma("/usr/bin/otro", "otro")), "nada");
}

TEST_F(CatalogoEntradasTest, aWindowNamedAfterItsProgramIsFoundToo)
{
    entradas.poner("org.x.Terminal", "Terminal", "x-terminal --nueva");
    EXPECT_EQ(idDe(catalogo().porClaseVentana("X-terminal")), "org.x.Terminal");
}

TEST_F(CatalogoEntradasTest, aSubfolderIsPartOfTheId)
{
    entradas.poner("kde/org.kde.x", "X", "x");
    EXPECT_EQ(idDe(catalogo().porId("kde-org.kde.x")), "kde-org.kde.x");
}

TEST_F(CatalogoEntradasTest, theFirstFolderWinsAndADeletedEntryHidesTheOthers)
{
    EntradasDePrueba otras{hogar.fuera("otras")};
    entradas.poner("a", "Mía", "a");
    entradas.poner("b", "B", "b", "Hidden=true");
    otras.poner("a", "De todos", "a");
    otras.poner("b", "De todos", "b");
    LugaresEntradas lugares = entradas.lugares();
    lugares.aplicaciones.push_back(otras.lugares().aplicaciones.front());
    CatalogoEntradas c{lugares};
    c.refrescar();
    EXPECT_EQ(c.porId("a")->entrada.nombre, "Mía");
    EXPECT_EQ(c.porId("b"), nullptr);
    EXPECT_EQ(c.porPrograma("/usr/bin/b", "b"), nullptr);
}

TEST_F(CatalogoEntradasTest, whatOnlyStartsWithTheSessionIsMarked)
{
    entradas.poner("nube", "Nube", "nube");
    entradas.poner("nube", "Nube", "nube", {}, "autostart");
    entradas.poner("agente", "Agente", "agente", {}, "autostart");
    EXPECT_FALSE(catalogo().porId("nube")->deInicio);
    EXPECT_TRUE(catalogo().porId("agente")->deInicio);
}

TEST_F(CatalogoEntradasTest, theProgramIsTheOneThatTheOrderReallyStarts)
{
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"env A=1 B=2 /usr/bin/prog --x", "prog"},
        {"python3 -u /usr/share/x/prog.py", "prog.py"},
        {"sh -c \"prog & otro\"", ""},
        {"flatpak run org.x.Y", ""},
        {"pkexec /usr/sbin/prog", ""},
        {"prog %U", "prog"},
    };
    for (std::size_t i = 0; i < casos.size(); ++i)
        entradas.poner("e" + std::to_string(i), "E", casos[i].first);
    const auto c = catalogo();
    for (std::size_t i = 0; i < casos.size(); ++i)
        EXPECT_EQ(c.porId("e" + std::to_string(i))->programa, casos[i].second) << casos[i].first;
}

TEST_F(CatalogoEntradasTest, aProgramIsKnownByTheFolderThatItHasToItself)
{
    HogarTemporal::archivo(hogar.fuera("opt/nav/lanzar"));
    HogarTemporal::enlace(hogar.fuera("bin/nav-estable"), hogar.fuera("opt/nav/lanzar"));
    entradas.poner("nav", "Navegador", "nav-estable %U");
    const auto c = catalogo();
    EXPECT_EQ(idDe(c.porPrograma(hogar.fuera("opt/nav/motor"), "motor")), "nav");
    EXPECT_EQ(idDe(c.porPrograma(hogar.fuera("opt/nav/lib/ayuda"), "ayuda")), "nav");
    EXPECT_EQ(idDe(c.porPrograma(hogar.fuera("opt/motor"), "motor")), "nada");
}

TEST_F(CatalogoEntradasTest, ofSeveralForOneProgramThePlainestThatShowsItselfIsMeant)
{
    entradas.poner("a-oculta", "Oculta", "oficina", "NoDisplay=true");
    entradas.poner("b-textos", "Textos", "oficina --textos %U");
    entradas.poner("c-oficina", "Oficina", "oficina %U");
    EXPECT_EQ(idDe(catalogo().porPrograma("/usr/bin/oficina", "oficina")), "c-oficina");
}

TEST_F(CatalogoEntradasTest, whatRunsInATerminalIsNotFoundByItsProgram)
{
    entradas.poner("htop", "Htop", "htop", "Terminal=true");
    EXPECT_EQ(idDe(catalogo().porPrograma("/usr/bin/htop", "htop")), "nada");
}

TEST_F(CatalogoEntradasTest, itIsReadAnewOnlyWhenAFolderChanged)
{
    CatalogoEntradas c{entradas.lugares()};
    EXPECT_TRUE(c.refrescar());
    EXPECT_FALSE(c.refrescar());
    entradas.poner("sub/nueva", "Nueva", "nueva");
    // The kernel's clock for files moves in steps.
    std::filesystem::last_write_time(hogar.fuera("applications"),
                                     std::filesystem::file_time_type::clock::now() + std::chrono::seconds{5});
    EXPECT_TRUE(c.refrescar());
    EXPECT_EQ(idDe(c.porId("sub-nueva")), "sub-nueva");
}

TEST_F(CatalogoEntradasTest, hostileEntriesDoNotKeepTheOthersFromBeingRead)
{
    entradas.poner("buena", "Buena", "buena");
    std::ofstream{hogar.fuera("applications/enorme.desktop")} << std::string(limiteEntrada + 1, 'x');
    HogarTemporal::enlace(hogar.fuera("applications/rota.desktop"), "/no/hay");
    HogarTemporal::enlace(hogar.fuera("applications/vuelta"), hogar.fuera("applications"));
    HogarTemporal::carpeta(hogar.fuera("applications/carpeta.desktop"));
    EXPECT_EQ(idDe(catalogo().porId("buena")), "buena");
}

TEST(ProgramasConocidos, onlyAFolderOfItsOwnIsAnInstallationFolder)
{
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"/opt/nav/nav", "/opt/nav"},
        {"/opt/ide/bin/ide", "/opt/ide"},
        {"/usr/lib/firefox-esr/firefox-esr", "/usr/lib/firefox-esr"},
        {"/usr/lib/libreoffice/program/soffice.bin", "/usr/lib/libreoffice"},
        {"/usr/bin/gedit", ""},
        {"/usr/libexec/x", ""},
        {"/usr/lib/x86_64-linux-gnu/x", ""},
        {"/usr/lib/x86_64-linux-gnu/webkit2gtk-4.0/W", "/usr/lib/x86_64-linux-gnu/webkit2gtk-4.0"},
        {"/opt/suelto", ""},
        {"/home/ana/juego", ""},
        {"/home/ana/Descargas/juego", ""},
        {"/home/ana/.local/bin/juego", ""},
        {"/home/ana/juegos/uno/juego", "/home/ana/juegos/uno"},
        {"/home/juego", ""},
        {"juego", ""},
        {"", ""},
    };
    for (const auto &[programa, carpeta] : casos)
        EXPECT_EQ(carpetaDeInstalacion(programa, "/home/ana"), carpeta) << programa;
}

TEST(ProgramasConocidos, thePartsOfASessionAreToldFromItsApplications)
{
    for (const char *nombre :
         {"gnome-shell", "Xorg", "Xwayland", "kwin_wayland", "plasmashell", "xfce4-panel", "sway",
          "dbus-daemon", "gsd-power", "pipewire-pulse", "wireplumber", "gvfsd-trash", "at-spi2-registryd",
          "xdg-desktop-portal-gtk", "polkit-kde-authentication-agent-1", "systemd", "openbox"})
        EXPECT_TRUE(esParteDeSesion(nombre)) << nombre;
    for (const char *nombre : {"plasma-systemmonitor", "gnome-calculator", "xfce4-terminal", "evolution",
                               "firefox", "konsole", "gnome-terminal-server", "soffice.bin", ""})
        EXPECT_FALSE(esParteDeSesion(nombre)) << nombre;
}

TEST(ProgramasConocidos, interpretersAreKnownInEveryVersion)
{
    for (const char *nombre : {"python3.11", "python", "perl5.36", "gjs-console", "bash", "node"})
        EXPECT_TRUE(esInterprete(nombre)) << nombre;
    for (const char *nombre : {"pythonista", "7z", "", "firefox"})
        EXPECT_FALSE(esInterprete(nombre)) << nombre;
}
