#pragma once

#include <kdqcore_export.h>

#include <QString>

/// Helpers for the rich text that messages may carry.
namespace nHtml {

/// The text of \a html as a reader of a log or a console wants it. Takes any text, in linear time, and never
/// fails.
///
/// - Tags and comments go; so do scripts, style sheets and the head with their content.
/// - Entities become characters: the names of HTML 4 and "apos", decimal and hexadecimal numbers, each ended
///   with a semicolon; "&nbsp;" becomes a blank. Anything else after "&" stays as it is.
/// - "br" and the borders of paragraphs, headings, list items, table rows and other blocks become line breaks
///   (two blocks that meet make one), cells of a row are separated by a tab, list items begin with "- " or
///   their number.
/// - White space folds to one blank, as in a browser, except within "pre".
/// - What does not look like a tag is text: "a < b", an unclosed "<b", and a name in brackets that is no
///   common tag, is not closed later, ends without "/" and has no "=" ("copy <source> <target>").
///
/// A text without any tag keeps its white space; with neither tag nor entity it comes back unchanged.
///
/// \code
/// nHtml::toPlainText(QStringLiteral("<p>Zone <b>A</b> &ge; 5&nbsp;mm</p><p>skipped"));
/// // "Zone A ≥ 5 mm\nskipped"
/// \endcode
///
/// Thread-safe.
KDQCORE_EXPORT QString toPlainText(const QString& html);

} // namespace nHtml
