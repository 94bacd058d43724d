#include "shelldeck.h"

#include <QDir>
#include <QFileInfo>

void ShellDeck::File::watch(const Watch::GoOn& goOn, qint64 expectedBytes)
{
    m_goOn = goOn;
    m_expected = static_cast<double>(qMax<qint64>(expectedBytes, 1));
    m_written = 0.0;
    m_wasStopped = false;
}

qint64 ShellDeck::File::writeData(const char* data, qint64 size)
{
    m_written += static_cast<double>(size);
    m_wasStopped = m_wasStopped || (m_goOn && !m_goOn(m_written / m_expected));
    return m_wasStopped ? -1 : QFile::writeData(data, size);
}

ShellDeck::Watch::Watch(ShellDeck& deck, const GoOn& goOn, qint64 expectedBytes) : m_deck(deck)
{
    m_deck.m_file.watch(goOn, expectedBytes);
}

ShellDeck::Watch::~Watch()
{
    m_deck.m_writer->flush();
    if (m_deck.m_file.wasStopped())
        m_deck.m_stream->resetStatus();
    m_deck.m_file.watch(GoOn(), 0);
}

ShellDeck::~ShellDeck()
{
    if (isOpen())
        close();
}

bool ShellDeck::open(const QString& path, CFEDatLineWriter::datFormat format,
                     CFEDatLineWriter::datExtensionMode mode, ShellLocks& locks)
{
    m_file.setFileName(path);
    if (!lockFolder(locks))
        return false;
    if (!m_file.open(QIODevice::WriteOnly)) {
        m_errorText = tr("The deck '%1' cannot be opened for writing: %2").arg(path, m_file.errorString());
        m_lock.reset();
        return false;
    }
    m_stream = std::make_unique<QTextStream>(&m_file);
    m_writer = std::make_unique<CFEDatLineWriter>(mode, format);
    m_writer->setFileHandler(m_stream.get());
    return true;
}

bool ShellDeck::lockFolder(ShellLocks& locks)
{
    const QFileInfo file(path());
    const bool isDevice = file.exists() && !file.isFile();
    if (isDevice || !file.dir().exists())
        return true; // nothing to guard; what is missing shows when the file is opened
    m_lock = locks.of(file.absolutePath());
    if (m_lock->tryLock(0))
        return true;
    m_errorText = ShellLocks::refusal(*m_lock);
    m_lock.reset();
    return false;
}

/// False where somebody else may have written in the folder meanwhile.
bool ShellDeck::releaseFolder()
{
    const ShellLocks::Lock lock = std::move(m_lock);
    return lock == nullptr || lock->touch();
}

bool ShellDeck::flush()
{
    if (m_writer->flush())
        return true;
    m_errorText = tr("The deck '%1' cannot be written: %2").arg(path(), m_file.errorString());
    return false;
}

bool ShellDeck::close()
{
    bool isWritten = flush();
    m_writer.reset();
    m_stream.reset();
    m_file.close();
    if (isWritten && m_file.error() != QFileDevice::NoError) {
        m_errorText = tr("The deck '%1' cannot be written: %2").arg(path(), m_file.errorString());
        isWritten = false;
    }
    if (!releaseFolder() && isWritten) {
        m_errorText = tr("The deck '%1' is written, but its folder's lock was lost to another process, which "
                         "may have written there too.")
                          .arg(path());
        return false;
    }
    return isWritten;
}

bool ShellDeck::goBackTo(const Mark& mark)
{
    if (!flush() || m_file.isSequential() || !m_file.resize(mark.size) || !m_file.seek(mark.size))
        return false;
    m_writer->setFormat(mark.format);
    return true;
}
