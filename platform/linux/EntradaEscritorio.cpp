#include "platform/linux/EntradaEscritorio.h"

#include "core/Utf8.h"
#include "platform/linux/Renglones.h"

#include <algorithm>
#include <utility>

namespace ovanta {

namespace {

constexpr std::size_t limiteValor = 4096;
constexpr std::size_t limitePalabras = 256;

std::string_view sinBlancos(std::string_view texto)
{
    constexpr std::string_view blancos = " \t\r\f\v";
    const std::size_t desde = texto.find_first_not_of(blancos);
    if (desde == texto.npos) return {};
    return texto.substr(desde, texto.find_last_not_of(blancos) - desde + 1);
}

char caracterEscapado(char letra)
{
    switch (letra) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    default:
        return letra;
    }
}

/// A value without its escapes. Backslashes before anything else stay for whoever reads it next.
std::string sinEscapes(std::string_view valor)
{
    constexpr std::string_view conocidos = "sntr\\";
    std::string texto;
    for (std::size_t i = 0; i < valor.size(); ++i) {
        if (valor[i] == '\\' && i + 1 < valor.size() && conocidos.find(valor[i + 1]) != conocidos.npos)
            texto += caracterEscapado(valor[++i]);
        else
            texto += valor[i];
    }
    return texto;
}

bool esMostrable(std::string_view texto)
{
    return esUtf8(texto) &&
           std::ranges::none_of(texto, [](unsigned char c) { return c < 0x20 || c == 0x7f; });
}

/// Collects the keys of the one group that counts.
class Lector
{
public:
    explicit Lector(const std::vector<std::string> &idiomas) : m_idiomas(idiomas) {}

    void leerLinea(std::string_view linea)
    {
        linea = sinBlancos(linea);
        if (linea.empty() || linea.front() == '#') return;
        if (linea.front() == '[') {
            m_dentro = linea == "[Desktop Entry]" && !m_visto;
            m_visto = m_visto || m_dentro;
            return;
        }
        const std::size_t igual = linea.find('=');
        if (!m_dentro || igual == linea.npos) return;
        std::string valor = sinEscapes(sinBlancos(linea.substr(igual + 1)));
        if (valor.size() > limiteValor || !esMostrable(valor)) return;
        anotar(sinBlancos(linea.substr(0, igual)), std::move(valor));
    }

    std::optional<EntradaEscritorio> resultado() &&
    {
        if (m_tipo != "Application" || m_entrada.nombre.empty()) return std::nullopt;
        return std::move(m_entrada);
    }

private:
    void anotar(std::string_view clave, std::string valor)
    {
        if (clave == "Name") return anotarNombre(m_idiomas.size(), std::move(valor));
        if (clave.starts_with("Name[") && clave.ends_with(']')) {
            const auto idioma = clave.substr(5, clave.size() - 6);
            const auto puesto = std::ranges::find(m_idiomas, idioma) - m_idiomas.begin();
            if (std::cmp_less(puesto, m_idiomas.size()))
                anotarNombre(static_cast<std::size_t>(puesto), std::move(valor));
            return;
        }
        if (clave == "Exec" && m_entrada.orden.empty()) m_entrada.orden = palabrasDeOrden(valor);
        if (clave == "Type")
            m_tipo = std::move(valor);
        else if (clave == "TryExec")
            m_entrada.probar = std::move(valor);
        else if (clave == "Icon")
            m_entrada.icono = std::move(valor);
        else if (clave == "StartupWMClass")
            m_entrada.claseVentana = std::move(valor);
        else if (clave == "Terminal")
            m_entrada.enTerminal = valor == "true";
        else if (clave == "NoDisplay")
            m_entrada.oculta = valor == "true";
        else if (clave == "Hidden")
            m_entrada.borrada = valor == "true";
    }

    void anotarNombre(std::size_t puesto, std::string valor)
    {
        if (valor.empty() || (!m_entrada.nombre.empty() && puesto >= m_puestoNombre)) return;
        m_entrada.nombre = std::move(valor);
        m_puestoNombre = puesto;
    }

    const std::vector<std::string> &m_idiomas;
    EntradaEscritorio m_entrada;
    std::string m_tipo;
    std::size_t m_puestoNombre = 0;
    bool m_dentro = false;
    bool m_visto = false;
};

} // namespace

std::vector<std::string> idiomasDeEntrada(std::string_view locale)
{
    const std::size_t arroba = locale.find('@');
    const std::string modo{arroba == locale.npos ? std::string_view{} : locale.substr(arroba)};
    locale = locale.substr(0, std::min(arroba, locale.find('.')));
    const std::string idioma{locale.substr(0, locale.find('_'))};
    if (idioma.empty() || idioma == "C" || idioma == "POSIX") return {};
    std::vector<std::string> formas;
    for (const std::string &base : {std::string{locale}, idioma}) {
        if (!modo.empty()) formas.push_back(base + modo);
        formas.push_back(base);
    }
    formas.erase(std::ranges::unique(formas).begin(), formas.end());
    return formas;
}

std::optional<EntradaEscritorio> leerEntrada(std::string_view bytes, const std::vector<std::string> &idiomas)
{
    if (bytes.size() > limiteEntrada) return std::nullopt;
    Lector lector{idiomas};
    while (!bytes.empty())
        lector.leerLinea(cortar(bytes, '\n'));
    return std::move(lector).resultado();
}

std::vector<std::string> palabrasDeOrden(std::string_view exec)
{
    std::vector<std::string> palabras;
    std::string palabra;
    bool entreComillas = false;
    bool abierta = false;
    for (std::size_t i = 0; i < exec.size(); ++i) {
        const char c = exec[i];
        if (c == '"') {
            entreComillas = !entreComillas;
            abierta = true;
        } else if (c == '\\' && entreComillas && i + 1 < exec.size()) {
            palabra += exec[++i];
        } else if (c == ' ' && !entreComillas) {
            if (abierta) palabras.push_back(std::exchange(palabra, {}));
            abierta = false;
        } else {
            palabra += c;
            abierta = true;
        }
    }
    if (abierta) palabras.push_back(std::move(palabra));
    if (entreComillas || palabras.size() > limitePalabras) return {};
    return palabras;
}

std::vector<std::string> ordenSinArgumentos(const EntradaEscritorio &entrada)
{
    std::vector<std::string> orden;
    for (const std::string &palabra : entrada.orden) {
        std::string limpia;
        for (std::size_t i = 0; i < palabra.size(); ++i) {
            if (palabra[i] != '%')
                limpia += palabra[i];
            else if (++i < palabra.size() && palabra[i] == '%')
                limpia += '%';
        }
        if (!limpia.empty() || palabra.empty()) orden.push_back(std::move(limpia));
    }
    return orden;
}

} // namespace ovanta
