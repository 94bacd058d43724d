#pragma once

#include "shelllocks.h"

#include <kdQCore/CFEDatLineWriter>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <functional>
#include <memory>

/// The deck that a session writes, with its file and its writer. While it is open, its folder is locked.
class ShellDeck {
    Q_DECLARE_TR_FUNCTIONS(ShellDeck)

public:
    ~ShellDeck();

    bool isOpen() const { return m_writer != nullptr; }
    QString path() const { return m_file.fileName(); }
    /// Only of an open deck.
    CFEDatLineWriter& writer() { return *m_writer; }
    const CFEDatLineWriter& writer() const { return *m_writer; }

    // These return false with errorText() set.
    bool open(const QString& path, CFEDatLineWriter::datFormat format,
              CFEDatLineWriter::datExtensionMode mode, ShellLocks& locks);
    bool flush();
    /// Also closes where the last bytes cannot be written.
    bool close();
    QString errorText() const { return m_errorText; }

    /// While it lives, what is written to the open deck tells how much of the expected bytes it is, and fails
    /// once the answer is no; after that the deck can be written again.
    class Watch {
    public:
        using GoOn = std::function<bool(double done)>;

        Watch(ShellDeck& deck, const GoOn& goOn, qint64 expectedBytes);
        ~Watch();
        Q_DISABLE_COPY(Watch)

    private:
        ShellDeck& m_deck;
    };

    /// A state of the open deck to come back to.
    struct Mark {
        qint64 size;
        CFEDatLineWriter::datFormat format;
    };
    Mark mark() const { return {m_file.size(), m_writer->getFormat()}; }
    /// Takes back what was written since; false where the file does not allow it (a device, a pipe).
    bool goBackTo(const Mark& mark);

private:
    class File : public QFile {
    public:
        void watch(const Watch::GoOn& goOn, qint64 expectedBytes);
        /// Whether writing failed for that reason.
        bool wasStopped() const { return m_wasStopped; }

    protected:
        qint64 writeData(const char* data, qint64 size) override;

    private:
        Watch::GoOn m_goOn;
        double m_expected = 0.0;
        double m_written = 0.0;
        bool m_wasStopped = false;
    };

    bool lockFolder(ShellLocks& locks);
    bool releaseFolder();

    ShellLocks::Lock m_lock; ///< none where the deck is a device or a pipe
    File m_file;
    std::unique_ptr<QTextStream> m_stream;
    std::unique_ptr<CFEDatLineWriter> m_writer;
    QString m_errorText;
};
