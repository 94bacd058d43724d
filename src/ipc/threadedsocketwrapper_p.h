#pragma once

#include "cotcpsocket.h"
#include "socketexchange_p.h"
#include "socketinbox_p.h"
#include "socketoutlet_p.h"

#include <QMetaMethod>
#include <QPointer>
#include <QSocketNotifier>
#include <QTcpSocket>
#include <QTimer>

/// The real socket, in the worker thread of its coTcpSocket. What arrives goes to the inbox at once. It
/// carries out one request at a time: a slot begins it, and it ends with end(), called from the slot itself,
/// from a signal of the socket or from the timer.
class KDQCORE_NO_EXPORT coTcpSocket::ThreadedSocketWrapper : public QObject {
    Q_OBJECT

public:
    /// All of them outlive the worker thread.
    ThreadedSocketWrapper(coTcpSocket& owner, SocketExchange& exchange, SocketInbox& inbox,
                          SocketOutlet& outlet);
    ~ThreadedSocketWrapper() override;

    /// Moves to the inbox what has come, as far as there is room, and watches for more.
    void resume();

    void connectToHost(const QString& address, quint16 port, int openMode);
    void disconnectFromHost();
    void disconnectFromHostBlocking();
    void writeBlocking(const QByteArray& bytes);
    void setSocketDescriptor(qint64 descriptor, int state, int openMode);
    void close();
    void peerName();
    void peerPort();
    void peerAddress();

protected:
    bool event(QEvent* event) override;
    /// Lets Qt receive only where callers do not.
    bool eventFilter(QObject* notifier, QEvent* event) override;

private:
    /// What is under way; errors of the socket end those from Connect on. Reading is left to the inbox.
    enum e_Operation : int { None = 0, Immediate = 1, Connect = 2, BlockingDisconnect = 3, Write = 4 };

    void forwardSignals();
    /// \a signal is one of the owner's.
    void forward(const QMetaMethod& signal, QGenericArgument argument = QGenericArgument());

    void end(SocketReply&& reply = SocketReply::done());
    /// Answers a request that needs no waiting.
    void answer(const QVariant& result = QVariant());
    SocketReply fault() const;

    void onConnected();
    void onDisconnected();
    void onBytesWritten();
    void onError(QAbstractSocket::SocketError code);
    void onStateChanged(QAbstractSocket::SocketState state);
    void onTimeout();
    void onPatienceOver();

    void receive();
    void shareReceiving();
    void prepareConnection();
    void openOutlet();
    void publishState();
    bool isUnconnected() const;
    bool isConnecting() const;
    void leaveHost();

    coTcpSocket& m_owner;
    SocketExchange& m_exchange;
    SocketInbox& m_inbox;
    SocketOutlet& m_outlet;
    QTcpSocket m_socket;
    QTimer m_timer;
    QTimer m_patience;                        ///< runs where callers are left to receive
    QPointer<QSocketNotifier> m_readNotifier; ///< Qt's own; none where callers cannot receive
    e_Operation m_pending = None;
};
