#pragma once

#include "platform/linux/InfoPapelera.h"
#include "platform/linux/PapeleraLinux.h"

#include "tests/HogarTemporal.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace ovanta::pruebas {

/// What a Trash folder holds, for checking it as a whole.
struct ContenidoDePapelera
{
    std::map<std::string, InfoPapelera> objetos; ///< by name in "files", with their info
    std::vector<std::string> sinInfo;            ///< in "files" without a readable info: must not be
    std::vector<std::string> infosSueltas;       ///< in "info" without an item
};

ContenidoDePapelera contenidoDe(const std::string &papelera);

/// A home of its own with a Trash, below TMPDIR.
class ConPapelera : public testing::Test
{
protected:
    ConPapelera();

    /// A Trash for that home; `alPaso` as in the product, where it is empty.
    PapeleraLinux hacer(AlPaso alPaso = {}) const;
    /// Measures and moves; the refusal, or an empty text.
    std::string reciclar(const std::string &ruta, AlPaso alPaso = {}) const;

    std::string base;                                         ///< removed at the end
    std::string hogar;                                        ///< base/hogar
    std::string suya;                                         ///< its Trash folder, not made yet
    Fecha ahora = Fecha{std::chrono::seconds{1'795'238'316}}; // 2026-11-21T05:18:36Z

private:
    HogarTemporal m_casa;
};

void escribir(const std::string &ruta, const std::string &texto = "contenido");
std::string leer(const std::string &ruta);
/// Also true for a dangling link.
bool hay(const std::string &ruta);
std::vector<std::string> nombresEn(const std::string &carpeta);

/// How a child process ended: its own complaint, or the signal that ended it.
struct FinDeHijo
{
    std::string queja;
    int senal = 0;
};
/// Runs `tarea` in a child process; what it returns comes back as `queja`.
FinDeHijo enHijo(const std::function<std::string()> &tarea);
/// The same as an ordinary user: "nobody" where the tests run as root.
FinDeHijo comoCualquiera(const std::function<std::string()> &tarea);
/// The same in a mount namespace of its own, where it may mount things.
FinDeHijo conMontajesPropios(const std::function<std::string()> &tarea);
/// Whether this machine allows `conMontajesPropios`.
bool sePuedeMontar();
/// Mounts a new tmpfs there; ends the child with a complaint where it cannot be.
void montarTmpfs(const std::string &donde, const char *opciones);

/// Runs a program with HOME and XDG_DATA_HOME for `hogar`; its output with errors, as bytes.
std::string salidaDe(const std::vector<std::string> &orden, const std::string &hogar,
                     const std::string &entrada = {});

} // namespace ovanta::pruebas
