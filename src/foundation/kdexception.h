#pragma once

#include <kdqcore_export.h>

#include <QString>

#include <stdexcept>

/// Root of the library's own exceptions: a failure that the caller cannot sensibly continue from.
///
/// The message may carry rich-text markup for a message box. It is kept in the process's local 8-bit
/// encoding, as what() returns it; characters that the encoding lacks come back as its substitute.
///
/// \code
/// try {
///     nFileSystem::copyDirRecursivly(source, target);
/// } catch (const kdException& failure) {
///     showBox(failure.getErrorMessage());
///     KD_LOG(kdLog::Error, kdLog::General, failure.nonHTMLErrorMessage());
/// }
/// \endcode
///
/// A plain value: copies share nothing that can change.
class KDQCORE_EXPORT kdException : public std::runtime_error {
public:
    /// An empty message.
    kdException();
    kdException(const QString& message);
    kdException(const kdException&) = default;
    kdException(kdException&&) = default;
    kdException& operator=(const kdException&) = default;
    kdException& operator=(kdException&&) = default;
    ~kdException() override;

    QString getErrorMessage() const;
    /// The same as getErrorMessage(): an exception can be passed wherever a text is expected.
    operator QString() const;
    /// The message without markup, for logs and consoles; see nHtml::toPlainText.
    QString nonHTMLErrorMessage() const;
};
