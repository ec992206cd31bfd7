#pragma once

#include "tests/HogarTemporal.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace ovanta::pruebas {

/// What `respuesta` tells of a path that is not there.
inline const std::string NO_EXISTE = "error " + std::to_string(ENOENT);

/// A temporary home with its path gate, settings and application bundles.
class BancoSeguridad : public testing::Test
{
protected:
    HogarTemporal casa;
    PreferenciasEnMemoria preferencias;
    std::map<std::string, std::string> paquetes; ///< path of a bundle to its identifier
    Seguridad seguridad{{casa.ruta(),
                         {".local", ".local/share", "Descargas"},
                         [this](const std::string &ruta) {
                             const auto hallado = paquetes.find(ruta);
                             return hallado == paquetes.end() ? std::string{} : hallado->second;
                         }},
                        preferencias};

    void fijarLista(std::vector<std::string> rutas)
    {
        preferencias.fijar(Seguridad::claveProtecciones, std::move(rutas));
    }
    std::vector<std::string> lista() const { return preferencias.lista(Seguridad::claveProtecciones); }
};

/// What a validator answered, as one text that a table can hold: the path after "acepta ", the
/// refusal after "rechaza ", or the file system's error after "error ".
template <typename Validador>
std::string respuesta(Validador validador)
{
    try {
        return "acepta " + validador();
    } catch (const Seguridad::Rechazo &rechazo) {
        EXPECT_STREQ(rechazo.what(), rechazo.motivo.c_str());
        return "rechaza " + rechazo.motivo;
    } catch (const std::system_error &error) {
        return "error " + std::to_string(error.code().value());
    }
}

} // namespace ovanta::pruebas
