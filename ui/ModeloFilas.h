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

    /// The same for a short list whose rows change places: a row that stays keeps what stands for it on
    /// screen, its focus too, wherever it goes.
    void reordenar(std::vector<Fila> filas)
    {
        for (int i = rowCount() - 1; i >= 0; --i)
            if (!contiene(filas, m_filas[static_cast<std::size_t>(i)])) quitar(i);
        for (int i = 0; i < static_cast<int>(filas.size()); ++i)
            traer(i, filas[static_cast<std::size_t>(i)]);
        publicar(std::move(filas));
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
    static bool contiene(const std::vector<Fila> &filas, const Fila &fila)
    {
        return std::any_of(filas.begin(), filas.end(),
                           [&](const Fila &una) { return una.clave == fila.clave; });
    }

    void quitar(int lugar)
    {
        beginRemoveRows({}, lugar, lugar);
        m_filas.erase(m_filas.begin() + lugar);
        endRemoveRows();
    }

    /// Makes sure that the row of this key stands at `lugar`; the rows before it are in their places.
    void traer(int lugar, const Fila &fila)
    {
        const auto desde = m_filas.begin() + lugar;
        const auto hallada =
            std::find_if(desde, m_filas.end(), [&](const Fila &una) { return una.clave == fila.clave; });
        if (hallada == desde && hallada != m_filas.end()) return;
        if (hallada == m_filas.end()) {
            beginInsertRows({}, lugar, lugar);
            m_filas.insert(desde, fila);
            endInsertRows();
            return;
        }
        const int de = static_cast<int>(hallada - m_filas.begin());
        beginMoveRows({}, de, de, {}, lugar);
        std::rotate(desde, hallada, hallada + 1);
        endMoveRows();
    }

    bool mismasClaves(const std::vector<Fila> &otras) const
    {
        return std::equal(m_filas.begin(), m_filas.end(), otras.begin(), otras.end(),
                          [](const Fila &a, const Fila &b) { return a.clave == b.clave; });
    }

    std::vector<Fila> m_filas;
};

} // namespace ovanta
