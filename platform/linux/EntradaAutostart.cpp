#include "platform/linux/EntradaAutostart.h"

#include "core/Utf8.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr std::string_view cabecera = "[Desktop Entry]\n"
                                      "Type=Application\n"
                                      "Name=Ovanta\n"
                                      "Comment=Watch the machine and recover disk space without risk\n"
                                      "Comment[es]=Vigila el equipo y recupera espacio en disco sin riesgo\n"
                                      "Icon=com.belmora.Ovanta\n"
                                      "Terminal=false\n";

std::string_view recortar(std::string_view texto)
{
    constexpr std::string_view blancos = " \t\r";
    const auto primero = texto.find_first_not_of(blancos);
    if (primero == texto.npos) return {};
    return texto.substr(primero, texto.find_last_not_of(blancos) - primero + 1);
}

std::string_view siguienteLinea(std::string_view &resto)
{
    const auto fin = resto.find('\n');
    const std::string_view linea = resto.substr(0, fin);
    resto.remove_prefix(fin == resto.npos ? resto.size() : fin + 1);
    return recortar(linea);
}

/// The value of a key in the entry's own group; empty where it has none.
std::string_view valorDe(std::string_view entrada, std::string_view clave)
{
    bool enSuGrupo = false;
    while (!entrada.empty()) {
        const std::string_view linea = siguienteLinea(entrada);
        if (linea.starts_with('[')) enSuGrupo = linea == "[Desktop Entry]";
        const auto igual = linea.find('=');
        if (!enSuGrupo || igual == linea.npos) continue;
        if (recortar(linea.substr(0, igual)) == clave) return recortar(linea.substr(igual + 1));
    }
    return {};
}

bool nombrable(std::string_view programa)
{
    const auto prohibido = [](unsigned char c) { return c == '=' || c < 0x20 || c == 0x7f; };
    return programa.starts_with('/') && esUtf8(programa) && std::ranges::none_of(programa, prohibido);
}

/// Quoted for the command line, then escaped as every text of an entry is.
std::string comando(std::string_view programa)
{
    std::string texto = "\"";
    for (const char c : programa) {
        if (c == '\\')
            texto += R"(\\\\)";
        else if (c == '"' || c == '`' || c == '$')
            texto += std::string(R"(\\)") + c;
        else if (c == '%')
            texto += "%%";
        else
            texto += c;
    }
    return texto + '"';
}

} // namespace

bool arrancaConLaSesion(std::string_view entrada)
{
    return !valorDe(entrada, "Exec").empty() && valorDe(entrada, "Hidden") != "true" &&
           valorDe(entrada, "X-GNOME-Autostart-enabled") != "false";
}

std::optional<std::string> entradaQueArranca(const std::string &programa)
{
    if (!nombrable(programa)) return std::nullopt;
    return std::string(cabecera) + "Exec=" + comando(programa) + "\nX-GNOME-Autostart-enabled=true\n";
}

std::string entradaQueNoArranca()
{
    return std::string(cabecera) + "Hidden=true\n";
}

} // namespace ovanta
