#pragma once

#include "platform.h"

#include <QByteArray>

#include <mutex>

/// The callers' own way to the peer: what the system takes at once needs no hand-over to the worker thread,
/// which opens it while the connection is up and it has nothing to write itself, so that bytes keep their
/// order.
class SocketOutlet {
public:
    /// Keeps what it has where it is open already. Where the system gives no second descriptor it stays
    /// closed.
    void open(qintptr descriptor);
    void close();

    /// The number of bytes that went out; the rest, and finding out about errors, is left to the worker.
    int send(const QByteArray& bytes) const;

private:
    mutable std::mutex m_mutex;
    nPlatform::SocketTwin m_twin;
};
