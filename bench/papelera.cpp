#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "platform/linux/PapeleraLinux.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace ovanta {
namespace {

namespace fs = std::filesystem;
using Cronometro = std::chrono::steady_clock;

constexpr int rondas = 5;

/// A fresh home with `cuantos` small files, each of a name of its own.
class Casa
{
public:
    explicit Casa(int cuantos)
    {
        std::string plantilla = fs::temp_directory_path() / "ovanta-banco.XXXXXX";
        if (::mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("no hay carpeta temporal");
        m_ruta = fs::canonical(plantilla);
        fs::create_directory(m_ruta / "doc");
        for (int i = 0; i < cuantos; ++i) {
            m_archivos.push_back(m_ruta / "doc" / ("archivo " + std::to_string(i) + ".txt"));
            std::ofstream(m_archivos.back()) << "contenido " << i;
        }
    }
    Casa(const Casa &) = delete;
    Casa &operator=(const Casa &) = delete;
    ~Casa()
    {
        std::error_code ignorado;
        fs::remove_all(m_ruta, ignorado);
    }

    std::string ruta() const { return m_ruta; }
    const std::vector<std::string> &archivos() const { return m_archivos; }
    /// Throws unless every file lies in the Trash with its info.
    void exigirMovidos() const
    {
        for (const char *carpeta : {"files", "info"}) {
            const fs::directory_iterator entradas(m_ruta / ".local/share/Trash" / carpeta);
            if (std::distance(entradas, {}) != std::ssize(m_archivos))
                throw std::runtime_error("no se movieron todos los archivos");
        }
    }

private:
    fs::path m_ruta;
    std::vector<std::string> m_archivos;
};

void moverConLaNuestra(const Casa &casa)
{
    PapeleraLinux papelera({.lugar = {.hogar = casa.ruta(), .datos = {}}, .ahora = [] {
                                return std::chrono::floor<Fecha::duration>(std::chrono::system_clock::now());
                            }});
    for (const std::string &archivo : casa.archivos()) {
        const auto medida = papelera.medir(archivo);
        if (!medida || !papelera.reciclar(*medida)) throw std::runtime_error("no se pudo mover " + archivo);
    }
}

/// Runs a program in that home and waits for it.
void lanzar(std::vector<std::string> orden, const Casa &casa)
{
    std::string hogar = "HOME=" + casa.ruta();
    std::string datos = "XDG_DATA_HOME=" + casa.ruta() + "/.local/share";
    std::string camino = std::string("PATH=") + std::getenv("PATH");
    char *entorno[] = {hogar.data(), datos.data(), camino.data(), nullptr};
    std::vector<char *> argumentos;
    for (std::string &argumento : orden)
        argumentos.push_back(argumento.data());
    argumentos.push_back(nullptr);
    pid_t pid = 0;
    int estado = 0;
    if (::posix_spawnp(&pid, argumentos[0], nullptr, nullptr, argumentos.data(), entorno) != 0 ||
        ::waitpid(pid, &estado, 0) != pid || estado != 0)
        throw std::runtime_error("falló " + orden.front());
}

/// One process for as many files as the system lets it take.
void moverConPrograma(const std::vector<std::string> &programa, const Casa &casa)
{
    const std::size_t limite = static_cast<std::size_t>(::sysconf(_SC_ARG_MAX)) / 2;
    auto orden = programa;
    std::size_t bytes = 0;
    for (const std::string &archivo : casa.archivos()) {
        constexpr std::size_t puntero = sizeof(char *);
        if (bytes + archivo.size() + 1 + puntero > limite) {
            lanzar(std::exchange(orden, programa), casa);
            bytes = 0;
        }
        orden.push_back(archivo);
        bytes += archivo.size() + 1 + puntero;
    }
    lanzar(orden, casa);
}

template <typename Mover>
double microsegundosPorArchivo(int cuantos, Mover mover)
{
    const Casa casa(cuantos);
    const auto desde = Cronometro::now();
    mover(casa);
    const std::chrono::duration<double, std::micro> duracion = Cronometro::now() - desde;
    casa.exigirMovidos();
    return duracion.count() / cuantos;
}

} // namespace

/// `papelera [files]`: moving small files to the Trash, each measured and moved by itself as the
/// cleaner does, against `gio trash` and `trash-put` with all names in one call. Each round has
/// fresh homes in TMPDIR, and the three take turns; the median round counts.
int bancoPapelera(int argc, char **argv)
{
    const int cuantos = std::max(1, argc > 1 ? std::atoi(argv[1]) : 1000);
    std::vector<double> nuestras, gio, trashPut;
    for (int i = 0; i < rondas; ++i) {
        nuestras.push_back(microsegundosPorArchivo(cuantos, moverConLaNuestra));
        gio.push_back(microsegundosPorArchivo(
            cuantos, [](const Casa &casa) { moverConPrograma({"gio", "trash"}, casa); }));
        trashPut.push_back(microsegundosPorArchivo(
            cuantos, [](const Casa &casa) { moverConPrograma({"trash-put"}, casa); }));
    }
    const double nuestra = mediana(nuestras), deGio = mediana(gio), deTrashPut = mediana(trashPut);
    std::printf("{\"papelera_us\":%.1f,\"gio_us\":%.1f,\"trash_put_us\":%.1f,\"ratio_gio\":%.3f,"
                "\"ratio_trash_put\":%.3f}\n",
                nuestra, deGio, deTrashPut, nuestra / deGio, nuestra / deTrashPut);
    return 0;
}

} // namespace ovanta
