#pragma once

#include "core/Fecha.h"
#include "core/TextoBytes.h"

#include <QLocale>
#include <QString>
#include <cstdint>

namespace ovanta {

/// Numbers and dates as the user's screens show them: in the user's locale if its language is
/// Spanish, else in the Spanish of Spain, so that they fit the Spanish texts around them.
/// Immutable; any thread.
class Formato
{
public:
    explicit Formato(const QLocale &sistema);

    /// The one for this process's user.
    static const Formato &delUsuario();

    const QLocale &locale() const { return m_locale; }
    const FormaNumeros &numeros() const { return m_numeros; }

    QString bytes(std::uint64_t bytes, EstiloBytes estilo = EstiloBytes::archivo) const;
    QString entero(std::uint64_t numero) const;
    /// Day, abbreviated month and year of the local date: "21 nov 2026".
    QString fecha(Fecha fecha) const;
    /// Hours and minutes of the local time: "5:18".
    QString hora(Fecha fecha) const;
    /// Both: "21 nov 2026, 5:18".
    QString fechaYHora(Fecha fecha) const;

private:
    QLocale m_locale;
    FormaNumeros m_numeros;
};

/// The same moment for Qt, in local time; what is below a millisecond is cut off.
QDateTime enQt(Fecha fecha);

} // namespace ovanta
