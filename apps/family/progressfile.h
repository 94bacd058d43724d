#pragma once

#include <kdQCore/kdReporterInterface>

#include <QFile>

/// A file that reports how much of it has been read.
class ProgressFile : public QFile {
    Q_OBJECT

public:
    ProgressFile(const QString& path, const kdReporterInterface& reporter) : QFile(path), m_reporter(reporter)
    {
    }

protected:
    qint64 readData(char* data, qint64 maximalSize) override
    {
        const qint64 count = QFile::readData(data, maximalSize);
        m_read += qMax<qint64>(count, 0);
        if (size() > 0 && m_read < size())
            m_reporter.progress(static_cast<double>(m_read) / static_cast<double>(size()));
        return count;
    }

private:
    const kdReporterInterface& m_reporter;
    qint64 m_read = 0;
};
