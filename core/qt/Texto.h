#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace ovanta {

/// Bytes of the domain as text for display. Bytes that are no UTF-8 show as U+FFFD; never turn the
/// result back into a path.
inline QString mostrar(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Text that the user typed or that we wrote, as bytes of the domain.
inline std::string bytesDe(const QString &texto)
{
    return texto.toStdString();
}

} // namespace ovanta
