#include "tests/ui/BancoInterfaz.h"

#include "core/qt/HiloPrincipal.h"
#include "platform/simulada/MemoriaSimulada.h"
#include "platform/simulada/SesionSimulada.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <map>

namespace ovanta::pruebas {

namespace {

namespace fs = std::filesystem;

QJsonObject entradaDe(const ReglaDePrueba &regla)
{
    const auto texto = [](const std::string &bytes) { return QString::fromStdString(bytes); };
    return {
        {QStringLiteral("id"), texto(regla.id)},
        {QStringLiteral("name"), texto(regla.nombre)},
        {QStringLiteral("path"), texto("~/" + regla.ruta)},
        {QStringLiteral("category"), texto(regla.categoria)},
        {QStringLiteral("risk"), texto(regla.riesgo)},
        {QStringLiteral("mode"), texto(regla.modo)},
        {QStringLiteral("why"), QStringLiteral("Guarda copias de lo descargado para no volver a pedirlo.")},
        {QStringLiteral("cost"), QStringLiteral("La próxima vez se descarga de nuevo y tarda algo más.")}};
}

void escribir(const fs::path &ruta, const QJsonArray &datos)
{
    fs::create_directories(ruta.parent_path());
    std::ofstream(ruta) << QJsonDocument(datos).toJson().toStdString();
}

} // namespace

BancoInterfaz::BancoInterfaz()
{
    if (!QQuickWindow::sceneGraphBackend().startsWith(QStringLiteral("software")))
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    QAccessible::setActive(true);
    plataforma.m_lugares.hogar = casa.ruta();
    plataforma.m_lugares.catalogo = casa.fuera("rules.json");
    plataforma.m_papelera.carpeta = casa.fuera("papelera");
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 122'000'000, 21'000'000};
    m_aspecto = std::make_unique<Aspecto>(plataforma.m_apariencia);
}

BancoInterfaz::~BancoInterfaz()
{
    soltar();
    esperarSegundoPlano(10'000);
    QCoreApplication::processEvents();
    m_app.reset();
}

OvantaApp &BancoInterfaz::app()
{
    if (!m_app) {
        m_app = std::make_unique<OvantaApp>(plataforma);
        Ovanta::usar(m_app.get(), m_aspecto.get(), nullptr);
    }
    return *m_app;
}

void BancoInterfaz::poner(const std::vector<ReglaDePrueba> &reglas)
{
    QJsonArray entradas;
    std::map<std::string, long> medidas;
    for (const ReglaDePrueba &regla : reglas) {
        entradas.append(entradaDe(regla));
        if (regla.kibibytes < 0) continue;
        for (const char *nombre : {"/uno", "/dos"})
            casa.archivo(casa.en(regla.ruta) + nombre);
        medidas[casa.en(regla.ruta)] = regla.kibibytes;
    }
    escribir(plataforma.m_lugares.catalogo, entradas);
    plataforma.m_herramientas.alEjecutar = [medidas](const auto &, const auto &args) {
        const auto medida = medidas.find(args.back());
        return std::to_string(medida == medidas.end() ? 4 : medida->second) + "\t" + args.back() + "\n";
    };
}

void BancoInterfaz::ponerCatalogoRealista()
{
    const std::vector<ReglaDePrueba> deUnaMaquina{
        {"npm", "Caché de npm", ".npm/_cacache", "developer", "safe", "contents", 2'340'112},
        {"pip", "Caché de pip", ".cache/pip", "developer", "safe", "self", 812'440},
        {"cargo", "Registro de Cargo", ".cargo/registry", "developer", "safe", "contents", 3'981'002},
        {"go", "Módulos de Go", "go/pkg/mod", "developer", "review", "contents", 5'120'300},
        {"gradle", "Cachés de Gradle", ".gradle/caches", "developer", "safe", "contents", 7'450'880},
        {"maven", "Repositorio local de Maven", ".m2/repository", "developer", "review", "contents",
         1'902'200},
        {"vscode", "Caché de Visual Studio Code", ".config/Code/Cache", "developer", "safe", "contents",
         402'000},
        {"jetbrains", "Índices de los entornos de JetBrains", ".cache/JetBrains", "developer", "safe", "self",
         3'300'440},
        {"ccache", "Objetos compilados de ccache", ".ccache", "developer", "safe", "contents", 5'242'880},
        {"docker", "Datos de Docker sin privilegios", ".local/share/docker", "developer", "manual", "self",
         18'230'000},
        {"huggingface", "Modelos de Hugging Face", ".cache/huggingface", "ml", "review", "contents",
         24'100'992},
        {"torch", "Pesos de PyTorch", ".cache/torch", "ml", "review", "contents", 1'200'000},
        {"ollama", "Modelos de Ollama", ".ollama/models", "ml", "manual", "self", 31'000'000},
        {"miniaturas", "Miniaturas de imágenes", ".cache/thumbnails", "cache", "safe", "contents", 210'400},
        {"fontconfig", "Caché de tipos de letra", ".cache/fontconfig", "cache", "safe", "contents", 1'100},
        {"mesa", "Sombreadores compilados de Mesa", ".cache/mesa_shader_cache", "cache", "safe", "contents",
         88'000},
        {"flatpak", "Cachés de las aplicaciones Flatpak con un nombre francamente largo para una fila",
         ".var/app/org.ejemplo.aplicacion.con.un.identificador.muy.largo/cache/directorio/interno/profundo",
         "cache", "safe", "contents", 640'000},
        {"vacia", "Registros de sesión", ".cache/sesiones", "cache", "safe", "contents", 0},
        {"firefox", "Caché de Firefox", ".cache/mozilla/firefox", "browser", "safe", "contents", 1'048'576},
        {"chromium", "Caché de Chromium", ".cache/chromium", "browser", "safe", "contents", 930'000},
        {"brave", "Caché de Brave", ".cache/BraveSoftware", "browser", "safe", "contents", -1},
        {"descargas", "Descargas", "Descargas", "user", "manual", "contents", 9'400'000},
        {"capturas", "Capturas de pantalla", "Imágenes/Capturas", "user", "review", "contents", 350'000},
    };
    std::vector<ReglaDePrueba> reglas = deUnaMaquina;
    for (int i = static_cast<int>(reglas.size()); i < 40; ++i) {
        const std::string numero = std::to_string(i);
        reglas.push_back({"herramienta-" + numero, "Herramienta " + numero, ".cache/herramienta-" + numero,
                          "developer", "safe", "contents", i % 4 == 0 ? -1 : 1000L * i});
    }
    poner(reglas);
}

void BancoInterfaz::ponerMemoria(MemoriaSistema::Nivel nivel)
{
    RegistroMutaciones registro;
    RelojManual reloj;
    MemoriaSimulada memoria{reloj};
    SesionSimulada sesion{reloj, registro};
    memoria.apretar(nivel);
    for (int lectura = 0; lectura < 2; ++lectura) {
        plataforma.m_memoriaSistema.total = memoria.fisica();
        plataforma.m_memoriaSistema.actual = memoria.leer();
        plataforma.m_procesos.cuantosNucleos = sesion.nucleos();
        plataforma.m_procesos.muestras = sesion.muestrear();
        plataforma.m_enMarcha.abiertas = sesion.listar();
        app();
        leerMemoria();
        reloj.avanzar(std::chrono::seconds{10});
        plataforma.m_reloj.fijar(plataforma.m_reloj.ahora() + std::chrono::seconds{10});
    }
}

void BancoInterfaz::leerMemoria()
{
    MemoryMonitor &mem = app().mem();
    int leidas = 0;
    const auto conexion = QObject::connect(&mem, &MemoryMonitor::rankingChanged, [&leidas] { ++leidas; });
    mem.medir();
    esperar([&] { return leidas > 0; });
    QObject::disconnect(conexion);
}

void BancoInterfaz::ponerHistorial(int entradas)
{
    const QStringList carpetas{QStringLiteral(".cache/pip"), QStringLiteral(".npm/_cacache/content-v2"),
                               QStringLiteral(".gradle/caches/modules-2"),
                               QStringLiteral("Descargas/instalador.iso")};
    const QStringList reglas{QStringLiteral("pip"), QStringLiteral("npm"), QStringLiteral("gradle"),
                             QStringLiteral("pesados")};
    QJsonArray historial;
    for (int i = 0; i < entradas; ++i) {
        const bool accion = i % 9 == 5;
        historial.append(QJsonObject{
            {QStringLiteral("id"),
             QStringLiteral("6F9619FF-8B86-4D01-B42D-%1").arg(i, 12, 16, QLatin1Char('0')).toUpper()},
            {QStringLiteral("ruta"),
             accion ? QStringLiteral("Docker: imágenes sin usar")
                    : QStringLiteral("%1/%2").arg(mostrar(casa.ruta()), carpetas[i % 4])},
            {QStringLiteral("bytes"), accion ? 0 : 1'250'000.0 * (i + 1)},
            {QStringLiteral("fecha"), QStringLiteral("2026-11-%1T10:%2:00Z")
                                          .arg(28 - i % 28, 2, 10, QLatin1Char('0'))
                                          .arg(i % 60, 2, 10, QLatin1Char('0'))},
            {QStringLiteral("regla"), accion ? QStringLiteral("desarrollo (permanente)") : reglas[i % 4]}});
    }
    escribir(fs::path(casa.ruta()) / "Library/Application Support/Ovanta/historial.json", historial);
}

void BancoInterfaz::esperar(const std::function<bool()> &cierto)
{
    ASSERT_TRUE(QTest::qWaitFor(cierto, 60'000));
}

void BancoInterfaz::medir()
{
    app().reglas().cargar();
    QCoro::waitFor(app().reglas().medir());
}

void BancoInterfaz::frenar()
{
    m_freno.emplace();
    plataforma.m_herramientas.alEjecutar = [guion = plataforma.m_herramientas.alEjecutar,
                                            aqui = m_freno->aqui()](const auto &binario, const auto &args) {
        aqui();
        return guion(binario, args);
    };
}

void BancoInterfaz::soltar()
{
    m_freno.reset();
}

BancoVentana::~BancoVentana()
{
    interfaz.reset();
}

void BancoVentana::abrir(Seccion seccion)
{
    app().navegacion().seleccionar(seccion);
    interfaz = std::make_unique<InterfazQml>(app());
    interfaz->abrirVentana();
    ASSERT_NE(ventana(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana()));
    ventana()->requestActivate();
    reposar();
}

QQuickWindow *BancoVentana::ventana() const
{
    for (QWindow *una : QGuiApplication::topLevelWindows())
        if (auto *deQuick = qobject_cast<QQuickWindow *>(una)) return deQuick;
    return nullptr;
}

namespace {

bool visible(QAccessibleInterface *objeto)
{
    const QAccessible::State estado = objeto->state();
    return !estado.invisible && !estado.offscreen;
}

QAccessibleInterface *buscar(QAccessibleInterface *desde,
                             const std::function<bool(QAccessibleInterface *)> &sirve)
{
    if (!desde) return nullptr;
    if (sirve(desde)) return desde;
    for (int i = 0; i < desde->childCount(); ++i)
        if (auto *hallado = buscar(desde->child(i), sirve)) return hallado;
    return nullptr;
}

} // namespace

QAccessibleInterface *BancoVentana::objeto(QAccessible::Role rol, const QString &nombre) const
{
    return buscar(QAccessible::queryAccessibleInterface(ventana()), [&](QAccessibleInterface *uno) {
        return uno->role() == rol && uno->text(QAccessible::Name) == nombre && visible(uno);
    });
}

bool BancoVentana::seVe(const QString &texto) const
{
    return buscar(QAccessible::queryAccessibleInterface(ventana()), [&](QAccessibleInterface *uno) {
        return uno->text(QAccessible::Name) == texto && visible(uno);
    });
}

bool BancoVentana::disponible(QAccessible::Role rol, const QString &nombre) const
{
    QAccessibleInterface *uno = objeto(rol, nombre);
    return uno && qobject_cast<QQuickItem *>(uno->object())->isEnabled();
}

void BancoVentana::pulsar(QAccessible::Role rol, const QString &nombre)
{
    QAccessibleInterface *uno = objeto(rol, nombre);
    ASSERT_NE(uno, nullptr) << nombre.toStdString();
    ASSERT_NE(uno->actionInterface(), nullptr) << nombre.toStdString();
    const QStringList acciones = uno->actionInterface()->actionNames();
    const QString accion = acciones.contains(QAccessibleActionInterface::toggleAction())
                               ? QAccessibleActionInterface::toggleAction()
                               : QAccessibleActionInterface::pressAction();
    ASSERT_TRUE(acciones.contains(accion)) << nombre.toStdString();
    uno->actionInterface()->doAction(accion);
    QCoreApplication::processEvents();
}

void BancoVentana::tecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores)
{
    QTest::keyClick(ventana(), tecla, modificadores);
    QCoreApplication::processEvents();
}

void BancoVentana::reposar()
{
    QTest::qWait(50);
}

void BancoVentana::capturar(const QString &nombre)
{
    const QString carpeta = qEnvironmentVariable("OVANTA_CAPTURAS");
    if (carpeta.isEmpty()) return;
    QTest::qWait(900);
    ASSERT_TRUE(ventana()->grabWindow().save(carpeta + QLatin1Char('/') + nombre + QStringLiteral(".png")));
}

} // namespace ovanta::pruebas
