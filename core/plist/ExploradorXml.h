#pragma once

#include <string>
#include <string_view>

namespace ovanta {

/// The little of XML 1.0 that a property list needs, read once from front to back: tags, text, the five
/// named characters and character references. Comments and processing instructions are skipped, attributes
/// too. A document type is skipped unread; one that declares anything is refused. Throws `PlistRechazada`.
class ExploradorXml
{
public:
    enum class Forma { apertura, cierre, vacia };
    struct Etiqueta
    {
        std::string_view nombre;
        Forma forma = Forma::apertura;

        bool operator==(const Etiqueta &) const = default;
    };

    /// Must outlive this object.
    explicit ExploradorXml(std::string_view documento);

    /// The next tag; only blanks may stand before it.
    Etiqueta etiqueta();
    /// What stands in the element that `etiqueta` opened, up to its end tag, which is taken too. Line ends
    /// come as one line feed each; whether it is UTF-8 was checked.
    std::string texto(const Etiqueta &etiqueta);
    /// Nothing but blanks may be left.
    void fin();

private:
    void saltarBlancos();
    bool saltarAdorno();
    void saltarTipo();
    void saltarHasta(std::string_view final);
    void comprobarDeclaracion();
    bool tomar(std::string_view comienzo);

    std::string_view m_resto;
};

} // namespace ovanta
