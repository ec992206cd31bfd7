#include "ui/BigFilesViewEstado.h"

#include "core/Tamano.h"
#include "core/qt/Formato.h"

#include <algorithm>
#include <string_view>

namespace ovanta {

namespace {

enum Pestana { Grandes, Carpetas, DescargasViejas, Capturas, Instaladores };

} // namespace

BigFilesViewEstado::BigFilesViewEstado(QObject *parent) : HallazgosEstado(parent)
{
    connect(&app().scanner(), &Scanner::duplicadosChanged, this, &BigFilesViewEstado::publicarGrandes);
    connect(&app().scanner(), &Scanner::hallazgosChanged, this, &BigFilesViewEstado::publicarLoDemas);
    connect(&app().scanner(), &Scanner::ajustesChanged, this, &BigFilesViewEstado::listaChanged);
    connect(this, &HallazgosEstado::analisisChanged, this, &BigFilesViewEstado::listaChanged);
    connect(this, &HallazgosEstado::movimientoChanged, this, &BigFilesViewEstado::marcasChanged);
    publicarGrandes();
    publicarLoDemas();
}

void BigFilesViewEstado::publicarGrandes()
{
    m_grandes.publicar(app().scanner().grandes());
    sumarMarcados();
    Q_EMIT listaChanged();
}

void BigFilesViewEstado::publicarLoDemas()
{
    m_carpetas.publicar(app().scanner().carpetas());
    m_descargasViejas.publicar(app().scanner().descargasViejas());
    m_capturas.publicar(app().scanner().capturas());
    m_instaladores.publicar(app().scanner().instaladores());
    sumarMarcados();
    Q_EMIT listaChanged();
}

void BigFilesViewEstado::fijarPestana(int pestana)
{
    if (pestana == m_pestana || pestana < 0 || pestana >= static_cast<int>(m_listas.size())) return;
    m_pestana = pestana;
    Q_EMIT listaChanged();
}

QStringList BigFilesViewEstado::pestanas() const
{
    const auto conCuenta = [](const QString &titulo, const ModeloHallados &lista) {
        return QStringLiteral("%1 (%2)").arg(
            titulo, Formato::delUsuario().entero(static_cast<std::uint64_t>(lista.rowCount())));
    };
    return {conCuenta(QStringLiteral("Archivos grandes"), m_grandes),
            conCuenta(QStringLiteral("Dependencias"), m_carpetas),
            conCuenta(QStringLiteral("Descargas viejas"), m_descargasViejas),
            conCuenta(QStringLiteral("Capturas"), m_capturas),
            conCuenta(QStringLiteral("Instaladores"), m_instaladores)};
}

bool BigFilesViewEstado::deCarpetas() const
{
    return m_pestana == Carpetas;
}

QString BigFilesViewEstado::tituloVacio() const
{
    if (deCarpetas())
        return yaAnalizado() ? QStringLiteral("Sin dependencias pesadas")
                             : QStringLiteral("Busca dependencias pesadas");
    return yaAnalizado() ? QStringLiteral("Sin resultados") : QStringLiteral("Encuentra lo que ocupa más");
}

QString BigFilesViewEstado::mensajeVacio() const
{
    if (!yaAnalizado())
        return deCarpetas() ? QStringLiteral("Analiza tu Mac para encontrar node_modules, entornos y builds "
                                             "regenerables.")
                            : QStringLiteral("Analiza tus carpetas para ordenar los archivos por tamaño.");
    switch (m_pestana) {
    case Carpetas:
        return QStringLiteral("No se han encontrado carpetas de dependencias.");
    case DescargasViejas:
        return QStringLiteral("Nada en Descargas con más de %1 días.").arg(app().scanner().diasDescargas());
    case Capturas:
        return QStringLiteral("No se reconocieron capturas en las carpetas analizadas.");
    case Instaladores:
        return QStringLiteral("No se encontraron paquetes de instalación antiguos.");
    default:
        return QStringLiteral("Sin resultados todavía.");
    }
}

QString BigFilesViewEstado::simboloVacio() const
{
    switch (m_pestana) {
    case Carpetas:
        return QStringLiteral("folder");
    case DescargasViejas:
        return QStringLiteral("arrow.down.circle");
    case Capturas:
        return QStringLiteral("camera.viewfinder");
    case Instaladores:
        return QStringLiteral("shippingbox");
    default:
        return QStringLiteral("doc.fill");
    }
}

void BigFilesViewEstado::sumarMarcados()
{
    m_bytesMarcados = 0;
    std::unordered_set<std::string_view> contadas;
    const auto contar = [&](const std::string &ruta, std::uint64_t bytes) {
        if (m_marcadas.contains(ruta) && contadas.insert(ruta).second)
            m_bytesMarcados = sumar(m_bytesMarcados, bytes);
    };
    for (const auto *lista : {&m_grandes, &m_descargasViejas, &m_capturas, &m_instaladores})
        for (const ArchivoHallado &archivo : lista->lista())
            contar(archivo.ruta, archivo.bytes);
    for (const CarpetaPesada &carpeta : m_carpetas.lista())
        contar(carpeta.ruta, carpeta.bytes);
    Q_EMIT marcasChanged();
}

QString BigFilesViewEstado::textoMarcados() const
{
    if (m_marcadas.empty()) return {};
    const Formato &formato = Formato::delUsuario();
    return formato.entero(m_marcadas.size()) + QStringLiteral(" marcados · ") +
           formato.bytes(m_bytesMarcados);
}

QString BigFilesViewEstado::tituloConfirmacion() const
{
    return QStringLiteral("¿Mover %1 elementos?").arg(Formato::delUsuario().entero(m_marcadas.size()));
}

QString BigFilesViewEstado::textoConfirmar() const
{
    return QStringLiteral("Mover y liberar ") + Formato::delUsuario().bytes(m_bytesMarcados);
}

void BigFilesViewEstado::marcar(int fila, bool marcada)
{
    const std::string *ruta = filas()->rutaDe(fila);
    if (!ruta) return;
    if (marcada)
        m_marcadas.insert(*ruta);
    else
        m_marcadas.erase(*ruta);
    cambioDeMarcas();
}

void BigFilesViewEstado::olvidarMarcas()
{
    m_marcadas.clear();
    cambioDeMarcas();
}

void BigFilesViewEstado::cambioDeMarcas()
{
    filas()->marcasCambiadas();
    sumarMarcados();
    revisarConfirmacion();
}

void BigFilesViewEstado::mostrarEnGestor(int fila)
{
    if (const std::string *ruta = filas()->rutaDe(fila)) app().plataforma().gestorArchivos().mostrar(*ruta);
}

QString BigFilesViewEstado::textoMovidos(const QString &cuantos, const QString &bytes) const
{
    return QStringLiteral("Movidos %1 · %2").arg(cuantos, bytes);
}

QCoro::Task<> BigFilesViewEstado::moverMarcadas()
{
    std::vector<std::string> rutas(m_marcadas.begin(), m_marcadas.end());
    std::ranges::sort(rutas);
    const auto lote = std::make_shared<GuardianDeCopias::Lote>(app().scanner().guardian());
    auto mirada = [lote](const Papelera::Medida &medida) { return lote->permitir(medida.ruta); };
    return mover(std::move(rutas), "pesados", std::move(mirada));
}

} // namespace ovanta
