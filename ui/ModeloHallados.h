#pragma once

#include "analysis/ArchivoHallado.h"
#include "analysis/Lista.h"
#include "ui/ModeloConClaves.h"

#include <string>
#include <unordered_set>

namespace ovanta {

/// Paths that the user marked.
using RutasMarcadas = std::unordered_set<std::string>;

/// A list of findings that can be marked, each by its path. Texts are made when a row is drawn.
class ModeloHallados : public ovanta::ModeloConClaves
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen's state")
public:
    enum Rol {
        Nombre = Qt::UserRole, ///< of the file, or the kind of folder
        Lugar,                 ///< the folder of a file, the path of a folder
        Modificado,            ///< day; empty for a folder
        Tamano,
        Marcada,
    };

    /// `marcas` must outlive it.
    explicit ModeloHallados(const RutasMarcadas &marcas, QObject *parent = nullptr);

    /// The marks have changed.
    void marcasCambiadas();

    /// Null for a row that is not there.
    const std::string *rutaDe(int fila) const;

    QString claveDe(int fila) const override;
    int filaDe(const QString &clave) const override;
    int rowCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    virtual std::size_t cuantos() const = 0;
    /// Of a row that is there.
    virtual const std::string &ruta(std::size_t fila) const = 0;
    /// Of the roles before `Marcada`.
    virtual QString texto(std::size_t fila, Rol rol) const = 0;

private:
    const RutasMarcadas &m_marcas;
};

/// Of one kind of record: `ArchivoHallado` or `CarpetaPesada`.
template <typename Registro>
class ModeloHalladosDe final : public ModeloHallados
{
public:
    using ModeloHallados::ModeloHallados;

    /// Shows this list from now on.
    void publicar(Lista<Registro> lista)
    {
        if (lista == m_lista) return;
        this->reponer([&] { m_lista = std::move(lista); });
    }
    const std::vector<Registro> &lista() const { return *m_lista; }

protected:
    std::size_t cuantos() const override { return m_lista->size(); }
    const std::string &ruta(std::size_t fila) const override { return (*m_lista)[fila].ruta; }
    QString texto(std::size_t fila, Rol rol) const override;

private:
    Lista<Registro> m_lista = listaDe<Registro>({});
};

template <>
QString ModeloHalladosDe<ArchivoHallado>::texto(std::size_t fila, Rol rol) const;
template <>
QString ModeloHalladosDe<CarpetaPesada>::texto(std::size_t fila, Rol rol) const;

} // namespace ovanta
