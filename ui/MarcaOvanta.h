#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqml.h>

namespace ovanta {

/// Where the program's icon is among its pictures: "belmora-ovanta-icon", else
/// "sarvel-cleaner-icon"; empty where the folder has neither.
QUrl imagenDeMarca(const QString &carpeta);

/// The program's icon for QML.
class MarcaOvanta : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QUrl imagen READ imagen CONSTANT)
public:
    using QObject::QObject;

    QUrl imagen() const;
};

} // namespace ovanta
