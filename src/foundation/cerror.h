#pragma once

#include <kdqcore_export.h>

#include <QString>

#include <stdexcept>

namespace nSystem {

/// A failure at the border to the operating system. It is no kdException: code that talks to the system
/// catches it close by. The message is kept in the local 8-bit encoding.
///
/// \code
/// try {
///     linked = nSystem::nWin32::getLinkTimeStamp(file);
/// } catch (const nSystem::cError& failure) { // cWindowsError included
///     KD_LOG(kdLog::Fault, kdLog::General, failure.message());
/// }
/// \endcode
class KDQCORE_EXPORT cError : public std::runtime_error {
public:
    cError(const QString& message);
    cError(const cError&) = default;
    cError(cError&&) = default;
    cError& operator=(const cError&) = default;
    cError& operator=(cError&&) = default;
    ~cError() override;

    QString message() const;
};

namespace nWin32 {

/// A failed system call. The message is the context, one blank and the system's own text for the error code,
/// with the line break that ends it; a code that the system does not know leaves the context and the blank.
///
/// The code is a GetLastError() value on Windows and an errno value elsewhere.
class KDQCORE_EXPORT cWindowsError : public cError {
public:
    cWindowsError(const QString& context, unsigned long errorCode);
    cWindowsError(const cWindowsError&) = default;
    cWindowsError(cWindowsError&&) = default;
    cWindowsError& operator=(const cWindowsError&) = default;
    cWindowsError& operator=(cWindowsError&&) = default;
    ~cWindowsError() override;

private:
    static QString makeMessage(QString context, unsigned long errorCode);
};

} // namespace nWin32

} // namespace nSystem
