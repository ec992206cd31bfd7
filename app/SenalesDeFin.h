#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace ovanta {

/// Turns SIGTERM, SIGINT and SIGHUP (the end of the session) into a signal on the main thread, so
/// that the program ends in order and takes its tools with it. One object a process.
class SenalesDeFin : public QObject
{
    Q_OBJECT
public:
    explicit SenalesDeFin(QObject *parent = nullptr);
    ~SenalesDeFin() override;

Q_SIGNALS:
    void pedida();

private:
    std::unique_ptr<QSocketNotifier> m_aviso;
};

} // namespace ovanta
