#include "tests/analysis/EmbudoIngenuo.h"

#include <array>
#include <cstdio>
#include <openssl/sha.h>
#include <optional>
#include <unistd.h>

namespace ovanta::pruebas {

namespace {

using Numero = ListaArchivos::Numero;
using Listas = std::map<std::string, std::vector<Numero>>;

std::optional<std::string> leerEntero(const std::string &ruta, std::uint64_t limite, AccesoArchivos &acceso)
{
    const int descriptor = acceso.abrir(ruta.c_str());
    if (descriptor < 0) return std::nullopt;
    std::string contenido;
    std::vector<char> trozo(1 << 20);
    while (contenido.size() < limite) {
        const ssize_t n = acceso.leer(descriptor, trozo.data(),
                                      std::min<std::uint64_t>(trozo.size(), limite - contenido.size()));
        if (n <= 0) break;
        contenido.append(trozo.data(), static_cast<std::size_t>(n));
    }
    ::close(descriptor);
    return contenido;
}

std::optional<std::string> digesto(const std::string &ruta, std::uint64_t limite, AccesoArchivos &acceso)
{
    const auto contenido = leerEntero(ruta, limite, acceso);
    if (!contenido) return std::nullopt;
    std::array<unsigned char, 32> digesto;
    ::SHA256(reinterpret_cast<const unsigned char *>(contenido->data()), contenido->size(), digesto.data());
    std::string texto;
    for (const unsigned char byte : digesto) {
        std::array<char, 3> cifras{};
        std::snprintf(cifras.data(), cifras.size(), "%02x", byte);
        texto += cifras.data();
    }
    return texto;
}

} // namespace

std::map<std::string, std::vector<std::string>> duplicadosIngenuos(const ListaArchivos &archivos,
                                                                   AccesoArchivos &acceso)
{
    constexpr std::uint64_t cabeza = 65536;
    std::map<std::uint64_t, std::vector<Numero>> porTamano;
    for (Numero i = 0; i < archivos.size(); ++i)
        porTamano[archivos.bytes(i)].push_back(i);
    Listas porCabeza;
    for (const auto &[bytes, lista] : porTamano)
        for (const Numero i : lista)
            if (const auto suyo = lista.size() > 1 ? digesto(archivos.ruta(i), cabeza, acceso) : std::nullopt)
                porCabeza[std::to_string(bytes) + "-" + *suyo].push_back(i);
    Listas porContenido;
    for (const auto &[clave, lista] : porCabeza) {
        if (lista.size() < 2) continue;
        const bool corto = archivos.bytes(lista.front()) <= cabeza;
        const auto primero = digesto(archivos.ruta(lista.front()), cabeza, acceso);
        for (const Numero i : lista) {
            const auto suyo = corto ? primero : digesto(archivos.ruta(i), UINT64_MAX, acceso);
            if (!suyo) continue;
            porContenido[corto ? "corto-" + std::to_string(archivos.bytes(i)) + "-" + *suyo : *suyo]
                .push_back(i);
        }
    }
    std::map<std::string, std::vector<std::string>> grupos;
    for (auto &[clave, lista] : porContenido) {
        if (lista.size() < 2) continue;
        std::ranges::sort(lista);
        for (const Numero i : lista)
            grupos[clave].push_back(archivos.ruta(i));
    }
    return grupos;
}

} // namespace ovanta::pruebas
