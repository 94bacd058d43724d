#pragma once

#include <kdQCore/kdReporterInterface>

#include <QFile>
#include <QSaveFile>

#include <functional>

/// A file that reports how much of it has been read, and ends early where its user says so.
class ProgressFile : public QFile {
    Q_OBJECT

public:
    using StopCondition = std::function<bool()>;

    /// \a stopsWhen is asked at every piece that is read; once it says yes, reading fails.
    ProgressFile(const QString& path, const kdReporterInterface& reporter,
                 StopCondition stopsWhen = StopCondition())
        : QFile(path), m_reporter(reporter), m_stopsWhen(std::move(stopsWhen))
    {
    }

protected:
    qint64 readData(char* data, qint64 maximalSize) override
    {
        if (m_stopsWhen && m_stopsWhen())
            return -1;
        const qint64 count = QFile::readData(data, maximalSize);
        m_read += qMax<qint64>(count, 0);
        if (size() > 0 && m_read < size())
            m_reporter.progress(static_cast<double>(m_read) / static_cast<double>(size()));
        return count;
    }

private:
    const kdReporterInterface& m_reporter;
    StopCondition m_stopsWhen;
    qint64 m_read = 0;
};

/// A file that reports how much of about \a expectedSize has been written, and takes its place in the end.
class ProgressSaveFile : public QSaveFile {
    Q_OBJECT

public:
    ProgressSaveFile(const QString& path, const kdReporterInterface& reporter, qint64 expectedSize)
        : QSaveFile(path), m_reporter(reporter), m_expectedSize(expectedSize)
    {
    }

protected:
    qint64 writeData(const char* data, qint64 size) override
    {
        constexpr qint64 interval = 65536; // XML comes in pieces of a few bytes
        const bool isDue = m_written / interval != (m_written + size) / interval;
        m_written += size;
        if (isDue && m_written < m_expectedSize)
            m_reporter.progress(static_cast<double>(m_written) / static_cast<double>(m_expectedSize));
        return QSaveFile::writeData(data, size);
    }

private:
    const kdReporterInterface& m_reporter;
    qint64 m_expectedSize;
    qint64 m_written = 0;
};
