#pragma once

#include <QAbstractListModel>
#include <QtQml/qqml.h>

namespace ovanta {

/// A list model whose rows can be found again after it was reset, so that a list keeps its place.
/// Derive from it by its whole name: QML learns the base as it is written.
class ModeloConClaves : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the models of the screens derive from it")
public:
    using QAbstractListModel::QAbstractListModel;

    /// What tells a row from all others; empty for a row that is not there. Only `filaDe` reads it.
    Q_INVOKABLE virtual QString claveDe(int fila) const = 0;
    /// The row that a key is for, or the one that comes nearest to it; -1 where neither is there.
    Q_INVOKABLE virtual int filaDe(const QString &clave) const = 0;

Q_SIGNALS:
    /// The rows were replaced and every view knows it, which `modelReset` does not say.
    void repuesto();

protected:
    /// Replaces the rows by what `cambio` does.
    template <typename Cambio>
    void reponer(Cambio cambio)
    {
        beginResetModel();
        cambio();
        endResetModel();
        Q_EMIT repuesto();
    }

    /// A path goes through a key byte by byte, whatever its encoding.
    static QString comoClave(const std::string &bytes)
    {
        return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    static std::string deClave(const QString &clave) { return clave.toLatin1().toStdString(); }
};

} // namespace ovanta
