#pragma once

#include <kdQCore/kdLog>

#include <QMutex>
#include <QStringList>
#include <QVector>

/// Collects the log lines that are written while it lives.
class LogCapture : public kdLog::Sink {
public:
    LogCapture() { attach(); }
    ~LogCapture() override { detach(); }

    void received(const kdLog::Record& record) override
    {
        QMutexLocker lock(&m_mutex);
        m_records.append(record);
    }

    QVector<kdLog::Record> records() const
    {
        QMutexLocker lock(&m_mutex);
        return m_records;
    }

    QStringList texts() const
    {
        QStringList result;
        for (const kdLog::Record& record : records())
            result.append(record.text);
        return result;
    }

    bool contains(kdLog::Severity severity, kdLog::Tag tag, const QString& text) const
    {
        for (const kdLog::Record& record : records())
            if (record.severity == severity && record.tag == tag && record.text == text)
                return true;
        return false;
    }

private:
    mutable QMutex m_mutex;
    QVector<kdLog::Record> m_records;
};
