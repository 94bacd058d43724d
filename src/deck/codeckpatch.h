#pragma once

#include "codecklayout.h"
#include "codeckoption.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QVector>

#include <functional>

class QIODevice;

/// Changes single options of an existing input deck and leaves every other byte as it was.
///
/// \code
/// coDeckPatch patch(QStringLiteral("job.dat"));
/// if (!patch.read())
///     return fail(patch.errorText());
/// const int table = patch.find(QStringLiteral("table 'k'"));
/// if (table >= 0)
///     patch.replace(table, patch.bytesOf(newCard, table));
/// if (!patch.apply(coDeckPatch::KeepOld))
///     return fail(patch.errorText());
/// \endcode
///
/// apply() writes a temporary file beside the deck, while it holds the lock of the deck's folder, and moves
/// it over the deck only when all of it is on disk: who reads the deck sees the old one or the new one, and a
/// crash costs neither. Nothing is done where somebody else changed the deck after read(). A link is
/// followed, permissions stay.
///
/// Not thread-safe. Owns its data; holds no file between the calls.
class KDQCORE_EXPORT coDeckPatch {
    Q_DECLARE_TR_FUNCTIONS(coDeckPatch)

public:
    enum Old {
        DropOld,
        KeepOld ///< beside the new one, as NAME.bak; an older one of that name goes
    };

    explicit coDeckPatch(const QString& path);
    /// Where the widths are known.
    coDeckPatch(const QString& path, const coDeckLayout& layout);

    /// Told while read() and apply() go through the deck how much of both is done, 0 to 1. Once it answers
    /// false they fail, the deck as it was.
    using Progress = std::function<bool(double done)>;
    void setProgress(Progress progress) { m_progress = std::move(progress); }

    /// Finds the deck's options. False with errorText() set where the file cannot be read.
    bool read();

    const coDeckLayout& layout() const { return m_layout; }
    /// Without cards.
    const QVector<coDeckOption>& options() const { return m_options; }
    /// The index of the option with this text(), or -1; \a number picks the n-th of a name, from 0 on.
    int find(const QString& text, int number = 0) const;

    /// What a card writes in the deck's widths and in the format of option \a like; empty where the card
    /// refuses.
    QByteArray bytesOf(const cFeAbstractDatCard& card, int like) const;

    /// \name Changes
    /// By index into options(); they take effect in apply(), whatever the order of the calls. An option is
    /// replaced or removed once at most. New lines get the deck's line ends, and one at their end where it is
    /// missing. Where there are none - bytesOf() is empty for a card that refuses - apply() fails and leaves
    /// the deck as it was.
    /// @{
    void replace(int index, const QByteArray& lines);
    void remove(int index);
    void insertBefore(int index, const QByteArray& lines);
    void insertAfter(int index, const QByteArray& lines);
    /// @}

    /// Writes the changed deck. False with errorText() set, the deck as it was. Afterwards read() again.
    /// Waits for the folder's lock for at most \a timeout milliseconds.
    bool apply(Old old = DropOld, int timeout = 0);

    QString errorText() const { return m_errorText; }

private:
    enum Place { Before, Instead, After };
    struct Edit {
        int index;
        Place place;
        QByteArray lines;
    };

    bool fail(const QString& text);
    bool goOn(double half, qint64 position);
    bool isUnchanged() const;
    void add(int index, Place place, const QByteArray& lines);
    bool write(QIODevice& from, QIODevice& to);
    bool copy(QIODevice& from, QIODevice& to, qint64 count);
    bool put(const QByteArray& bytes, QIODevice& to);
    bool replaceFile(Old old);

    Progress m_progress;
    QString m_path;
    coDeckLayout m_layout;
    bool m_isLayoutGiven = false;
    bool m_hasCrLf = false;
    qint64 m_size = 0;
    QDateTime m_time;
    QVector<coDeckOption> m_options;
    QVector<Edit> m_edits;
    bool m_lacksLines = false;
    bool m_endsInLine = true; ///< what was written so far
    QString m_errorText;
};
