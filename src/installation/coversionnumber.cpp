#include "coversionnumber.h"

#include <QDebug>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <array>

namespace {

constexpr int partCount = 4;

int significantParts(coVersionNumber::e_Format format)
{
    return format >= coVersionNumber::MajorOnly && format < coVersionNumber::AllParts ? format + 1
                                                                                      : partCount;
}

std::array<int, partCount> parts(const coVersionNumber& version)
{
    return {version.major(), version.minor(), version.patchLevel(), version.revision()};
}

coVersionNumber fromParts(const std::array<int, partCount>& parts)
{
    return {parts[0], parts[1], parts[2], parts[3]};
}

} // namespace

coVersionNumber::coVersionNumber(const QString& text) : coVersionNumber(fromString(text)) { }

coVersionNumber coVersionNumber::fromString(const QString& text)
{
    std::array<int, partCount> numbers{};
    const QVector<QStringRef> texts = text.splitRef(QLatin1Char('.'), Qt::KeepEmptyParts);
    for (int i = 0; i < std::min(partCount, texts.size()); ++i)
        numbers[static_cast<std::size_t>(i)] = texts.at(i).toInt(nullptr, 10);
    return fromParts(numbers);
}

QString coVersionNumber::toString(e_Format format) const
{
    QStringList texts;
    for (const int part : parts(*this))
        texts.append(QString::number(part));
    return texts.mid(0, significantParts(format)).join(QLatin1Char('.'));
}

coVersionNumber coVersionNumber::shortend(e_Format format) const
{
    std::array<int, partCount> numbers = parts(*this);
    std::fill(numbers.begin() + significantParts(format), numbers.end(), 0);
    return fromParts(numbers);
}

bool operator==(const coVersionNumber& a, const coVersionNumber& b)
{
    return parts(a) == parts(b);
}

bool operator<(const coVersionNumber& a, const coVersionNumber& b)
{
    return parts(a) < parts(b);
}

QDebug operator<<(QDebug debug, const coVersionNumber& version)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace().noquote() << "coVersionNumber(" << version.toString() << ')';
}
