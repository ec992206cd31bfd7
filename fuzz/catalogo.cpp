#include "core/Catalogo.h"
#include "core/InterpretarDu.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Any bytes give rules or an `ErrorDeCatalogo` with a text, and the groups hold no rule twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const std::string_view bytes(reinterpret_cast<const char *>(datos), cuantos);
    if (const auto tamano = interpretarDu(bytes); tamano && *tamano % 1024 != 0) std::abort();
    try {
        const auto reglas = decodificarCatalogo(bytes);
        std::size_t agrupadas = 0;
        for (const auto &grupo : porCategoria(reglas)) {
            if (grupo.titulo.empty() || grupo.reglas.empty()) std::abort();
            agrupadas += grupo.reglas.size();
        }
        if (agrupadas > reglas.size()) std::abort();
        for (const auto &regla : reglas) {
            if (regla.categoriaLegible().empty() != regla.category.empty()) std::abort();
        }
    } catch (const ErrorDeCatalogo &error) {
        if (std::string_view(error.what()).empty()) std::abort();
    }
    return 0;
}
