#pragma once

#include "cotcpsocket.h"
#include "socketexchange_p.h"

#include <QMetaMethod>
#include <QTcpSocket>
#include <QTimer>

/// The real socket, in the worker thread of its coTcpSocket. It carries out one request at a time: a slot
/// begins it, and it ends with succeed() or fail(), called from the slot itself, from a signal of the socket
/// or from the timer.
class coTcpSocket::ThreadedSocketWrapper : public QObject {
    Q_OBJECT

public:
    /// \a owner and \a exchange outlive the worker thread.
    ThreadedSocketWrapper(coTcpSocket& owner, SocketExchange& exchange);

    void connectToHost(const QString& address, quint16 port, int openMode);
    void disconnectFromHost();
    void disconnectFromHostBlocking();
    void writeBlocking(const QByteArray& bytes);
    void readBlocking(qint64 maxSize);
    void readLineBlocking();
    void state();
    void setSocketDescriptor(qint64 descriptor, int state, int openMode);
    void close();
    void bytesAvailable();
    void canReadLine();
    void peerName();
    void peerPort();
    void peerAddress();

protected:
    bool event(QEvent* event) override;

private:
    /// What is under way; errors of the socket end those from Connect on.
    enum e_Operation : int {
        None = 0,
        Immediate = 1,
        Connect = 2,
        BlockingDisconnect = 3,
        Write = 4,
        Read = 5,
        ReadLine = 6
    };

    void forwardSignals();
    /// \a signal is one of the owner's.
    void forward(const QMetaMethod& signal, QGenericArgument argument = QGenericArgument());

    void begin(e_Operation operation);
    void succeed();
    void fail(int code, const QString& text);
    void failWithSocketError();
    void end();
    /// Answers a request that needs no waiting.
    void answer(const QVariant& result = QVariant());

    void onConnected();
    void onDisconnected();
    void onReadyRead();
    void onBytesWritten();
    void onError(QAbstractSocket::SocketError code);
    void onTimeout();

    void prepareConnection();
    bool isUnconnected() const;
    bool isConnecting() const;
    void leaveHost();
    void takeBytes();
    void takeLine();

    coTcpSocket& m_owner;
    SocketExchange& m_exchange;
    QTcpSocket m_socket;
    QTimer m_timer;
    e_Operation m_pending = None;
    SocketExchange::Next m_next = SocketExchange::Soon; ///< after the pending request
    qint64 m_readSize = -1;
    SocketReply m_reply;
};
