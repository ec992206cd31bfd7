#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// What a desktop entry says of one application. All texts are UTF-8 without control characters.
/// Source: https://specifications.freedesktop.org/desktop-entry-spec/latest/
struct EntradaEscritorio
{
    std::string nombre;             ///< in the user's language as far as the entry has it
    std::vector<std::string> orden; ///< the words of Exec, unquoted, field codes left as they are
    std::string probar;             ///< TryExec
    std::string icono;              ///< name in the icon theme or absolute path
    std::string claseVentana;       ///< StartupWMClass
    bool enTerminal = false;        ///< Terminal
    bool oculta = false;            ///< NoDisplay
    bool borrada = false;           ///< Hidden: as if the file were not there
};

/// Larger files are no desktop entries.
inline constexpr std::uint64_t limiteEntrada = std::uint64_t{512} << 10;

/// The forms of a locale ("es_MX.UTF-8@euro") that an entry's key may carry, the best first; none for
/// "C" and "POSIX".
std::vector<std::string> idiomasDeEntrada(std::string_view locale);

/// Reads the bytes of a file. Nothing for what is no application's entry: another Type, no Name, above
/// the limit. What is malformed in an otherwise good entry is left out.
std::optional<EntradaEscritorio> leerEntrada(std::string_view bytes, const std::vector<std::string> &idiomas);

/// The words of an Exec value; none where its quotes do not close.
std::vector<std::string> palabrasDeOrden(std::string_view exec);

/// The words to start an application with: without field codes, "%%" as "%".
std::vector<std::string> ordenSinArgumentos(const EntradaEscritorio &entrada);

} // namespace ovanta
