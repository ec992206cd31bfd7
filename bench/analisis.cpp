#include "analysis/Duplicados.h"
#include "analysis/Recorrer.h"
#include "bench/Bancos.h"
#include "core/Tamano.h"
#include "platform/linux/AccesoArchivosLinux.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace ovanta {
namespace {

class Reloj
{
public:
    double segundos() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_inicio).count();
    }

private:
    std::chrono::steady_clock::time_point m_inicio = std::chrono::steady_clock::now();
};

/// The program's own walk with nothing left out by name or place.
ListaArchivos recorrerTodo(const char *carpeta, AccesoArchivos &acceso, std::uint64_t &vistas)
{
    const std::unique_ptr<char, decltype(&std::free)> real{::realpath(carpeta, nullptr), &std::free};
    if (!real) throw std::runtime_error("no existe la carpeta");
    Recorrido recorrido;
    recorrido.raices = {real.get()};
    recorrido.minimo = 1;
    return recorrer(recorrido, acceso, nullptr, [&](std::uint64_t cuantas) { vistas = cuantas; });
}

struct CerrarArchivo
{
    void operator()(FILE *archivo) const { std::fclose(archivo); }
};

void escribirGrupos(const char *destino, const ListaArchivos &archivos,
                    const std::vector<ContenidoIgual> &grupos)
{
    const std::unique_ptr<FILE, CerrarArchivo> salida{std::fopen(destino, "wb")};
    if (!salida) throw std::runtime_error("no se puede escribir la salida");
    std::string ruta;
    for (const ContenidoIgual &grupo : grupos) {
        for (const ListaArchivos::Numero archivo : grupo.archivos) {
            archivos.escribirRuta(archivo, ruta);
            std::fwrite(ruta.c_str(), 1, ruta.size() + 1, salida.get());
        }
        std::fputc('\0', salida.get());
    }
}

} // namespace

/// `dups FOLDER [--out FILE]`: the walk and the search for equal files. FILE gets each path with a NUL
/// after it, and one more NUL after each group.
int bancoDups(int argc, char **argv)
{
    const bool conSalida = argc == 4 && std::string_view(argv[2]) == "--out";
    if (argc != 2 && !conSalida) {
        std::fputs("uso: ovanta-banco dups CARPETA [--out ARCHIVO]\n", stderr);
        return 2;
    }
    const Reloj reloj;
    AccesoArchivosLinux acceso;
    std::uint64_t vistas = 0;
    const ListaArchivos archivos = recorrerTodo(argv[1], acceso, vistas);
    const double recorrido = reloj.segundos();
    const std::vector<ContenidoIgual> grupos = contenidosIguales(archivos, acceso, nullptr);
    const double total = reloj.segundos();
    std::size_t copias = 0;
    std::uint64_t bytes = 0;
    for (const ContenidoIgual &grupo : grupos) {
        copias += grupo.archivos.size();
        bytes = sumar(bytes, multiplicar(archivos.bytes(grupo.archivos.front()), grupo.archivos.size() - 1));
    }
    if (conSalida) escribirGrupos(argv[3], archivos, grupos);
    std::printf("{\"seconds\":%.6f,\"walk_seconds\":%.6f,\"entries\":%llu,\"files\":%zu,\"groups\":%zu,"
                "\"copies\":%zu,\"extra_bytes\":%llu}\n",
                total, recorrido, static_cast<unsigned long long>(vistas), archivos.size(), grupos.size(),
                copias, static_cast<unsigned long long>(bytes));
    return 0;
}

/// `walk FOLDER`: the walk alone.
int bancoWalk(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("uso: ovanta-banco walk CARPETA\n", stderr);
        return 2;
    }
    const Reloj reloj;
    AccesoArchivosLinux acceso;
    std::uint64_t vistas = 0;
    const ListaArchivos archivos = recorrerTodo(argv[1], acceso, vistas);
    std::printf("{\"seconds\":%.6f,\"entries\":%llu,\"files\":%zu}\n", reloj.segundos(),
                static_cast<unsigned long long>(vistas), archivos.size());
    return 0;
}

} // namespace ovanta
