#include "bench/Bancos.h"

#include <cstdio>
#include <exception>
#include <string_view>

namespace {

struct Verbo
{
    std::string_view nombre;
    int (*medir)(int argc, char **argv);
};

constexpr Verbo verbos[] = {
    {"ejecutar", ovanta::bancoEjecutar}, {"validar", ovanta::bancoValidar},
    {"papelera", ovanta::bancoPapelera}, {"muestra", ovanta::bancoMuestra},
    {"dups", ovanta::bancoDups},         {"walk", ovanta::bancoWalk},
    {"proc", ovanta::bancoProc},         {"ticks", ovanta::bancoTicks},
    {"plist", ovanta::bancoPlist},
};

int explicarUso()
{
    std::fputs("uso: ovanta-banco VERBO [argumentos]\nverbos:", stderr);
    for (const Verbo &verbo : verbos) {
        std::fprintf(stderr, " %.*s", static_cast<int>(verbo.nombre.size()), verbo.nombre.data());
    }
    std::fputc('\n', stderr);
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) return explicarUso();
    for (const Verbo &verbo : verbos) {
        if (verbo.nombre != argv[1]) continue;
        try {
            return verbo.medir(argc - 1, argv + 1);
        } catch (const std::exception &error) {
            std::fprintf(stderr, "ovanta-banco: %s\n", error.what());
            return 1;
        }
    }
    return explicarUso();
}
