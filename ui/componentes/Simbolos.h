#pragma once

#include <QObject>
#include <QtQml/qqml.h>
#include <optional>
#include <string_view>

namespace ovanta {

/// The glyph of the embedded symbol font that stands for a system symbol; nothing for an unknown name.
std::optional<char16_t> glifoDeSimbolo(std::string_view nombre);

/// The same for QML: a text of one character, empty for an unknown name.
class Simbolos : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    Q_INVOKABLE QString glifo(const QString &nombre) const;
};

} // namespace ovanta
