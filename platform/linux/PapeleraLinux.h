#pragma once

#include "platform/Papelera.h"
#include "platform/linux/CarpetaPapelera.h"
#include "platform/linux/TrasladoPapelera.h"

#include <functional>

namespace ovanta {

/// The freedesktop Trash, shared with the other programs of the desktop. It moves by one rename and
/// never copies: what lies where a rename cannot reach it (a bind mount, a nested subvolume, a lower
/// layer of an overlay) is refused with its reason, as is what the user has no right to move.
class PapeleraLinux final : public Papelera
{
public:
    struct Entorno
    {
        LugarPapelera lugar;
        std::function<Fecha()> ahora; ///< any thread
    };

    explicit PapeleraLinux(Entorno entorno, AlPaso alPaso = {});

    std::expected<Medida, std::string> medir(const std::string &ruta) override;
    std::expected<void, std::string> reciclar(const Medida &medida) override;
    bool contiene(const std::string &ruta, Fecha desde) override;

private:
    void mover(const Medida &medida);

    Entorno m_entorno;
    AlPaso m_alPaso;
};

} // namespace ovanta
