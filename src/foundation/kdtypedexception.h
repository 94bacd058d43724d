#pragma once

#include "kdexception.h"

#include <QPair>

/// A kdException that also carries a value which tells the catcher more than the message does.
///
/// The library throws it with a QString (a second, detailed text) and with a QPair<int, int> (where in an
/// input the failure lies: row and column, counted from 1). Applications may use other types; those must be
/// copyable.
///
/// \code
/// try {
///     kdDataTable::importFromTextStream(stream, table);
/// } catch (const kdTypedException<QPair<int, int>>& failure) {
///     showCell(failure.payload().first, failure.payload().second, failure.getErrorMessage());
/// }
/// \endcode
template <typename T>
class kdTypedException : public kdException {
public:
    kdTypedException(const QString& message, const T& payload) : kdException(message), m_payload(payload) { }

    const T& payload() const { return m_payload; }

private:
    T m_payload;
};

extern template class KDQCORE_EXPORT kdTypedException<QString>;
extern template class KDQCORE_EXPORT kdTypedException<QPair<int, int>>;
