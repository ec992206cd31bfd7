#pragma once

#include "analysis/Lista.h"
#include "ui/MarcasDeCopias.h"
#include "ui/ModeloConClaves.h"

#include <optional>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ovanta {

/// The rows of the duplicates screen: every copy of every group, the groups one after another. Texts are
/// made when a row is drawn, so that a hundred thousand rows cost little.
class ModeloCopias final : public ovanta::ModeloConClaves
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen's state")
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
        Cabeza, ///< "3 copias de 12 MB"; like the next two only in the first row of a group
        Extra,  ///< what the group wastes
        Titulo, ///< name of the original
    };

    /// `marcas` must outlive it.
    explicit ModeloCopias(const MarcasDeCopias &marcas, QObject *parent = nullptr);

    /// Shows these groups from now on.
    void publicar(Lista<GrupoDuplicados> grupos);
    /// The marks have changed.
    void marcasCambiadas();

    const std::vector<GrupoDuplicados> &grupos() const { return *m_grupos; }
    const GrupoDuplicados *grupoDe(int fila) const;
    const ArchivoHallado *copiaDe(int fila) const;

    /// A row whose copy is gone is found again as the first row of its group.
    QString claveDe(int fila) const override;
    int filaDe(const QString &clave) const override;

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
    QVariant deGrupo(const GrupoDuplicados &grupo, int rol) const;
    bool esUnaDeVarias(Lugar lugar) const;

    const MarcasDeCopias &m_marcas;
    Lista<GrupoDuplicados> m_grupos;
    std::vector<int> m_comienzos; ///< row of each group's first copy, and the number of rows
    // Of the group that was last drawn, since a group may have a hundred thousand copies.
    mutable std::optional<std::size_t> m_grupoMirado;
    mutable std::unordered_set<std::string_view> m_variosNombres; ///< files of it with several names
};

} // namespace ovanta
