#include "coioexception.h"

coIOException::coIOException() = default;

coIOException::coIOException(const QString& message) : kdException(message) { }

coIOException::~coIOException() = default;
