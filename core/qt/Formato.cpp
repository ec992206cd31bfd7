#include "core/qt/Formato.h"

#include <QDateTime>

namespace ovanta {

namespace {

QLocale localeEspanol(const QLocale &sistema)
{
    // Built anew from its parts: the system's own object may mix the languages of several variables.
    if (sistema.language() == QLocale::Spanish) return {QLocale::Spanish, sistema.territory()};
    return {QLocale::Spanish, QLocale::Spain};
}

FormaNumeros numerosDe(const QLocale &locale)
{
    FormaNumeros forma;
    forma.decimal = locale.decimalPoint().toStdString();
    forma.grupo = locale.groupSeparator().toStdString();
    // Qt knows the least digits that are grouped but does not tell, so it is seen at a number.
    const bool agrupaMillares = locale.toString(1234).contains(locale.groupSeparator());
    forma.cifrasParaAgrupar = agrupaMillares ? 4 : 5;
    return forma;
}

} // namespace

Formato::Formato(const QLocale &sistema) : m_locale(localeEspanol(sistema)), m_numeros(numerosDe(m_locale)) {}

const Formato &Formato::delUsuario()
{
    static const Formato formato{QLocale::system()};
    return formato;
}

QString Formato::bytes(std::uint64_t bytes, EstiloBytes estilo) const
{
    return QString::fromStdString(textoBytes(bytes, estilo, m_numeros));
}

QString Formato::entero(std::uint64_t numero) const
{
    return QString::fromStdString(textoEntero(numero, m_numeros));
}

QString Formato::fecha(Fecha fecha) const
{
    return m_locale.toString(enQt(fecha).date(), QStringLiteral("d MMM yyyy"));
}

QString Formato::hora(Fecha fecha) const
{
    return m_locale.toString(enQt(fecha).time(), QLocale::ShortFormat);
}

QString Formato::fechaYHora(Fecha fecha) const
{
    return Formato::fecha(fecha) + QStringLiteral(", ") + hora(fecha);
}

QDateTime enQt(Fecha fecha)
{
    const auto milisegundos = std::chrono::floor<std::chrono::milliseconds>(fecha);
    return QDateTime::fromMSecsSinceEpoch(milisegundos.time_since_epoch().count());
}

} // namespace ovanta
