#include "cocheckandcorrectname.h"

#include "ncreateobjectname.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString inOneLine(QString name)
{
    std::replace_if(
        name.begin(), name.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        QLatin1Char(' '));
    return name.trimmed();
}

QStringList remarksOn(const QString& name, const QStringList& taken, coCheckAndCorrectName::e_Mode mode)
{
    const bool isInternal = mode == coCheckAndCorrectName::eInternalName;
    const int limit = isInternal ? coObjectName::maxInternalLength() : coObjectName::maxLength();
    if (name.isEmpty())
        return {QCoreApplication::translate("coCheckAndCorrectName", "The name is empty.")};
    QStringList remarks;
    if (name.size() > limit)
        remarks.append(QCoreApplication::translate("coCheckAndCorrectName",
                                                   "The name '%1' is longer than %2 characters.")
                           .arg(name, QString::number(limit)));
    if (isInternal && !coObjectName::isValidInternalName(name))
        remarks.append(QCoreApplication::translate(
                           "coCheckAndCorrectName",
                           "The name '%1' may hold only the letters A to Z and a to z, digits and, behind "
                           "the first character, hyphens.")
                           .arg(name));
    if (!isInternal && name != inOneLine(name))
        remarks.append(
            QCoreApplication::translate("coCheckAndCorrectName",
                                        "The name '%1' holds control characters, or blanks at its ends.")
                .arg(name));
    if (taken.contains(name, Qt::CaseInsensitive))
        remarks.append(QCoreApplication::translate("coCheckAndCorrectName", "The name '%1' is already taken.")
                           .arg(name));
    return remarks;
}

int endOfLine(const QString& text, int start)
{
    const int lineBreak = text.indexOf(QLatin1Char('\n'), start);
    return lineBreak < 0 ? text.size() : lineBreak;
}

// Where the piece that begins at start and shows at most length characters ends, in a line that ends at end.
int endOfPiece(const QString& text, int start, int end, int length)
{
    if (end - start <= length)
        return end;
    int piece = start + length;
    if (!text.at(piece).isSpace()) {
        int blank = piece;
        while (blank > start && !text.at(blank - 1).isSpace())
            --blank;
        if (blank > start)
            return blank;
        const bool splitsPair = text.at(piece).isLowSurrogate() && text.at(piece - 1).isHighSurrogate();
        return splitsPair ? (length > 1 ? piece - 1 : piece + 1) : piece;
    }
    while (piece < end && text.at(piece).isSpace())
        ++piece;
    return piece;
}

} // namespace

QString coCheckAndCorrectName::checkAndCorrectName(const QString& name, const coTakenNames& takenNames,
                                                   e_Mode mode, QStringList* remarks)
{
    const bool isInternal = mode == eInternalName;
    if (remarks)
        *remarks +=
            remarksOn(name, isInternal ? takenNames.internalNames() : takenNames.displayNames(), mode);
    if (isInternal)
        return nCreateObjectName::createUniqueInternalName(name, takenNames);
    return nCreateObjectName::createUniqueDisplayName(inOneLine(name), coInternalName(), takenNames);
}

QString coCheckAndCorrectName::wrapTextForPreferredLength(const QString& text, int length)
{
    if (length < 1)
        return text;
    QString result;
    result.reserve(text.size() + text.size() / length);
    int end = -1; // of the line that start stands in: looked for once a line, which may be very long
    for (int start = 0; start < text.size();) {
        if (start > end)
            end = endOfLine(text, start);
        const int piece = endOfPiece(text, start, end, length);
        result += text.midRef(start, piece - start);
        start = piece;
        if (piece < end) {
            result += QLatin1Char('\n');
        } else if (end < text.size()) {
            result += QLatin1Char('\n');
            ++start;
        }
    }
    return result;
}
