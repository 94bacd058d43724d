#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <string>
#include <vector>

/// Converts between typed lists and lists of QVariant, the form in which lists pass through settings.
///
/// Every call appends to the output list, element by element and in order; what the list held stays in front.
///
/// \code
/// QList<QVariant> stored;
/// kdContainerConverter::toQVariant(QList<double> { 0.5, 1.5 }, stored);
/// QList<double> times;
/// kdContainerConverter::fromQVariant(stored, times);
/// \endcode
///
/// An element that cannot be converted is appended as 0, 0.0, false or an empty text or list, so that
/// positions keep their meaning. Texts of numbers are read in C notation. A list of texts is stored as a
/// QStringList, which QSettings can write. Thread-safe: there is no state.
class KDQCORE_EXPORT kdContainerConverter {
public:
    kdContainerConverter() = delete;

    static void fromQVariant(const QList<QVariant>& source, QList<int>& target);
    static void fromQVariant(const QList<QVariant>& source, QList<double>& target);
    static void fromQVariant(const QList<QVariant>& source, QList<bool>& target);
    static void fromQVariant(const QList<QVariant>& source, QList<QString>& target);
    static void fromQVariant(const QList<QVariant>& source, QList<QList<QString>>& target);
    static void fromQVariant(const QList<QVariant>& source, QList<QStringList>& target);

    static void toQVariant(const QList<int>& source, QList<QVariant>& target);
    static void toQVariant(const QList<double>& source, QList<QVariant>& target);
    static void toQVariant(const QList<bool>& source, QList<QVariant>& target);
    static void toQVariant(const QList<QString>& source, QList<QVariant>& target);
    static void toQVariant(const QList<QList<QString>>& source, QList<QVariant>& target);
    static void toQVariant(const QList<QStringList>& source, QList<QVariant>& target);

    /// The texts are local 8-bit text, as everywhere in the library.
    static void toQStringList(QStringList& target, const std::vector<std::string>& source);
};
