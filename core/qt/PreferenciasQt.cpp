#include "core/qt/PreferenciasQt.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <cmath>

namespace ovanta {

namespace {

QString claveQt(std::string_view clave)
{
    return QString::fromUtf8(clave.data(), static_cast<qsizetype>(clave.size()));
}

QByteArray enBytes(const std::string &texto)
{
    return QByteArray::fromStdString(texto);
}

// Booleans and numbers come back from an INI file as text, so each kind carries its own mark.
QVariant paraGuardar(const Preferencias::Valor &valor)
{
    struct Conversor
    {
        QVariant operator()(bool v) const { return v; }
        QVariant operator()(std::int64_t v) const { return static_cast<qlonglong>(v); }
        QVariant operator()(double v) const { return QStringLiteral("r%1").arg(v, 0, 'g', 17); }
        QVariant operator()(const std::string &v) const { return enBytes(v); }
        QVariant operator()(Fecha v) const
        {
            return QStringLiteral("f%1").arg(static_cast<qlonglong>(v.time_since_epoch().count()));
        }
        QVariant operator()(const std::vector<std::string> &v) const
        {
            QVariantList lista;
            for (const std::string &texto : v)
                lista << enBytes(texto);
            return lista;
        }
    };
    return std::visit(Conversor{}, valor);
}

std::optional<Preferencias::Valor> deTexto(const QString &texto)
{
    if (texto == QLatin1String("true")) return Preferencias::Valor{true};
    if (texto == QLatin1String("false")) return Preferencias::Valor{false};
    bool bien = false;
    if (texto.startsWith(QLatin1Char('r'))) {
        const double real = texto.mid(1).toDouble(&bien);
        if (bien && std::isfinite(real)) return Preferencias::Valor{real};
    } else if (texto.startsWith(QLatin1Char('f'))) {
        const qlonglong micros = texto.mid(1).toLongLong(&bien);
        if (bien) return Preferencias::Valor{Fecha{std::chrono::microseconds{micros}}};
    } else {
        const qlonglong entero = texto.toLongLong(&bien);
        if (bien) return Preferencias::Valor{static_cast<std::int64_t>(entero)};
    }
    return std::nullopt;
}

std::optional<Preferencias::Valor> deGuardado(const QVariant &variante)
{
    switch (variante.typeId()) {
    case QMetaType::Bool:
        return Preferencias::Valor{variante.toBool()};
    case QMetaType::LongLong:
    case QMetaType::Int:
        return Preferencias::Valor{static_cast<std::int64_t>(variante.toLongLong())};
    case QMetaType::QByteArray:
        return Preferencias::Valor{variante.toByteArray().toStdString()};
    case QMetaType::QString:
        return deTexto(variante.toString());
    case QMetaType::QVariantList: {
        std::vector<std::string> lista;
        for (const QVariant &elemento : variante.toList())
            lista.push_back(elemento.toByteArray().toStdString());
        return Preferencias::Valor{std::move(lista)};
    }
    default:
        return std::nullopt;
    }
}

} // namespace

PreferenciasQt::PreferenciasQt(const std::string &archivo)
    : m_ajustes(QFile::decodeName(QByteArray::fromStdString(archivo)), QSettings::IniFormat)
{
}

void PreferenciasQt::registrar(std::string_view clave, Valor porDefecto)
{
    const std::lock_guard guardia{m_cerrojo};
    m_porDefecto.insert_or_assign(std::string{clave}, std::move(porDefecto));
}

std::optional<Preferencias::Valor> PreferenciasQt::leer(std::string_view clave) const
{
    const std::lock_guard guardia{m_cerrojo};
    const QVariant guardado = m_ajustes.value(claveQt(clave));
    if (guardado.isValid())
        if (auto valor = deGuardado(guardado)) return valor;
    const auto registrado = m_porDefecto.find(clave);
    if (registrado == m_porDefecto.end()) return std::nullopt;
    return registrado->second;
}

void PreferenciasQt::fijar(std::string_view clave, Valor valor)
{
    const std::lock_guard guardia{m_cerrojo};
    m_ajustes.setValue(claveQt(clave), paraGuardar(valor));
    m_ajustes.sync();
}

void PreferenciasQt::quitar(std::string_view clave)
{
    const std::lock_guard guardia{m_cerrojo};
    m_ajustes.remove(claveQt(clave));
    m_ajustes.sync();
}

} // namespace ovanta
