#pragma once

#include "platform/linux/IdentidadProceso.h"
#include "platform/linux/ProcesoVisto.h"

#include <charconv>
#include <filesystem>
#include <sys/stat.h>
#include <vector>

namespace ovanta::pruebas {

/// A plain sweep over /proc, kernel threads left out.
inline std::vector<ProcesoVisto> barrer()
{
    std::vector<ProcesoVisto> vistos;
    for (const auto &entrada : std::filesystem::directory_iterator("/proc")) {
        const std::string nombre = entrada.path().filename();
        std::int32_t pid = 0;
        const auto fin = nombre.data() + nombre.size();
        if (std::from_chars(nombre.data(), fin, pid).ptr != fin) continue;
        struct stat datos{};
        std::error_code error;
        const auto exe = std::filesystem::read_symlink(entrada.path() / "exe", error);
        const auto senas = leerSenas(leerDeProceso("/proc", pid, "stat"));
        if (error || !senas || !senas->vive() || ::stat(entrada.path().c_str(), &datos) != 0) continue;
        vistos.push_back({pid, senas->padre, datos.st_uid, senas->inicio, "x",
                          std::make_shared<const std::string>(exe.native()), 4096, 0});
    }
    return vistos;
}

} // namespace ovanta::pruebas
