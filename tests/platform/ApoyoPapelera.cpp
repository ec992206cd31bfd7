#include "tests/platform/ApoyoPapelera.h"

#include "core/Descriptor.h"
#include "core/ErrorSistema.h"
#include "core/EscrituraAtomica.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace ovanta::pruebas {

namespace fs = std::filesystem;

namespace {

constexpr uid_t nadie = 65534;

std::string leerTodo(int fd)
{
    std::string texto;
    char trozo[4096];
    for (ssize_t n = 0; (n = ::read(fd, trozo, sizeof trozo)) > 0;)
        texto.append(trozo, static_cast<size_t>(n));
    return texto;
}

int esperar(pid_t hijo)
{
    int estado = 0;
    while (::waitpid(hijo, &estado, 0) < 0 && errno == EINTR)
        continue;
    return estado;
}

/// Into a mount namespace of our own; into a user namespace too where we are not root.
bool aislarMontajes()
{
    if (::geteuid() == 0) {
        if (::unshare(CLONE_NEWNS) != 0) return false;
    } else {
        const std::string usuario = std::to_string(::geteuid());
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
        const Descriptor usuarios(::open("/proc/self/uid_map", O_WRONLY | O_CLOEXEC));
        if (escribirTodo(usuarios.numero(), usuario + " " + usuario + " 1\n") != 0) return false;
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace

ContenidoDePapelera contenidoDe(const std::string &papelera)
{
    ContenidoDePapelera contenido;
    for (const std::string &nombre : nombresEn(papelera + "/files")) {
        const auto info = leerInfo(leer(papelera + "/info/" + nombre + std::string(finDeInfo)));
        if (info) {
            contenido.objetos[nombre] = *info;
        } else {
            contenido.sinInfo.push_back(nombre);
        }
    }
    for (const std::string &nombre : nombresEn(papelera + "/info")) {
        const std::string objeto =
            nombre.substr(0, nombre.size() - std::min(nombre.size(), finDeInfo.size()));
        if (!contenido.objetos.contains(objeto)) contenido.infosSueltas.push_back(nombre);
    }
    return contenido;
}

ConPapelera::ConPapelera()
{
    hogar = m_casa.ruta();
    base = fs::path(hogar).parent_path();
    suya = m_casa.en(".local/share/Trash");
    fs::permissions(base, fs::perms(0755)); // for another user, too
}

PapeleraLinux ConPapelera::hacer(AlPaso alPaso) const
{
    return PapeleraLinux(
        {.lugar = {.hogar = hogar, .datos = {}}, .ahora = [cuando = ahora] { return cuando; }},
        std::move(alPaso));
}

std::string ConPapelera::reciclar(const std::string &ruta, AlPaso alPaso) const
{
    PapeleraLinux papelera = hacer(std::move(alPaso));
    const auto medida = papelera.medir(ruta);
    if (!medida) return medida.error();
    const auto resultado = papelera.reciclar(*medida);
    return resultado ? std::string() : resultado.error();
}

void escribir(const std::string &ruta, const std::string &texto)
{
    fs::create_directories(fs::path(ruta).parent_path());
    const Descriptor archivo(::open(ruta.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    if (!archivo.abierto()) throw std::runtime_error("cannot write " + ruta + ": " + std::strerror(errno));
    if (const int codigo = escribirTodo(archivo.numero(), texto)) lanzarErrno(codigo);
}

std::string leer(const std::string &ruta)
{
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

bool hay(const std::string &ruta)
{
    return fs::exists(fs::symlink_status(ruta));
}

std::vector<std::string> nombresEn(const std::string &carpeta)
{
    std::vector<std::string> nombres;
    if (!fs::is_directory(carpeta)) return nombres;
    for (const auto &entrada : fs::directory_iterator(carpeta))
        nombres.push_back(entrada.path().filename());
    return nombres;
}

FinDeHijo enHijo(const std::function<std::string()> &tarea)
{
    int tubo[2];
    if (::pipe2(tubo, O_CLOEXEC) != 0) return {.queja = "no pipe"};
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        std::string queja;
        try {
            queja = tarea();
        } catch (const std::exception &error) {
            queja = std::string("exception: ") + error.what();
        }
        escribirTodo(tubo[1], queja);
        ::_exit(0);
    }
    const Descriptor lectura(tubo[0]);
    {
        const Descriptor cerrada(tubo[1]);
    }
    FinDeHijo fin{.queja = leerTodo(lectura.numero())};
    const int estado = esperar(hijo);
    fin.senal = WIFSIGNALED(estado) ? WTERMSIG(estado) : 0;
    if (WIFEXITED(estado) && WEXITSTATUS(estado) != 0)
        fin.queja += " exit " + std::to_string(WEXITSTATUS(estado));
    return fin;
}

FinDeHijo comoCualquiera(const std::function<std::string()> &tarea)
{
    return enHijo([&]() -> std::string {
        if (::geteuid() == 0 &&
            (::setresgid(nadie, nadie, nadie) != 0 || ::setresuid(nadie, nadie, nadie) != 0))
            return "cannot become nobody";
        return tarea();
    });
}

FinDeHijo conMontajesPropios(const std::function<std::string()> &tarea)
{
    return enHijo([&] { return aislarMontajes() ? tarea() : "cannot make a mount namespace"; });
}

bool sePuedeMontar()
{
    return conMontajesPropios([] { return std::string(); }).queja.empty();
}

void montarTmpfs(const std::string &donde, const char *opciones)
{
    fs::create_directories(donde);
    if (::mount("tmpfs", donde.c_str(), "tmpfs", 0, opciones) != 0)
        throw std::runtime_error(std::string("mount: ") + std::strerror(errno));
}

std::string salidaDe(const std::vector<std::string> &orden, const std::string &hogar,
                     const std::string &entrada)
{
    int tubo[2], teclado[2];
    if (::pipe2(tubo, O_CLOEXEC) != 0 || ::pipe2(teclado, O_CLOEXEC) != 0) return "no pipe";
    escribirTodo(teclado[1], entrada);
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        ::dup2(teclado[0], 0);
        ::dup2(tubo[1], 1);
        ::dup2(tubo[1], 2);
        ::setenv("HOME", hogar.c_str(), 1);
        ::setenv("XDG_DATA_HOME", (hogar + "/.local/share").c_str(), 1);
        std::vector<char *> argumentos;
        for (const std::string &a : orden)
            argumentos.push_back(const_cast<char *>(a.c_str()));
        argumentos.push_back(nullptr);
        ::execvp(argumentos[0], argumentos.data());
        ::_exit(127);
    }
    {
        const Descriptor a(tubo[1]), b(teclado[0]), c(teclado[1]);
    }
    const Descriptor lectura(tubo[0]);
    std::string salida = leerTodo(lectura.numero());
    esperar(hijo);
    return salida;
}

} // namespace ovanta::pruebas
