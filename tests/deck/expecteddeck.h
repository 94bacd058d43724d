#pragma once

#include <kdQCore/cFeAbstractDatCard>
#include <kdQCore/CFEDatLineWriter>

#include <QBuffer>
#include <QByteArray>
#include <QTextStream>

#include <initializer_list>

/// One of the four layouts of a deck.
struct Layout {
    const char* name;
    CFEDatLineWriter::datExtensionMode mode;
    CFEDatLineWriter::datFormat format;

    bool isFixed() const { return format == CFEDatLineWriter::fixed; }
    bool isStandard() const { return mode == CFEDatLineWriter::standard; }
};

inline const Layout layouts[] = {
    {"fixed standard", CFEDatLineWriter::standard, CFEDatLineWriter::fixed},
    {"fixed extended", CFEDatLineWriter::extended, CFEDatLineWriter::fixed},
    {"free standard", CFEDatLineWriter::standard, CFEDatLineWriter::free},
    {"free extended", CFEDatLineWriter::extended, CFEDatLineWriter::free},
};

struct Written {
    QByteArray deck;
    bool result = false;
};

inline Written write(const cFeAbstractDatCard& card, const Layout& layout, bool isInWriteMode = true)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    CFEDatLineWriter writer(layout.mode, layout.format);
    writer.setFileHandler(&stream);
    writer.setIsInWriteMode(isInWriteMode);
    const bool result = writer.writeCard(card);
    stream.flush();
    return {buffer.data(), result};
}

/// What a card should come to, laid out here by the rules of the deck format and not by the writer.
class ExpectedDeck {
public:
    explicit ExpectedDeck(const Layout& layout) : m_layout(layout) { }

    ExpectedDeck& ints(std::initializer_list<int> values)
    {
        for (int value : values)
            field(QByteArray::number(value), m_layout.isStandard() ? 5 : 10);
        return *this;
    }

    ExpectedDeck& reals(std::initializer_list<double> values)
    {
        for (double value : values)
            field(real(value), 0);
        return *this;
    }

    ExpectedDeck& key(const QByteArray& text)
    {
        return field(m_layout.isFixed() ? text.leftJustified(m_layout.isStandard() ? 10 : 20) : text, 0);
    }

    ExpectedDeck& word(const QByteArray& text) { return field(text, 0); }

    ExpectedDeck& text(const QByteArray& text)
    {
        m_deck += text;
        return *this;
    }

    ExpectedDeck& line(const QByteArray& line = QByteArray()) { return text(line + '\n'); }

    QByteArray deck() const { return m_deck; }

private:
    ExpectedDeck& field(const QByteArray& text, int width)
    {
        m_deck += m_layout.isFixed() ? text.rightJustified(width) : text + ',';
        return *this;
    }

    QByteArray real(double value) const
    {
        const int width = m_layout.isStandard() ? 10 : m_layout.isFixed() ? 20 : 19;
        const QByteArray full = QByteArray::number(value, 'E', 20);
        const int e = full.indexOf('E');
        const QByteArray exponent = full.mid(e, 2) + QByteArray::number(full.mid(e + 2).toInt());
        return full.left(width - exponent.size()) + exponent;
    }

    Layout m_layout;
    QByteArray m_deck;
};
