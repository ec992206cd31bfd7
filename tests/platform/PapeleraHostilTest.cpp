#include "core/Descriptor.h"
#include "core/EscrituraAtomica.h"
#include "tests/platform/ApoyoPapelera.h"

#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <set>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr int intentos = 10'000;
#else
constexpr int intentos = 100'000;
#endif
constexpr int revisarCada = 2'000;

/// Temporary folders in memory for one test: on a disk its journal would be what is measured.
class EnMemoria
{
protected:
    EnMemoria()
    {
        if (::access("/dev/shm", W_OK) == 0) ::setenv("TMPDIR", "/dev/shm", 1);
    }
    ~EnMemoria() { ::setenv("TMPDIR", m_antes.c_str(), 1); }

private:
    std::string m_antes = fs::temp_directory_path();
};

/// Another process of the user keeps swapping everything on the way to home/a/b/x while it is moved.
class PapeleraAtacada : EnMemoria, public ConPapelera
{
protected:
    PapeleraAtacada()
    {
        escribir(hogar + "/a/b/señuelo", "señuelo");
        fs::create_symlink(base + "/fuera/b/x", hogar + "/a/b/enlace");
        escribir(base + "/fuera/b/x", "ajeno");
        escribir(base + "/fuera/x", "ajeno");
        m_creados = {"señuelo", base + "/fuera/b/x"};
        fs::create_directory_symlink(base + "/fuera", hogar + "/a_fuera");
        fs::create_directory_symlink(base + "/fuera", hogar + "/a/b_fuera");
        m_carpeta = Descriptor(::open((hogar + "/a/b").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        m_alrededor = Descriptor(::open((hogar + "/a").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        m_fuera = arbolDeFuera();
    }

    [[noreturn]] void atacar() const
    {
        const Descriptor casa(::open(hogar.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        const auto intercambiar = [](int carpeta, const char *uno, const char *otro) {
            ::renameat2(carpeta, uno, carpeta, otro, RENAME_EXCHANGE);
        };
        for (;;) {
            intercambiar(casa.numero(), "a", "a_fuera");
            intercambiar(casa.numero(), "a", "a_fuera");
            intercambiar(m_alrededor.numero(), "b", "b_fuera");
            intercambiar(m_alrededor.numero(), "b", "b_fuera");
            intercambiar(m_carpeta.numero(), "x", "señuelo");
            intercambiar(m_carpeta.numero(), "x", "enlace");
            intercambiar(m_carpeta.numero(), "x", "enlace");
            ::usleep(20);
        }
    }

    /// Puts a new item where it will be moved from, if nothing lies there: a file with a text of its
    /// own, or now and then a link to the outside.
    void reponer()
    {
        if (::faccessat(m_carpeta.numero(), "x", F_OK, AT_SYMLINK_NOFOLLOW) == 0) return;
        const bool enlace = m_creados.size() % 8 == 7;
        const std::string texto = enlace ? base + "/fuera/b/x" : std::to_string(m_creados.size());
        ::unlinkat(m_carpeta.numero(), "nuevo", 0);
        if (enlace) {
            ASSERT_EQ(::symlinkat(texto.c_str(), m_carpeta.numero(), "nuevo"), 0);
        } else {
            const Descriptor nuevo(
                ::openat(m_carpeta.numero(), "nuevo", O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
            ASSERT_TRUE(nuevo.abierto());
            ASSERT_EQ(escribirTodo(nuevo.numero(), texto), 0);
        }
        if (::renameat2(m_carpeta.numero(), "nuevo", m_carpeta.numero(), "x", RENAME_NOREPLACE) == 0)
            m_creados.insert(texto);
    }

    /// What `Cleaner` does with a path: measure, check where that really is, move.
    bool intentar(PapeleraLinux &papelera) const
    {
        const auto medida = papelera.medir(hogar + "/a/b/x");
        if (!medida || !medida->rutaReal().starts_with(hogar + "/")) return false;
        return papelera.reciclar(*medida).has_value();
    }

    /// Every item moved so far is in the Trash once, with its origin; then takes them out.
    void revisarYVaciar()
    {
        const auto contenido = contenidoDe(suya);
        EXPECT_TRUE(contenido.sinInfo.empty());
        EXPECT_TRUE(contenido.infosSueltas.empty());
        for (const auto &[nombre, info] : contenido.objetos) {
            EXPECT_EQ(info.ruta, hogar + "/a/b/x");
            encontrar(suya + "/files/" + nombre);
        }
        fs::remove_all(suya + "/files");
        fs::remove_all(suya + "/info");
    }

    void encontrar(const std::string &ruta)
    {
        m_encontrados.insert(fs::is_symlink(ruta) ? fs::read_symlink(ruta).string() : leer(ruta));
    }

    /// Paths, inodes and texts of all that lies outside home.
    std::set<std::string> arbolDeFuera() const
    {
        std::set<std::string> arbol;
        for (const auto &entrada : fs::recursive_directory_iterator(base + "/fuera")) {
            struct stat estado{};
            ::lstat(entrada.path().c_str(), &estado);
            arbol.insert(entrada.path().string() + " " + std::to_string(estado.st_ino) + " " +
                         std::to_string(estado.st_ctim.tv_nsec) + " " +
                         (entrada.is_directory() ? "" : leer(entrada.path())));
        }
        return arbol;
    }

    Descriptor m_carpeta;                     ///< the real home/a/b, wherever it is called
    Descriptor m_alrededor;                   ///< the real home/a
    std::multiset<std::string> m_creados;     ///< texts of all items, of a link its target
    std::multiset<std::string> m_encontrados; ///< those that were found again
    std::set<std::string> m_fuera;
};

} // namespace

TEST_F(PapeleraAtacada, nothingOutsideHomeMovesAndNothingIsLost)
{
    const pid_t atacante = ::fork();
    if (atacante == 0) atacar();
    PapeleraLinux papelera = hacer();
    int movidos = 0;
    for (int i = 1; i <= intentos && !HasFatalFailure(); ++i) {
        reponer();
        if (intentar(papelera)) ++movidos;
        if (i % revisarCada == 0) revisarYVaciar();
    }
    ::kill(atacante, SIGKILL);
    ::waitpid(atacante, nullptr, 0);
    revisarYVaciar();

    const std::string carpeta = "/proc/self/fd/" + std::to_string(m_carpeta.numero());
    for (const std::string &nombre : nombresEn(carpeta)) {
        if (nombre != "nuevo" && nombre != "b_fuera") encontrar(carpeta + "/" + nombre);
    }
    EXPECT_EQ(m_encontrados, m_creados);
    EXPECT_EQ(arbolDeFuera(), m_fuera);
    EXPECT_GT(movidos, intentos / 1000) << "the attack leaves nothing to be tested";
    EXPECT_LT(movidos, intentos) << "the attack never struck";
    RecordProperty("movidos", movidos);
}
