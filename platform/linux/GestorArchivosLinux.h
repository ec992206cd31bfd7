#pragma once

#include "platform/GestorArchivos.h"

#include <QCoroTask>
#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <string>

namespace ovanta {

/// org.freedesktop.FileManager1, else whatever the desktop opens a folder with.
class GestorArchivosLinux final : public QObject, public GestorArchivos
{
    Q_OBJECT

public:
    explicit GestorArchivosLinux(const QDBusConnection &sesion);

    void mostrar(const std::string &ruta) override;
    void abrirPapelera() override;

private:
    QCoro::Task<> buscarYMostrar(std::string ruta);
    void pedir(const QString &metodo, const QString &uri, const QString &uriSiFalla);

    QDBusConnection m_bus;
};

} // namespace ovanta
