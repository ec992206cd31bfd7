#pragma once

#include <QAbstractListModel>
#include <QMetaProperty>
#include <algorithm>
#include <vector>

namespace ovanta {

/// A list model over plain rows: every property of the gadget `Fila` is a role of the same name.
/// `Fila` has `==` and a member `clave` that tells rows apart: rows that only changed keep their
/// place on screen, and the list is told of exactly those.
template <typename Fila>
class ModeloFilas : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    const std::vector<Fila> &filas() const { return m_filas; }

    void publicar(std::vector<Fila> filas)
    {
        if (!mismasClaves(filas)) {
            beginResetModel();
            m_filas = std::move(filas);
            endResetModel();
            return;
        }
        for (std::size_t i = 0; i < filas.size(); ++i) {
            if (m_filas[i] == filas[i]) continue;
            m_filas[i] = std::move(filas[i]);
            const QModelIndex indice = index(static_cast<int>(i));
            Q_EMIT dataChanged(indice, indice);
        }
    }

    int rowCount(const QModelIndex &padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(m_filas.size());
    }

    QVariant data(const QModelIndex &indice, int rol) const override
    {
        const auto fila = static_cast<std::size_t>(indice.row());
        const int propiedad = rol - Qt::UserRole;
        if (fila >= m_filas.size() || propiedad < 0) return {};
        return Fila::staticMetaObject.property(propiedad).readOnGadget(&m_filas[fila]);
    }

    QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> nombres;
        for (int i = 0; i < Fila::staticMetaObject.propertyCount(); ++i)
            nombres.insert(Qt::UserRole + i, Fila::staticMetaObject.property(i).name());
        return nombres;
    }

private:
    bool mismasClaves(const std::vector<Fila> &otras) const
    {
        return std::equal(m_filas.begin(), m_filas.end(), otras.begin(), otras.end(),
                          [](const Fila &a, const Fila &b) { return a.clave == b.clave; });
    }

    std::vector<Fila> m_filas;
};

} // namespace ovanta
