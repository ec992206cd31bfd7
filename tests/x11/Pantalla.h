#pragma once

#include "tests/platform/BusDePrueba.h"

#include <QProcess>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ovanta::pruebas {

/// A child of the tests that ends with them at the latest.
class Hijo
{
public:
    Hijo(const QString &programa, const QStringList &argumentos, const std::string &pantalla)
    {
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(QStringLiteral("DISPLAY"), QString::fromStdString(pantalla));
        m_proceso.setProcessEnvironment(entorno);
        m_proceso.setStandardErrorFile(QProcess::nullDevice());
        m_proceso.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        m_proceso.start(programa, argumentos);
        EXPECT_TRUE(m_proceso.waitForStarted(30'000)) << programa.toStdString();
        m_pid = static_cast<std::int32_t>(m_proceso.processId());
    }
    ~Hijo() { matar(); }

    std::int32_t pid() const { return m_pid; }
    bool vive() const { return m_proceso.state() != QProcess::NotRunning; }
    /// Waits for its end: the exit code, or 128 and the signal that ended it.
    int esperarFin()
    {
        EXPECT_TRUE(esperarA([this] { return !vive(); })) << "it did not end";
        return m_proceso.exitStatus() == QProcess::CrashExit ? 128 + m_proceso.exitCode()
                                                             : m_proceso.exitCode();
    }
    /// Waits until it says a line of this text, and takes that line.
    bool esperarQueDiga(const QByteArray &texto)
    {
        return esperarA([&] {
            m_dicho += m_proceso.readAllStandardOutput();
            const qsizetype lugar = m_dicho.indexOf(texto + '\n');
            if (lugar >= 0) m_dicho.remove(lugar, texto.size() + 1);
            return lugar >= 0;
        });
    }
    void matar()
    {
        m_proceso.kill();
        m_proceso.waitForFinished();
    }
    QByteArray leerLinea()
    {
        EXPECT_TRUE(esperarA([this] { return m_proceso.canReadLine(); }));
        return m_proceso.readLine().trimmed();
    }

private:
    QProcess m_proceso;
    QByteArray m_dicho;
    std::int32_t m_pid = 0;
};

/// A virtual display with a window manager.
class Pantalla
{
public:
    Pantalla() { encender({}); }

    const std::string &nombre() const { return m_nombre; }
    Hijo &servidor() { return *m_servidor; }
    Hijo &gestor() { return *m_gestor; }

    void apagar()
    {
        m_gestor.reset();
        m_servidor.reset();
    }
    /// The same display again, with a server of its own.
    void reencender() { encender(QString::fromStdString(m_nombre)); }

private:
    void encender(const QString &nombre)
    {
        QStringList argumentos;
        if (!nombre.isEmpty()) argumentos << nombre;
        argumentos << QStringLiteral("-displayfd") << QStringLiteral("1") << QStringLiteral("-screen")
                   << QStringLiteral("0") << QStringLiteral("640x480x24") << QStringLiteral("-nolisten")
                   << QStringLiteral("tcp") << QStringLiteral("-noreset");
        m_servidor = std::make_unique<Hijo>(QStringLiteral("Xvfb"), argumentos, "");
        m_nombre = ":" + m_servidor->leerLinea().toStdString();
        m_gestor = std::make_unique<Hijo>(QStringLiteral("openbox"),
                                          QStringList{QStringLiteral("--sm-disable")}, m_nombre);
    }

    std::string m_nombre;
    std::unique_ptr<Hijo> m_servidor;
    std::unique_ptr<Hijo> m_gestor;
};

} // namespace ovanta::pruebas
