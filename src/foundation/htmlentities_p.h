#pragma once

#include <QStringView>

namespace nHtml {

/// The code point of a named entity (without "&" and ";"; case matters); 0 for an unknown name.
uint namedEntity(QStringView name);

/// The code point that HTML gives to a numeric reference: the replacement character for what is no character,
/// code page 1252 for the numbers 128 to 159.
uint numericEntity(uint number);

} // namespace nHtml
