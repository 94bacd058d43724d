#pragma once

#include "codeckoption.h"
#include "codeckscanner.h"

#include <QByteArray>
#include <QVector>

class QIODevice;

/// One word of an option: a field of its data lines, or a whole line of text.
struct DeckWord {
    QByteArray text;
    qint64 line = 0;
};

/// The words of one option, whatever its layout: fields of fixed columns without a blank between them come
/// apart by their widths. Comments and continuation marks are no words, nor is the keyword of an option whose
/// name says it already.
class DeckWords {
public:
    /// Reads \a option's bytes; the device is the one it was found in.
    DeckWords(QIODevice& deck, const coDeckOption& option, CFEDatLineWriter::datExtensionMode mode);

    /// The next word; false at the end of the option.
    bool next(DeckWord& word);

private:
    bool nextLine();
    int keywordLength() const;
    void splitText(const coDeckLine& line, int integers);
    void splitFree(const char* begin, const char* end);
    void splitFixed(const char* begin, const char* end);
    void addRun(const char* begin, const char* end);

    coDeckScanner m_scanner;
    coDeckOption m_option;
    CFEDatLineWriter::datExtensionMode m_mode;
    int m_lines = 0; ///< without comments
    QVector<QByteArray> m_words;
    int m_next = 0;
};
