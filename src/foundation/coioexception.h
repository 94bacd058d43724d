#pragma once

#include "kdexception.h"

/// A failure of input or output, for the applications to throw; the library itself throws none.
class KDQCORE_EXPORT coIOException : public kdException {
public:
    /// An empty message.
    coIOException();
    coIOException(const QString& message);
    coIOException(const coIOException&) = default;
    coIOException(coIOException&&) = default;
    coIOException& operator=(const coIOException&) = default;
    coIOException& operator=(coIOException&&) = default;
    ~coIOException() override;
};
