#include "codeckpatch.h"

#include "codeckreader.h"

#include <kdQCore/coProjectPathLockFile>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr qint64 blockSize = 256 * 1024;

/// The file itself where the path is a link, since a link would be replaced by a file.
QString realPath(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

bool hasCrLf(QIODevice& deck)
{
    return deck.peek(blockSize).contains("\r\n");
}

} // namespace

coDeckPatch::coDeckPatch(const QString& path) : m_path(realPath(path)) { }

coDeckPatch::coDeckPatch(const QString& path, const coDeckLayout& layout)
    : m_path(realPath(path)), m_layout(layout), m_isLayoutGiven(true)
{
}

bool coDeckPatch::read()
{
    m_options.clear();
    m_edits.clear();
    m_lacksLines = false;
    m_errorText.clear();
    QFile file(m_path);
    const QFileInfo info(m_path);
    m_size = info.size();
    m_time = info.lastModified();
    if (!file.open(QIODevice::ReadOnly))
        return fail(tr("The deck '%1' cannot be read: %2").arg(m_path, file.errorString()));
    if (!m_isLayoutGiven)
        m_layout = coDeckLayout::find(file);
    m_hasCrLf = hasCrLf(file);
    coDeckReader reader(file, m_layout, coDeckReader::NoCards);
    coDeckOption option;
    while (goOn(0.0, file.pos()) && reader.next(option))
        m_options.append(option);
    if (!m_errorText.isEmpty())
        return false;
    if (reader.hasFailed())
        return fail(reader.errorText());
    return true;
}

int coDeckPatch::find(const QString& text, int number) const
{
    for (int i = 0; i < m_options.size(); ++i)
        if (m_options.at(i).text() == text && number-- == 0)
            return i;
    return -1;
}

QByteArray coDeckPatch::bytesOf(const cFeAbstractDatCard& card, int like) const
{
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    CFEDatLineWriter writer(m_layout.mode(), m_options.at(like).format);
    writer.setFileHandler(&stream);
    const bool isWritten = writer.writeCard(card);
    stream.flush();
    return isWritten ? bytes : QByteArray();
}

void coDeckPatch::replace(int index, const QByteArray& lines)
{
    add(index, Instead, lines);
}

void coDeckPatch::remove(int index)
{
    m_edits.append({index, Instead, QByteArray()});
}

void coDeckPatch::insertBefore(int index, const QByteArray& lines)
{
    add(index, Before, lines);
}

void coDeckPatch::insertAfter(int index, const QByteArray& lines)
{
    add(index, After, lines);
}

void coDeckPatch::add(int index, Place place, const QByteArray& lines)
{
    m_lacksLines = m_lacksLines || lines.isEmpty();
    QByteArray text = lines;
    if (!text.endsWith('\n'))
        text.append('\n');
    text.replace("\r\n", "\n");
    if (m_hasCrLf)
        text.replace("\n", "\r\n");
    m_edits.append({index, place, text});
}

bool coDeckPatch::apply(Old old, int timeout)
{
    m_errorText.clear();
    if (m_lacksLines)
        return fail(tr("The deck '%1' stays as it was: there are no new lines.").arg(m_path));
    coProjectPathLockFile lock(QFileInfo(m_path).absolutePath());
    if (!lock.tryLock(timeout)) {
        coSysLockFile::Info owner;
        return lock.getLockInfo(&owner)
            ? fail(tr("The folder of '%1' is locked by process %2 (%3) on %4.")
                       .arg(m_path, QString::number(owner.processId), owner.applicationName, owner.hostName))
            : fail(tr("The folder of '%1' cannot be locked.").arg(m_path));
    }
    if (!isUnchanged())
        return fail(tr("The deck '%1' was changed by somebody else; read it again.").arg(m_path));
    return replaceFile(old);
}

bool coDeckPatch::isUnchanged() const
{
    const QFileInfo info(m_path);
    return info.exists() && info.size() == m_size && info.lastModified() == m_time;
}

bool coDeckPatch::replaceFile(Old old)
{
    QFile deck(m_path);
    if (!deck.open(QIODevice::ReadOnly))
        return fail(tr("The deck '%1' cannot be read: %2").arg(m_path, deck.errorString()));
    QSaveFile changed(m_path);
    if (!changed.open(QIODevice::WriteOnly))
        return fail(tr("No file can be written beside '%1': %2").arg(m_path, changed.errorString()));
    if (!write(deck, changed))
        return false;
    deck.close();
    const QString kept = m_path + QLatin1String(".bak");
    if (old == KeepOld && ((QFile::exists(kept) && !QFile::remove(kept)) || !QFile::copy(m_path, kept)))
        return fail(tr("The old deck cannot be kept as '%1'.").arg(kept));
    return changed.commit()
        || fail(tr("The changed deck cannot take the place of '%1': %2").arg(m_path, changed.errorString()));
}

bool coDeckPatch::write(QIODevice& from, QIODevice& to)
{
    std::stable_sort(m_edits.begin(), m_edits.end(), [](const Edit& a, const Edit& b) {
        return a.index != b.index ? a.index < b.index : a.place < b.place;
    });
    m_endsInLine = true;
    for (const Edit& edit : qAsConst(m_edits)) {
        const coDeckOption& option = m_options.at(edit.index);
        const qint64 offset = option.offset + (edit.place == After ? option.size : 0);
        if (!copy(from, to, offset - from.pos()))
            return false;
        if (!edit.lines.isEmpty() && !m_endsInLine && !put(m_hasCrLf ? "\r\n" : "\n", to))
            return false;
        if (!put(edit.lines, to))
            return false;
        if (edit.place == Instead)
            from.seek(offset + option.size);
    }
    return copy(from, to, m_size - from.pos());
}

bool coDeckPatch::copy(QIODevice& from, QIODevice& to, qint64 count)
{
    while (count > 0) {
        if (!goOn(0.5, from.pos()))
            return false;
        const QByteArray block = from.read(std::min(count, blockSize));
        if (block.isEmpty())
            return fail(tr("The deck '%1' cannot be read: %2").arg(m_path, from.errorString()));
        if (!put(block, to))
            return false;
        count -= block.size();
    }
    return true;
}

bool coDeckPatch::put(const QByteArray& bytes, QIODevice& to)
{
    if (!bytes.isEmpty())
        m_endsInLine = bytes.endsWith('\n');
    return to.write(bytes) == bytes.size()
        || fail(tr("The changed deck cannot be written: %1").arg(to.errorString()));
}

/// \a half is what was done before the deck was gone through this time.
bool coDeckPatch::goOn(double half, qint64 position)
{
    const double part = static_cast<double>(position) / static_cast<double>(std::max<qint64>(m_size, 1));
    return !m_progress || m_progress(half + 0.5 * part)
        || fail(tr("Stopped; the deck '%1' stays as it was.").arg(m_path));
}

bool coDeckPatch::fail(const QString& text)
{
    m_errorText = text;
    return false;
}
