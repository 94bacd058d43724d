#include "tablefile.h"

#include <kdQCore/kdException>

#include <QTextStream>

bool nTableFile::readText(QIODevice& device, const QString& name, kdDataTable& table, QString& error)
{
    QTextStream stream(&device);
    stream.setCodec("UTF-8");
    try {
        kdDataTable::importFromTextStream(stream, table);
    } catch (const kdException& exception) {
        error = QStringLiteral("'%1': %2").arg(name, exception.nonHTMLErrorMessage());
        return false;
    }
    return true;
}
