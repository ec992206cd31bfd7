#include "ui/ModeloHallados.h"

#include "core/Rutas.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"

namespace ovanta {

ModeloHallados::ModeloHallados(const RutasMarcadas &marcas, QObject *parent)
    : ModeloConClaves(parent), m_marcas(marcas)
{
}

void ModeloHallados::marcasCambiadas()
{
    if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Marcada});
}

const std::string *ModeloHallados::rutaDe(int fila) const
{
    return fila < 0 || fila >= rowCount() ? nullptr : &ruta(static_cast<std::size_t>(fila));
}

QString ModeloHallados::claveDe(int fila) const
{
    const std::string *suya = rutaDe(fila);
    return suya ? comoClave(*suya) : QString();
}

int ModeloHallados::filaDe(const QString &clave) const
{
    const std::string buscada = deClave(clave);
    for (std::size_t fila = 0; fila < cuantos(); ++fila)
        if (ruta(fila) == buscada) return static_cast<int>(fila);
    return -1;
}

int ModeloHallados::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(cuantos());
}

QVariant ModeloHallados::data(const QModelIndex &indice, int rol) const
{
    const std::string *suya = rutaDe(indice.row());
    if (!suya || rol < Nombre || rol > Marcada) return {};
    if (rol == Marcada) return m_marcas.contains(*suya);
    return texto(static_cast<std::size_t>(indice.row()), static_cast<Rol>(rol));
}

QHash<int, QByteArray> ModeloHallados::roleNames() const
{
    return {{Nombre, "nombre"},
            {Lugar, "lugar"},
            {Modificado, "modificado"},
            {Tamano, "tamano"},
            {Marcada, "marcada"}};
}

template <>
QString ModeloHalladosDe<ArchivoHallado>::texto(std::size_t fila, Rol rol) const
{
    const ArchivoHallado &archivo = (*m_lista)[fila];
    switch (rol) {
    case Nombre:
        return mostrar(ultimoComponente(archivo.ruta));
    case Lugar:
        return mostrar(carpetaContenedora(archivo.ruta));
    case Modificado:
        return archivo.modificado ? Formato::delUsuario().fecha(*archivo.modificado) : QString();
    default:
        return Formato::delUsuario().bytes(archivo.bytes);
    }
}

template <>
QString ModeloHalladosDe<CarpetaPesada>::texto(std::size_t fila, Rol rol) const
{
    const CarpetaPesada &carpeta = (*m_lista)[fila];
    switch (rol) {
    case Nombre:
        return mostrar(carpeta.tipo);
    case Lugar:
        return mostrar(carpeta.ruta);
    case Modificado:
        return {};
    default:
        return Formato::delUsuario().bytes(carpeta.bytes);
    }
}

} // namespace ovanta
