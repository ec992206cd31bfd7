#include "tests/platform/ApoyoPapelera.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <filesystem>
#include <set>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

class PapeleraDeCasa : public ConPapelera
{
};

struct stat estado(const std::string &ruta)
{
    struct stat e{};
    EXPECT_EQ(::lstat(ruta.c_str(), &e), 0) << ruta;
    return e;
}

/// From now on the kernel answers openat2 as an old one, or a strict container, does.
bool prohibirOpenat2(int codigo)
{
    sock_filter filtro[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(codigo)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog programa{.len = std::size(filtro), .filter = filtro};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &programa) == 0;
}

} // namespace

TEST_F(PapeleraDeCasa, aFileMovesWholeAndItsOriginIsRemembered)
{
    escribir(hogar + "/doc/carta.txt", "querida Ana");
    const struct stat antes = estado(hogar + "/doc/carta.txt");
    EXPECT_EQ(reciclar(hogar + "/doc/carta.txt"), "");

    EXPECT_FALSE(hay(hogar + "/doc/carta.txt"));
    EXPECT_EQ(leer(suya + "/files/carta.txt"), "querida Ana");
    EXPECT_EQ(leer(suya + "/info/carta.txt.trashinfo"),
              "[Trash Info]\nPath=" + hogar + "/doc/carta.txt\nDeletionDate=2026-11-21T05:18:36\n");
    const struct stat despues = estado(suya + "/files/carta.txt");
    EXPECT_EQ(despues.st_ino, antes.st_ino);
    EXPECT_EQ(despues.st_mode, antes.st_mode);
    EXPECT_EQ(despues.st_mtim.tv_nsec, antes.st_mtim.tv_nsec);
}

TEST_F(PapeleraDeCasa, theTrashIsMadeForItsOwnerOnly)
{
    escribir(hogar + "/x");
    EXPECT_EQ(reciclar(hogar + "/x"), "");
    for (const char *carpeta : {"/.local", "/.local/share", "/.local/share/Trash",
                                "/.local/share/Trash/files", "/.local/share/Trash/info"})
        EXPECT_EQ(estado(hogar + carpeta).st_mode & 07777, 0700U) << carpeta;
    EXPECT_EQ(estado(suya + "/info/x.trashinfo").st_mode & 07777, 0600U);
}

TEST_F(PapeleraDeCasa, xdgDataHomeCountsOnlyWhereItIsAbsolute)
{
    const auto con = [&](const std::string &datos) {
        escribir(hogar + "/x");
        PapeleraLinux papelera({.lugar = {.hogar = hogar, .datos = datos}, .ahora = [] { return Fecha{}; }});
        return papelera.reciclar(*papelera.medir(hogar + "/x")).has_value();
    };
    EXPECT_TRUE(con(base + "/datos/de/ana"));
    EXPECT_TRUE(hay(base + "/datos/de/ana/Trash/files/x"));
    EXPECT_TRUE(con("relativa"));
    EXPECT_TRUE(hay(suya + "/files/x"));
}

TEST_F(PapeleraDeCasa, itemsOfOneNameAreNumberedAndNoneIsOverwritten)
{
    for (const char *texto : {"uno", "dos", "tres"}) {
        escribir(hogar + "/x", texto);
        EXPECT_EQ(reciclar(hogar + "/x"), "");
    }
    EXPECT_EQ(leer(suya + "/files/x"), "uno");
    EXPECT_EQ(leer(suya + "/files/x.2"), "dos");
    EXPECT_EQ(leer(suya + "/files/x.3"), "tres");
    EXPECT_EQ(contenidoDe(suya).objetos.size(), 3U);
}

TEST_F(PapeleraDeCasa, aFileWithoutInfoInTheTrashIsNotOverwrittenEither)
{
    escribir(suya + "/files/x", "ajeno");
    escribir(hogar + "/x", "mío");
    EXPECT_EQ(reciclar(hogar + "/x"), "");
    EXPECT_EQ(leer(suya + "/files/x"), "ajeno");
    EXPECT_EQ(leer(suya + "/files/x.2"), "mío");
    EXPECT_TRUE(contenidoDe(suya).infosSueltas.empty());
}

TEST_F(PapeleraDeCasa, anInfoFileWithoutItemKeepsItsName)
{
    escribir(suya + "/info/x.trashinfo", "de otro programa");
    escribir(hogar + "/x");
    EXPECT_EQ(reciclar(hogar + "/x"), "");
    EXPECT_EQ(leer(suya + "/info/x.trashinfo"), "de otro programa");
    EXPECT_TRUE(hay(suya + "/files/x.2"));
}

TEST_F(PapeleraDeCasa, namesWithNewlinesAndBrokenUtf8KeepTheirBytes)
{
    const std::vector<std::string> nombres{"dos\nlíneas", "roto\xff\xfe",         " ",  "%41",
                                           "-rf",         "[Trash Info]\nPath=x", "..."};
    for (const std::string &nombre : nombres) {
        escribir(hogar + "/" + nombre, nombre);
        EXPECT_EQ(reciclar(hogar + "/" + nombre), "") << nombre;
        const auto contenido = contenidoDe(suya);
        ASSERT_TRUE(contenido.objetos.contains(nombre)) << nombre;
        EXPECT_EQ(contenido.objetos.at(nombre).ruta, hogar + "/" + nombre);
        EXPECT_EQ(leer(suya + "/files/" + nombre), nombre);
    }
}

TEST_F(PapeleraDeCasa, namesOf255BytesAreShortenedInTheTrashButNotInTheirOrigin)
{
    const std::string largo = hogar + "/" + std::string(253, 'a') + "ñ";
    for (int i = 0; i < 3; ++i) {
        escribir(largo, std::to_string(i));
        EXPECT_EQ(reciclar(largo), "");
    }
    const auto contenido = contenidoDe(suya);
    EXPECT_EQ(contenido.objetos.size(), 3U);
    EXPECT_TRUE(contenido.sinInfo.empty());
    for (const auto &[nombre, info] : contenido.objetos)
        EXPECT_EQ(info.ruta, largo);
    EXPECT_EQ(leer(suya + "/files/" + std::string(245, 'a')), "0");
}

TEST_F(PapeleraDeCasa, anItemTooDeepForTheSystemsCallsMoves)
{
    const std::string raiz = hogar + "/hondo", tramo(200, 'h');
    fs::create_directory(raiz);
    const fs::path antes = fs::current_path();
    fs::current_path(raiz);
    std::string ruta = raiz;
    for (int i = 0; i < 30; ++i) {
        fs::create_directory(tramo);
        fs::current_path(tramo);
        ruta += "/" + tramo;
    }
    escribir("./x", "hondo");
    fs::current_path(antes);
    EXPECT_EQ(reciclar(ruta + "/x"), "");
    EXPECT_EQ(leer(suya + "/files/x"), "hondo");
    EXPECT_EQ(contenidoDe(suya).objetos.at("x").ruta, ruta + "/x");
    EXPECT_TRUE(hacer().contiene(ruta + "/x", ahora));
}

TEST_F(PapeleraDeCasa, aLinkMovesItselfAndWhatItNamesStays)
{
    escribir(hogar + "/real/x", "intacto");
    fs::create_symlink(hogar + "/real/x", hogar + "/a_archivo");
    fs::create_symlink(hogar + "/real", hogar + "/a_carpeta");
    fs::create_symlink("/no/existe", hogar + "/colgado");
    for (const char *enlace : {"a_archivo", "a_carpeta", "colgado"}) {
        EXPECT_EQ(reciclar(hogar + "/" + enlace), "");
        EXPECT_FALSE(hay(hogar + "/" + enlace));
        EXPECT_TRUE(fs::is_symlink(suya + "/files/" + enlace));
    }
    EXPECT_EQ(leer(hogar + "/real/x"), "intacto");
}

TEST_F(PapeleraDeCasa, aFolderReachedThroughALinkIsRememberedWhereItReallyLies)
{
    escribir(hogar + "/real/x");
    fs::create_directory_symlink("real", hogar + "/enlace");
    EXPECT_EQ(reciclar(hogar + "/enlace/x"), "");
    EXPECT_EQ(contenidoDe(suya).objetos.at("x").ruta, hogar + "/real/x");
    EXPECT_TRUE(hacer().contiene(hogar + "/enlace/x", ahora));
}

TEST_F(PapeleraDeCasa, pipesAndSocketsMoveWithoutBeingOpened)
{
    ASSERT_EQ(::mkfifo((hogar + "/tubo").c_str(), 0600), 0);
    const int enchufe = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un direccion{.sun_family = AF_UNIX, .sun_path = {}};
    std::strncpy(direccion.sun_path, (hogar + "/enchufe").c_str(), sizeof direccion.sun_path - 1);
    ASSERT_EQ(::bind(enchufe, reinterpret_cast<sockaddr *>(&direccion), sizeof direccion), 0);
    ::close(enchufe);
    EXPECT_EQ(reciclar(hogar + "/tubo"), "");
    EXPECT_EQ(reciclar(hogar + "/enchufe"), "");
    EXPECT_TRUE(S_ISFIFO(estado(suya + "/files/tubo").st_mode));
    EXPECT_TRUE(S_ISSOCK(estado(suya + "/files/enchufe").st_mode));
}

TEST_F(PapeleraDeCasa, tenThousandItemsOfOneNameAllArrive)
{
    PapeleraLinux papelera = hacer();
    for (int i = 0; i < 10'000; ++i) {
        escribir(hogar + "/x", std::to_string(i));
        ASSERT_TRUE(papelera.reciclar(*papelera.medir(hogar + "/x")));
    }
    const auto contenido = contenidoDe(suya);
    EXPECT_EQ(contenido.objetos.size(), 10'000U);
    EXPECT_TRUE(contenido.sinInfo.empty());
    EXPECT_EQ(leer(suya + "/files/x.10000"), "9999");
}

TEST_F(PapeleraDeCasa, threadsThatMoveItemsOfOneNameGetANameEach)
{
    constexpr int cuantosHilos = 4, cadaUno = 100;
    PapeleraLinux papelera = hacer();
    {
        std::vector<std::jthread> hilos;
        for (int hilo = 0; hilo < cuantosHilos; ++hilo) {
            hilos.emplace_back([&, hilo] {
                for (int i = 0; i < cadaUno; ++i) {
                    const std::string ruta = hogar + "/" + std::to_string(hilo) + "/x";
                    escribir(ruta, std::to_string(hilo * cadaUno + i));
                    const auto medida = papelera.medir(ruta);
                    EXPECT_TRUE(medida && papelera.reciclar(*medida));
                }
            });
        }
    }
    std::set<std::string> textos;
    const auto contenido = contenidoDe(suya);
    for (const auto &[nombre, info] : contenido.objetos)
        textos.insert(leer(suya + "/files/" + nombre));
    EXPECT_EQ(textos.size(), static_cast<size_t>(cuantosHilos * cadaUno));
    EXPECT_TRUE(contenido.sinInfo.empty() && contenido.infosSueltas.empty());
}

TEST_F(PapeleraDeCasa, whatCannotBeNamedIsRefused)
{
    fs::create_directory(hogar + "/carpeta");
    for (const std::string &ruta :
         {std::string(), std::string("/"), std::string("relativa"), hogar + "/", hogar + "/carpeta/",
          hogar + "/carpeta/.", hogar + "/carpeta/..", hogar + std::string("/a\0b", 4)}) {
        const auto medida = hacer().medir(ruta);
        ASSERT_FALSE(medida) << ruta;
        EXPECT_EQ(medida.error(), "esa ruta no se puede mover a la Papelera");
    }
    EXPECT_FALSE(hacer().medir(hogar + "/no está"));
    EXPECT_FALSE(hacer().medir(hogar + "/ni/su/carpeta"));
    EXPECT_FALSE(hay(hogar + "/.local"));
}

TEST_F(PapeleraDeCasa, theTrashWhatHoldsItAndWhatIsInItStay)
{
    escribir(hogar + "/x");
    ASSERT_EQ(reciclar(hogar + "/x"), "");
    for (const std::string &ruta : {hogar, hogar + "/.local", hogar + "/.local/share", suya, suya + "/files",
                                    suya + "/info", suya + "/files/x"}) {
        EXPECT_EQ(reciclar(ruta), "la Papelera no se puede mover a la Papelera") << ruta;
        EXPECT_TRUE(hay(ruta)) << ruta;
    }
    EXPECT_TRUE(contenidoDe(suya).infosSueltas.empty());
    fs::create_directory(hogar + "/.local/share/Trash de antes");
    EXPECT_EQ(reciclar(hogar + "/.local/share/Trash de antes"), "");
}

TEST_F(PapeleraDeCasa, movesAndRefusesLinksAlsoWhereTheKernelLacksOpenat2)
{
    escribir(hogar + "/real/x", "x");
    fs::create_directory_symlink("real", hogar + "/enlace");
    for (const int codigo : {ENOSYS, EPERM}) {
        const auto fin = enHijo([&]() -> std::string {
            if (!prohibirOpenat2(codigo)) return "no seccomp";
            escribir(hogar + "/real/x", "x");
            PapeleraLinux papelera = hacer();
            auto medida = papelera.medir(hogar + "/enlace/x");
            if (!medida) return medida.error();
            const std::string real = std::exchange(medida->carpetaReal, hogar + "/enlace");
            if (papelera.reciclar(*medida)) return "went through a link";
            medida->carpetaReal = real;
            const auto movido = papelera.reciclar(*medida);
            return movido ? "" : movido.error();
        });
        EXPECT_EQ(fin.queja, "");
    }
    EXPECT_EQ(contenidoDe(suya).objetos.size(), 2U);
}
