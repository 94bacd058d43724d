#pragma once

#include <kdqcore_export.h>

#include <QStringList>

#include <memory>

/// Base of classes that gather error texts while they work, for a caller who shows them afterwards.
///
/// \code
/// class DeckCheck : public kdErrorMessageHandler {
/// public:
///     void check(const kdDataTable& table)
///     {
///         if (table.rowCount() == 0)
///             addErrorMessage(tr("The table '%1' is empty.").arg(table.name()));
///     }
/// };
/// \endcode
///
/// A copy has its own list. An object without messages owns none, so that the base costs one pointer.
/// Not thread-safe.
class KDQCORE_EXPORT kdErrorMessageHandler {
public:
    kdErrorMessageHandler();
    kdErrorMessageHandler(const kdErrorMessageHandler& other);
    kdErrorMessageHandler(kdErrorMessageHandler&& other) noexcept;
    kdErrorMessageHandler& operator=(const kdErrorMessageHandler& other);
    kdErrorMessageHandler& operator=(kdErrorMessageHandler&& other) noexcept;
    virtual ~kdErrorMessageHandler();

    QStringList getErrorMessages() const;
    /// All messages in the order of their coming, joined with \a separator.
    QString getErrorString(const QString& separator) const;
    int errorCount() const;
    bool hasErrors() const;

protected:
    void addErrorMessage(const QString& message);
    void clearErrorMessages();

private:
    std::unique_ptr<QStringList> m_errorMessages;
};
