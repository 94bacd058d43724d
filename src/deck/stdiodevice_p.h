#pragma once

#include <QIODevice>

#include <cstdio>

/// A stdio file as a device. Unlike QFile it leaves a file alone that it has nothing for: an owner who
/// flushes and then closes the file may do so while the device still lives.
class StdioDevice : public QIODevice {
public:
    explicit StdioDevice(std::FILE* file);
    /// Hands over what is pending.
    ~StdioDevice() override;

    bool isSequential() const override { return true; }

    /// Returns whether all that was ever written to the file is well.
    bool flush();
    void flushPending();

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    std::FILE* m_file;
    bool m_isPending = false;
};
