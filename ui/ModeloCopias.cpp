#include "ui/ModeloCopias.h"

#include "core/Rutas.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"

#include <algorithm>

namespace ovanta {

namespace {

/// Parts a row's key; no group id and no path holds a NUL.
constexpr char separador = '\0';

QString nombreDe(const ArchivoHallado &copia)
{
    return mostrar(ultimoComponente(copia.ruta));
}

QString cabezaDe(const GrupoDuplicados &grupo)
{
    const Formato &formato = Formato::delUsuario();
    return formato.entero(grupo.copias.size()) + QStringLiteral(" copias de ") + formato.bytes(grupo.bytes);
}

QString extraDe(const GrupoDuplicados &grupo)
{
    return QStringLiteral("tamaño lógico extra: ") + Formato::delUsuario().bytes(grupo.desperdiciado());
}

} // namespace

ModeloCopias::ModeloCopias(const MarcasDeCopias &marcas, QObject *parent)
    : ModeloConClaves(parent), m_marcas(marcas), m_grupos(listaDe<GrupoDuplicados>({})), m_comienzos{0}
{
}

void ModeloCopias::publicar(Lista<GrupoDuplicados> grupos)
{
    reponer([&] {
        m_variosNombres.clear();
        m_grupoMirado.reset();
        m_grupos = std::move(grupos);
        m_comienzos = {0};
        for (const GrupoDuplicados &grupo : *m_grupos)
            m_comienzos.push_back(m_comienzos.back() + static_cast<int>(grupo.copias.size()));
    });
}

void ModeloCopias::marcasCambiadas()
{
    if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Marcada});
}

ModeloCopias::Lugar ModeloCopias::lugarDe(int fila) const
{
    const auto siguiente = std::ranges::upper_bound(m_comienzos, fila);
    const auto grupo = static_cast<std::size_t>(siguiente - m_comienzos.begin() - 1);
    return {grupo, static_cast<std::size_t>(fila - m_comienzos[grupo])};
}

const GrupoDuplicados *ModeloCopias::grupoDe(int fila) const
{
    return fila < 0 || fila >= rowCount() ? nullptr : &(*m_grupos)[lugarDe(fila).grupo];
}

const ArchivoHallado *ModeloCopias::copiaDe(int fila) const
{
    const GrupoDuplicados *grupo = grupoDe(fila);
    return grupo ? &grupo->copias[lugarDe(fila).copia] : nullptr;
}

QString ModeloCopias::claveDe(int fila) const
{
    const GrupoDuplicados *grupo = grupoDe(fila);
    return grupo ? comoClave(grupo->id + separador + copiaDe(fila)->ruta) : QString();
}

int ModeloCopias::filaDe(const QString &clave) const
{
    const std::string bytes = deClave(clave);
    const auto corte = bytes.find(separador);
    if (corte == std::string::npos) return -1;
    const auto grupo = std::ranges::find(*m_grupos, bytes.substr(0, corte), &GrupoDuplicados::id);
    if (grupo == m_grupos->end()) return -1;
    const auto copia = std::ranges::find(grupo->copias, bytes.substr(corte + 1), &ArchivoHallado::ruta);
    const auto dentro = copia == grupo->copias.end() ? 0 : copia - grupo->copias.begin();
    return m_comienzos[static_cast<std::size_t>(grupo - m_grupos->begin())] + static_cast<int>(dentro);
}

int ModeloCopias::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : m_comienzos.back();
}

bool ModeloCopias::esUnaDeVarias(Lugar lugar) const
{
    const GrupoDuplicados &grupo = (*m_grupos)[lugar.grupo];
    if (m_grupoMirado != lugar.grupo) {
        std::unordered_set<std::string_view> vistas;
        m_variosNombres.clear();
        for (const ArchivoHallado &copia : grupo.copias)
            if (!vistas.insert(identidadDeCopia(copia)).second)
                m_variosNombres.insert(identidadDeCopia(copia));
        m_grupoMirado = lugar.grupo;
    }
    return m_variosNombres.contains(identidadDeCopia(grupo.copias[lugar.copia]));
}

QVariant ModeloCopias::deGrupo(const GrupoDuplicados &grupo, int rol) const
{
    switch (rol) {
    case Cabeza:
        return cabezaDe(grupo);
    case Extra:
        return extraDe(grupo);
    case Titulo:
        return nombreDe(grupo.copias.front());
    default:
        return {};
    }
}

QVariant ModeloCopias::data(const QModelIndex &indice, int rol) const
{
    const GrupoDuplicados *grupo = grupoDe(indice.row());
    if (!grupo) return {};
    const Lugar lugar = lugarDe(indice.row());
    const ArchivoHallado &copia = grupo->copias[lugar.copia];
    switch (rol) {
    case Nombre:
        return nombreDe(copia);
    case Carpeta:
        return mostrar(carpetaContenedora(copia.ruta));
    case Marcable:
        return MarcasDeCopias::marcable(*grupo, copia);
    case Marcada:
        return m_marcas.marcada(copia);
    case MismoArchivo:
        return esUnaDeVarias(lugar);
    case MasAntigua:
    case AbreGrupo:
        return lugar.copia == 0;
    case CierraGrupo:
        return lugar.copia + 1 == grupo->copias.size();
    default:
        return lugar.copia == 0 ? deGrupo(*grupo, rol) : QVariant(QString());
    }
}

QHash<int, QByteArray> ModeloCopias::roleNames() const
{
    return {{Nombre, "nombre"},         {Carpeta, "carpeta"},
            {Marcable, "marcable"},     {Marcada, "marcada"},
            {MasAntigua, "masAntigua"}, {MismoArchivo, "mismoArchivo"},
            {AbreGrupo, "abreGrupo"},   {CierraGrupo, "cierraGrupo"},
            {Cabeza, "cabeza"},         {Extra, "extra"},
            {Titulo, "titulo"}};
}

} // namespace ovanta
