#pragma once

#include <kdQCore/kdReporterInterface>

#include <QFile>

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
