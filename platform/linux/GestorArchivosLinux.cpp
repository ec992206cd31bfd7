#include "platform/linux/GestorArchivosLinux.h"

#include "core/Rutas.h"
#include "core/qt/SegundoPlano.h"
#include "platform/linux/InfoPapelera.h"
#include "platform/linux/LlamadaDBus.h"

#include <QCoroFuture>
#include <QDBusError>
#include <QPointer>
#include <QProcess>
#include <QStringList>
#include <array>
#include <sys/stat.h>

namespace ovanta {

namespace {

// https://www.freedesktop.org/wiki/Specifications/file-manager-interface/
const QString nombreGestor = QStringLiteral("org.freedesktop.FileManager1");
const QString rutaGestor = QStringLiteral("/org/freedesktop/FileManager1");
const QString mostrarObjetos = QStringLiteral("ShowItems");
const QString mostrarCarpetas = QStringLiteral("ShowFolders");

const QString uriPapelera = QStringLiteral("trash:///");

QString uriDe(std::string_view ruta)
{
    return QStringLiteral("file://") + QString::fromStdString(codificarPorcentaje(ruta));
}

bool estaAhi(const std::string &ruta)
{
    struct stat datos{};
    return ::lstat(ruta.c_str(), &datos) == 0;
}

/// The path itself or the nearest folder above it that exists. Blocking.
std::string masCercana(std::string ruta)
{
    while (ruta != "/" && !estaAhi(ruta))
        ruta = carpetaContenedora(ruta);
    return ruta;
}

/// Opens an address with the desktop's own tool, and leaves that running.
void abrirConEscritorio(const QString &uri)
{
    const std::array<std::pair<QString, QStringList>, 2> abridores = {{
        {QStringLiteral("xdg-open"), {uri}},
        {QStringLiteral("gio"), {QStringLiteral("open"), uri}},
    }};
    for (const auto &[programa, argumentos] : abridores) {
        QProcess proceso;
        proceso.setProgram(programa);
        proceso.setArguments(argumentos);
        proceso.setStandardOutputFile(QProcess::nullDevice());
        proceso.setStandardErrorFile(QProcess::nullDevice());
        if (proceso.startDetached()) return;
    }
}

} // namespace

GestorArchivosLinux::GestorArchivosLinux(const QDBusConnection &sesion) : m_bus(sesion) {}

void GestorArchivosLinux::mostrar(const std::string &ruta)
{
    const std::string limpia = estandarizar(ruta);
    if (limpia.starts_with('/')) buscarYMostrar(limpia);
}

QCoro::Task<> GestorArchivosLinux::buscarYMostrar(std::string ruta)
{
    const QPointer vivo{this};
    auto trabajo = [ruta] { return masCercana(ruta); };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(trabajo));
    const std::string hallada = co_await futuro;
    if (!vivo) co_return;
    if (hallada == ruta)
        pedir(mostrarObjetos, uriDe(hallada), uriDe(carpetaContenedora(hallada)));
    else
        pedir(mostrarCarpetas, uriDe(hallada), uriDe(hallada));
}

void GestorArchivosLinux::abrirPapelera()
{
    pedir(mostrarCarpetas, uriPapelera, uriPapelera);
}

void GestorArchivosLinux::pedir(const QString &metodo, const QString &uri, const QString &uriSiFalla)
{
    auto mensaje = QDBusMessage::createMethodCall(nombreGestor, rutaGestor, nombreGestor, metodo);
    mensaje << QStringList{uri} << QString{};
    llamarDBus(m_bus, mensaje, this, [uriSiFalla](const QDBusMessage &respuesta) {
        if (respuesta.type() == QDBusMessage::ReplyMessage) return;
        // A file manager that is slow to start opens its window all the same; don't open a second one.
        if (QDBusError{respuesta}.type() == QDBusError::NoReply) return;
        abrirConEscritorio(uriSiFalla);
    });
}

} // namespace ovanta
