#pragma once

#include "ui/MarcasDeCopias.h"

#include <QAbstractListModel>
#include <vector>

namespace ovanta {

/// The rows of the duplicates screen: every copy of every group, the groups one after another. Texts are
/// made when a row is drawn, so that a hundred thousand rows cost little. Looks at lists that it does not
/// own: whoever changes them calls `publicar`.
class ModeloCopias : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Rol {
        Nombre = Qt::UserRole, ///< of the file
        Carpeta,
        Marcable,
        Marcada,
        MasAntigua,   ///< the original of its group
        MismoArchivo, ///< one of several names of one physical file
        AbreGrupo,    ///< the first row of its group, which bears the head
        CierraGrupo,
        Cabeza, ///< "3 copias de 12 MB"
        Extra,  ///< what the group wastes
        Titulo, ///< name of the original
    };

    using QAbstractListModel::QAbstractListModel;

    /// Shows these groups from now on; both must live until the next call.
    void publicar(const std::vector<GrupoDuplicados> *grupos, const MarcasDeCopias *marcas);
    /// The marks have changed.
    void marcasCambiadas();

    const GrupoDuplicados *grupoDe(int fila) const;
    const ArchivoHallado *copiaDe(int fila) const;

    /// What a row shows, over changes of the list: a key to find it again, and the row that bears it
    /// or that its group begins at; -1 where neither is there.
    Q_INVOKABLE QString claveDe(int fila) const;
    Q_INVOKABLE int filaDe(const QString &clave) const;

    int rowCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Lugar
    {
        std::size_t grupo;
        std::size_t copia;
    };
    Lugar lugarDe(int fila) const;

    const std::vector<GrupoDuplicados> *m_grupos = nullptr;
    const MarcasDeCopias *m_marcas = nullptr;
    std::vector<int> m_comienzos; ///< row of each group's first copy, and the number of rows
};

} // namespace ovanta
