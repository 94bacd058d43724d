#pragma once

#include <QString>

/// The text as XML can hold it: control characters and halves of surrogate pairs, which have no form there,
/// not even an escaped one, become U+FFFD.
QString textAllowedInXml(QString text);
