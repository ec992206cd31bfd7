#include "ui/DuplicatesViewEstado.h"

#include "analysis/EspacioReal.h"
#include "core/qt/Formato.h"
#include "core/qt/SegundoPlano.h"

#include <QCoroFuture>
#include <QPointer>

namespace ovanta {

namespace {

std::vector<std::string> idsDe(const std::vector<GrupoDuplicados> &grupos)
{
    std::vector<std::string> ids;
    for (const GrupoDuplicados &grupo : grupos)
        ids.push_back(grupo.id);
    return ids;
}

} // namespace

DuplicatesViewEstado::DuplicatesViewEstado(QObject *parent) : HallazgosEstado(parent)
{
    connect(&app().scanner(), &Scanner::duplicadosChanged, this, &DuplicatesViewEstado::publicar);
    connect(this, &HallazgosEstado::analisisChanged, this, &DuplicatesViewEstado::duplicadosChanged);
    connect(this, &HallazgosEstado::movimientoChanged, this, &DuplicatesViewEstado::marcasChanged);
    publicar();
}

void DuplicatesViewEstado::publicar()
{
    const std::vector<GrupoDuplicados> &grupos = app().scanner().duplicados();
    m_filas.publicar(&grupos, &m_marcas);
    Q_EMIT duplicadosChanged();
    if (std::vector<std::string> ids = idsDe(grupos); ids != m_ids) {
        m_ids = std::move(ids);
        desmarcarTodo();
    }
}

QString DuplicatesViewEstado::valor() const
{
    if (vacio()) return {};
    const Formato &formato = Formato::delUsuario();
    return formato.entero(app().scanner().duplicados().size()) + QStringLiteral(" grupos · ") +
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
    m_filas.marcasCambiadas();
    m_textoReal.clear();
    Q_EMIT marcasChanged();
    medirEspacioReal();
}

QCoro::Task<> DuplicatesViewEstado::medirEspacioReal()
{
    const unsigned medicion = ++m_medicion;
    if (!hayMarcadas()) co_return;
    const QPointer vivo{this};
    std::vector<std::string> rutas(m_marcas.marcadas().begin(), m_marcas.marcadas().end());
    auto medir = [rutas = std::move(rutas), &acceso = app().plataforma().accesoArchivos()] {
        return espacioReal(rutas, acceso);
    };
    auto futuro = enSegundoPlano(Prioridad::PuedeColgarse, std::move(medir));
    const std::uint64_t bytes = co_await futuro;
    if (!vivo || medicion != m_medicion || bytes >= m_marcas.bytes()) co_return;
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

void DuplicatesViewEstado::pedirConfirmacion()
{
    fijarConfirmando(puedeMover());
}

void DuplicatesViewEstado::confirmar()
{
    if (!confirmando()) return;
    fijarConfirmando(false);
    if (puedeMover()) moverMarcadas();
}

QCoro::Task<> DuplicatesViewEstado::moverMarcadas()
{
    const QPointer vivo{this};
    OvantaApp &suya = app();
    std::vector<std::string> rutas(m_marcas.marcadas().begin(), m_marcas.marcadas().end());
    std::ranges::sort(rutas);
    const auto lote = std::make_shared<GuardianDeCopias::Lote>(suya.scanner().guardian(),
                                                               suya.scanner().duplicados(), rutas);
    auto mirada = [lote](const Papelera::Medida &medida) { return lote->permitir(medida.ruta); };
    auto limpieza = suya.limpiador().limpiarRutas(std::move(rutas), "duplicados", std::move(mirada));
    const ResultadoLimpieza resultado = co_await limpieza;
    suya.disco().medir();
    if (vivo) {
        desmarcarTodo();
        const Formato &formato = Formato::delUsuario();
        publicarResultado(QStringLiteral("Movidas %1 copias · %2")
                              .arg(formato.entero(static_cast<std::uint64_t>(resultado.movidos)),
                                   formato.bytes(resultado.bytes)),
                          resultado);
    }
    suya.scanner().analizar();
}

} // namespace ovanta
