#include "core/plist/LeerPlist.h"

#include "core/plist/PresupuestoPlist.h"

namespace ovanta {

std::expected<ValorPlist, ErrorPlist> leerPlist(std::string_view bytes, const LimitesPlist &limites)
{
    PresupuestoPlist presupuesto{limites};
    try {
        return bytes.starts_with("bplist") ? leerPlistBinaria(bytes, presupuesto)
                                           : leerPlistXml(bytes, presupuesto);
    } catch (PlistRechazada &rechazo) {
        return std::unexpected(std::move(rechazo.error));
    }
}

} // namespace ovanta
