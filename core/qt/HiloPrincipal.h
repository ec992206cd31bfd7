#pragma once

#include <QCoreApplication>
#include <QThread>

/// Every mutator of a store starts with this: stores belong to the main thread.
#define OVANTA_HILO_PRINCIPAL()                                                                              \
    Q_ASSERT_X(QThread::currentThread() == QCoreApplication::instance()->thread(), Q_FUNC_INFO,              \
               "stores belong to the main thread")
