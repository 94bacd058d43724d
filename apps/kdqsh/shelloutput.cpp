#include "shelloutput.h"

#include <kdQCore/kdDataTable>

#include <QFileInfo>
#include <QSaveFile>

namespace {

template <typename File>
class WatchedFile : public File {
public:
    WatchedFile(const QString& path, const ShellCall& call, qint64 expectedSize)
        : File(path), m_call(call), m_expectedSize(static_cast<double>(expectedSize))
    {
    }

protected:
    qint64 writeData(const char* data, qint64 size) override
    {
        constexpr double interval = 65536.0; // XML comes in pieces of a few bytes
        m_written += static_cast<double>(size);
        if (m_written >= m_nextAsked) {
            m_nextAsked = m_written + interval;
            m_isStopped = m_isStopped || !m_call.goOn(m_written / m_expectedSize);
        }
        return m_isStopped ? -1 : File::writeData(data, size);
    }

private:
    const ShellCall& m_call;
    double m_expectedSize;
    double m_written = 0.0;
    double m_nextAsked = 0.0;
    bool m_isStopped = false;
};

bool fail(const ShellCall& call, const QString& path, const QIODevice& file)
{
    return call.fail(QCoreApplication::translate("ShellOutput", "'%1' cannot be written: %2")
                         .arg(path, file.errorString()));
}

/// As many rows as \a rows, from the whole length of the table.
kdDataTable sample(const kdDataTable& table, int rows)
{
    kdDataTable result(table);
    for (int column = 0; column < table.columns(); ++column) {
        QVector<double> values(rows);
        for (int row = 0; row < rows; ++row)
            values[row] = table.columnRef(column).value(int(qint64(table.rows()) * row / rows));
        result.columnRef(column).setValues(values);
    }
    return result;
}

class ByteCounter : public QIODevice {
public:
    ByteCounter() { open(WriteOnly); }
    qint64 count() const { return m_count; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override
    {
        m_count += size;
        return size;
    }

private:
    qint64 m_count = 0;
};

qint64 expectedSize(const kdDataTable& table, const nShellOutput::WriteTable& write)
{
    constexpr int sampleRows = 256;
    if (table.rows() <= sampleRows)
        return 1;
    ByteCounter bytes;
    write(sample(table, sampleRows), bytes);
    return bytes.count() * table.rows() / sampleRows;
}

} // namespace

bool nShellOutput::write(const ShellCall& call, const QString& path, qint64 expectedSize, const Write& write)
{
    const ShellOperation operation(call,
                                   QCoreApplication::translate("ShellOutput", "Writing '%1'").arg(path));
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile()) {
        WatchedFile<QFile> device(path, call, expectedSize);
        return (device.open(QIODevice::WriteOnly) && write(device) && device.flush())
            || fail(call, path, device);
    }
    WatchedFile<QSaveFile> file(path, call, expectedSize);
    file.setDirectWriteFallback(true);
    return (file.open(QIODevice::WriteOnly) && write(file) && !call.isStopped() && file.commit())
        || fail(call, path, file);
}

bool nShellOutput::write(const ShellCall& call, const QString& path, const kdDataTable& table,
                         const WriteTable& writeTable)
{
    return write(call, path, expectedSize(table, writeTable),
                 [&](QIODevice& device) { return writeTable(table, device); });
}
