#pragma once

#include <kdqcore_export.h>

#include <QFileInfo>
#include <QStringList>

/// The command log that is kept beside a processed file.
///
/// For `<dir>/job.dat` the protocol is `<dir>/_log/job.dat.log`, with the system's own separators. Lines are
/// appended in local 8-bit text and end with a single line feed; every object opens its part of the file
/// with a header that tells the date.
///
/// \code
/// kdProtocol protocol(QStringLiteral("job.dat"));
/// if (!protocol.addMessage(QStringLiteral("deck write job.dat")))
///     showWarning(tr("'%1' cannot be written.").arg(protocol.absoluteFilePath()));
/// \endcode
///
/// The file is open only during a call, so that several objects and processes can take turns.
/// Not thread-safe.
class KDQCORE_EXPORT kdProtocol {
public:
    /// The subject, the file whose processing is logged. It must exist when a message is added.
    explicit kdProtocol(const QString& subjectFile);

    /// Empty while the subject does not exist.
    QString absoluteFilePath() const;

    /// Appends the lines that are not empty; true without touching the file where none is left. False where
    /// the subject is missing, the folder cannot be made, or the file cannot be opened or takes no more
    /// bytes.
    bool addMessage(QStringList lines);
    bool addMessage(const QString& line);

private:
    QString absolutePath() const;
    QString relativePath() const;
    bool createLog();
    bool writeHeader(bool isNew) const;

    QFileInfo m_subject;
    bool m_isFirstWrite = true;
};
