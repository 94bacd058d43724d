#include "remotelink.h"

#include "shellsockets.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

constexpr int longestPiece = 1900;
constexpr int longestText = 16 * 1024 * 1024; // a peer without end must not fill the memory

constexpr const char* kindWords[] = {"hello", "run",      "result", "account", "error",
                                     "start", "progress", "finish", "done"};

/// -1 for a word that means nothing.
int kindOf(const QString& word)
{
    const auto found = std::find_if(std::begin(kindWords), std::end(kindWords),
                                    [&word](const char* known) { return word == QLatin1String(known); });
    return found == std::end(kindWords) ? -1 : int(found - std::begin(kindWords));
}

} // namespace

bool RemoteLink::send(Kind kind, const QString& text)
{
    const QString all = escaped(text);
    QStringList lines;
    int begin = 0;
    do {
        const bool isLast = all.size() - begin <= longestPiece;
        lines.append(QLatin1String(kindWords[kind]) + QLatin1Char(isLast ? ' ' : '+')
                     + all.mid(begin, longestPiece));
        begin += longestPiece;
    } while (begin < all.size());
    if (m_socket.sendSignedLines(lines))
        return true;
    m_errorText = m_socket.errorString();
    return false;
}

bool RemoteLink::receive(Kind& kind, QString& text)
{
    QString all;
    QString line;
    for (bool isLast = false; !isLast;) {
        if (!m_socket.readLine(m_call, line, ShellSocket::Silent)) {
            m_errorText = m_socket.errorString();
            return false;
        }
        const int end =
            int(std::find_if(line.cbegin(), line.cend(), [](QChar c) { return c < u'a' || c > u'z'; })
                - line.cbegin());
        const int number = kindOf(line.left(end));
        if (number < 0 || end == line.size() || all.size() > longestText) {
            m_errorText = QCoreApplication::translate("RemoteLink", "The other side is no remote shell.");
            return false;
        }
        kind = Kind(number);
        isLast = line.at(end) != u'+';
        all += line.midRef(end + 1);
    }
    text = unescaped(all);
    return true;
}

QString RemoteLink::escaped(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text)
        if (c == u'\\')
            result += QLatin1String("\\\\");
        else if (c == u'\n')
            result += QLatin1String("\\n");
        else if (c >= u' ' && c <= u'~')
            result += c;
        else
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    return result;
}

QString RemoteLink::unescaped(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        bool isNumber = false;
        const ushort code = next == u'u' ? text.midRef(i + 2, 4).toUShort(&isNumber, 16) : ushort(0);
        if (text.at(i) != u'\\' || (next != u'\\' && next != u'n' && !isNumber)) {
            result += text.at(i);
            continue;
        }
        result += isNumber ? QChar(code) : next == u'n' ? QChar(u'\n') : next;
        i += isNumber ? 5 : 1;
    }
    return result;
}
