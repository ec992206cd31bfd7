#pragma once

#include "platform/DialogoCritico.h"

namespace ovanta {

/// A window of its own, in front of the others as far as the desktop lets it. Needs a QApplication.
class DialogoCriticoLinux final : public DialogoCritico
{
public:
    void mostrar(const std::string &titulo, const std::string &cuerpo, const std::string &boton,
                 std::function<void()> alCerrar) override;
};

} // namespace ovanta
