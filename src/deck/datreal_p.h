#pragma once

/// The deck's form of a real.
///
/// The rule: print with 20 decimals in exponent form, correctly rounded ("1.50000000000000000000E+00"), drop
/// the exponent's leading zeros, then cut the mantissa so that the whole has the wanted width. With a leading
/// blank: 19 decimals, one blank in front.
///
/// The fast form. Let |v| = m * 2^q with 2^63 <= m < 2^64, and e = floor(log10(2^(q + 63))), which is the
/// decimal exponent of v or one less. Then v * 10^(15 - e) has 16 or 17 digits before the point. With g =
/// 10^(15 - e) cut to 128 bits, the upper 128 bits of the product m * g fall short of the truth by less than
/// two units of their last place. They split into the integer I of 16 or 17 digits and a fraction, of which F
/// is the first 64 bits.
///
/// At most 16 digits survive the cut. The printed digits that follow those of I, r of them (3 to 5), only
/// matter where their rounding carries into I, which happens exactly if the fraction is at least T = 1 - 0.5
/// * 10^-r. So the digits are those of I, plus one if F > T. Where the truth is an integer and the product
/// lies just below, F is all ones, above T, and the carry makes it right. Only for an F within two units of T
/// does the product not decide; then the value is printed with all its digits. (A tie at T itself cannot
/// occur: it would make 5^6 a divisor of a number that ends in 99995.)
namespace nDatReal {

/// Room for any width up to 20: the fast form stores whole words.
constexpr int bufferSize = 32;

/// Prints a finite value in 10 to 20 columns and ends it with NUL; returns the width.
int format(double value, int width, bool leadingBlank, char* out);

/// The same, always with all digits printed first.
int formatExact(double value, int width, bool leadingBlank, char* out);

} // namespace nDatReal
