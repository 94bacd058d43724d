// Any bytes as a text of measured values. What is imported must come back the same from its export, with
// every separator and both decimal marks; a text that is refused names a place in itself.

#include <kdQCore/kdDataTable>
#include <kdQCore/kdTypedException>

#include <QLocale>
#include <QTextStream>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QString exported(const kdDataTable& table, const QString& separator, const QLocale* locale)
{
    QString text;
    QTextStream stream(&text);
    require(table.exportValuesToTextStream(stream, separator, true, locale));
    return text;
}

void requireRoundTrip(const kdDataTable& table)
{
    const QString expected = exported(table, QStringLiteral(";"), nullptr);
    const QLocale german(QLocale::German, QLocale::Germany);
    for (const char* separator : {";", "\t", ",", " ", "|"}) {
        for (const QLocale* locale : {static_cast<const QLocale*>(nullptr), &german}) {
            QString text = exported(table, QString::fromLatin1(separator), locale);
            QTextStream stream(&text);
            kdDataTable again;
            kdDataTable::importFromTextStream(stream, again);
            require(exported(again, QStringLiteral(";"), nullptr) == expected);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    QTextStream stream(bytes);
    stream.setCodec("UTF-8");
    kdDataTable table;
    bool isImported = false;
    try {
        kdDataTable::importFromTextStream(stream, table);
        isImported = true;
    } catch (const kdTypedException<QPair<int, int>>& failure) {
        require(failure.payload().first > 0 && failure.payload().second > 0);
        require(failure.payload().first <= bytes.count('\n') + bytes.count('\r') + 1);
        require(table.columns() == 0);
    }
    if (isImported)
        requireRoundTrip(table);
    return 0;
}
