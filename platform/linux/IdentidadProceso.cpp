#include "platform/linux/IdentidadProceso.h"

#include "core/Descriptor.h"
#include "platform/linux/LecturaRepetida.h"

#include <charconv>
#include <sys/syscall.h>
#include <unistd.h>

namespace ovanta {

namespace {

// Fields of "stat", counted from the one behind the name, which is the third of proc(5).
constexpr int campoPadre = 1;
constexpr int campoInicio = 19;

std::string_view siguienteCampo(std::string_view &resto)
{
    const std::size_t desde = resto.find_first_not_of(' ');
    if (desde == resto.npos) return {};
    resto.remove_prefix(desde);
    const std::string_view campo = resto.substr(0, resto.find(' '));
    resto.remove_prefix(campo.size());
    return campo;
}

template <typename T>
bool leerNumero(std::string_view texto, T &numero)
{
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    return error == std::errc{} && fin == texto.data() + texto.size();
}

} // namespace

std::optional<SenasProceso> leerSenas(std::string_view stat)
{
    // The name before it may hold anything, parentheses too.
    const std::size_t parentesis = stat.rfind(')');
    if (parentesis == stat.npos) return std::nullopt;
    stat = stat.substr(parentesis + 1, stat.find('\n', parentesis) - parentesis - 1);
    SenasProceso senas;
    for (int campo = 0; campo <= campoInicio; ++campo) {
        const std::string_view texto = siguienteCampo(stat);
        if (texto.empty()) return std::nullopt;
        if (campo == 0) senas.estado = texto.front();
        if (campo == campoPadre && !leerNumero(texto, senas.padre)) return std::nullopt;
        if (campo == campoInicio && !leerNumero(texto, senas.inicio)) return std::nullopt;
    }
    return senas;
}

std::string leerDeProceso(const std::string &proc, std::int32_t pid, std::string_view nombre)
{
    std::string ruta = proc + '/' + std::to_string(pid) + '/';
    std::string lugar;
    const std::size_t cuanto = LecturaRepetida{ruta.append(nombre)}.leerEntero(lugar).size();
    lugar.resize(cuanto);
    return lugar;
}

bool sigueVivo(const std::string &proc, std::int32_t pid, std::uint64_t inicio)
{
    if (pid <= 0) return false;
    const auto senas = leerSenas(leerDeProceso(proc, pid, "stat"));
    return senas && senas->vive() && senas->inicio == inicio;
}

bool senalarSiEs(const std::string &proc, std::int32_t pid, std::uint64_t inicio, int senal)
{
    if (pid <= 1) return false;
    const Descriptor proceso{static_cast<int>(::syscall(SYS_pidfd_open, pid, 0U))};
    if (!proceso.abierto() || !sigueVivo(proc, pid, inicio)) return false;
    return ::syscall(SYS_pidfd_send_signal, proceso.numero(), senal, nullptr, 0U) == 0;
}

} // namespace ovanta
