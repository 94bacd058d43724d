#pragma once

/// Numbers in the fields of a deck, whatever the user's locale.
namespace nDeckNumber {

/// The nearest double of [first, last), blanks around it allowed. Takes the forms that Fortran programs
/// print, too: 1.5D+3 and 1.5+3. "inf" and "nan" are numbers; one too large for a double is none.
bool readReal(const char* first, const char* last, double& value);

/// Whether [first, last) is such a finite number as the writer prints it, which is quickly told. Others may
/// be numbers, too.
bool isPlainReal(const char* first, const char* last);

/// The value that a card had: the writer cuts, so the nearest double of what it printed may print one digit
/// lower. This is the double of least magnitude whose print is not nearer to zero than the text. A text of
/// more digits than a deck shows is read to the nearest.
bool readCardReal(const char* first, const char* last, double& value);

/// A blank field is no number.
bool readInt(const char* first, const char* last, int& value);

} // namespace nDeckNumber
