#include "ui/DuplicatesViewEstado.h"

#include "analysis/EspacioReal.h"
#include "core/qt/Formato.h"
#include "core/qt/SegundoPlano.h"

#include <QCoroFuture>
#include <QPointer>
#include <algorithm>

namespace ovanta {

DuplicatesViewEstado::DuplicatesViewEstado(QObject *parent) : HallazgosEstado(parent)
{
    connect(&app().scanner(), &Scanner::duplicadosChanged, this, &DuplicatesViewEstado::publicar);
    connect(this, &HallazgosEstado::analisisChanged, this, &DuplicatesViewEstado::duplicadosChanged);
    connect(this, &HallazgosEstado::movimientoChanged, this, &DuplicatesViewEstado::marcasChanged);
    publicar();
}

void DuplicatesViewEstado::publicar()
{
    m_filas.publicar(app().scanner().duplicados());
    Q_EMIT duplicadosChanged();
    // A group of the same content may have another original now.
    desmarcarTodo();
}

QString DuplicatesViewEstado::valor() const
{
    if (vacio()) return {};
    const Formato &formato = Formato::delUsuario();
    return formato.entero(m_filas.grupos().size()) + QStringLiteral(" grupos · ") +
           formato.bytes(app().scanner().desperdicioTotal()) + QStringLiteral(" de tamaño lógico extra");
}

QString DuplicatesViewEstado::tituloVacio() const
{
    return yaAnalizado() ? QStringLiteral("Todo está en orden") : QStringLiteral("Busca copias idénticas");
}

QString DuplicatesViewEstado::mensajeVacio() const
{
    if (!yaAnalizado())
        return QStringLiteral("Analiza tus carpetas para comparar el contenido real de los archivos.");
    return QStringLiteral("No encontramos duplicados entre los %1 archivos revisados.")
        .arg(Formato::delUsuario().entero(app().scanner().archivosVistos()));
}

QString DuplicatesViewEstado::simboloVacio() const
{
    return yaAnalizado() ? QStringLiteral("checkmark.circle") : QStringLiteral("doc.on.doc");
}

QString DuplicatesViewEstado::textoMarcadas() const
{
    const Formato &formato = Formato::delUsuario();
    return formato.entero(m_marcas.marcadas().size()) + QStringLiteral(" copias · ") +
           formato.bytes(m_marcas.bytes());
}

QString DuplicatesViewEstado::tituloConfirmacion() const
{
    return QStringLiteral("¿Mover %1 copias?").arg(Formato::delUsuario().entero(m_marcas.marcadas().size()));
}

void DuplicatesViewEstado::marcar(int fila, bool marcada)
{
    const GrupoDuplicados *grupo = m_filas.grupoDe(fila);
    if (!grupo) return;
    if (marcada)
        m_marcas.marcar(*grupo, *m_filas.copiaDe(fila));
    else
        m_marcas.desmarcar(*grupo, *m_filas.copiaDe(fila));
    cambioDeMarcas();
}

void DuplicatesViewEstado::marcarTodasMenosLaOriginal(int fila)
{
    const GrupoDuplicados *grupo = m_filas.grupoDe(fila);
    if (!grupo) return;
    m_marcas.marcarTodasMenosLaOriginal(*grupo);
    cambioDeMarcas();
}

void DuplicatesViewEstado::desmarcarTodo()
{
    m_marcas.desmarcarTodo();
    cambioDeMarcas();
}

void DuplicatesViewEstado::cambioDeMarcas()
{
    ++m_cambios;
    m_filas.marcasCambiadas();
    m_textoReal.clear();
    revisarConfirmacion();
    Q_EMIT marcasChanged();
    medirEspacioReal();
}

std::vector<std::string> DuplicatesViewEstado::rutasMarcadas() const
{
    std::vector<std::string> rutas(m_marcas.marcadas().begin(), m_marcas.marcadas().end());
    std::ranges::sort(rutas);
    return rutas;
}

QCoro::Task<> DuplicatesViewEstado::medirEspacioReal()
{
    // One at a time: whoever marks a row after another should not have each sum measured.
    if (m_midiendo || !hayMarcadas()) co_return;
    const QPointer vivo{this};
    const unsigned cambios = m_cambios;
    m_midiendo = true;
    auto medir = [rutas = rutasMarcadas(), &acceso = app().plataforma().accesoArchivos()] {
        return espacioReal(rutas, acceso);
    };
    auto futuro = enSegundoPlano(Prioridad::PuedeColgarse, std::move(medir));
    const std::uint64_t bytes = co_await futuro;
    if (!vivo) co_return;
    m_midiendo = false;
    if (cambios != m_cambios) {
        medirEspacioReal();
        co_return;
    }
    if (bytes >= m_marcas.bytes()) co_return;
    m_textoReal =
        QStringLiteral("En el disco ocupan %1: se descuentan enlaces, huecos y bloques compartidos.")
            .arg(Formato::delUsuario().bytes(bytes));
    Q_EMIT marcasChanged();
}

void DuplicatesViewEstado::mostrarEnGestor(int fila)
{
    if (const ArchivoHallado *copia = m_filas.copiaDe(fila))
        app().plataforma().gestorArchivos().mostrar(copia->ruta);
}

QString DuplicatesViewEstado::textoMovidos(const QString &cuantos, const QString &bytes) const
{
    return QStringLiteral("Movidas %1 copias · %2").arg(cuantos, bytes);
}

QCoro::Task<> DuplicatesViewEstado::moverMarcadas()
{
    const auto lote = std::make_shared<GuardianDeCopias::Lote>(app().scanner().guardian(), m_filas.grupos(),
                                                               rutasMarcadas());
    auto mirada = [lote](const Papelera::Medida &medida) { return lote->permitir(medida.ruta); };
    return mover(rutasMarcadas(), "duplicados", std::move(mirada));
}

} // namespace ovanta
