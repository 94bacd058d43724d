// Any bytes as the description of a picture. What reads is written and read back to the same; what has no
// fault gives pieces of finite points within the axes, and thinning them keeps their ends.

#include "figure.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkPiece(const QVector<QPointF>& piece)
{
    require(!piece.isEmpty());
    for (const QPointF& point : piece)
        require(std::isfinite(point.x()) && std::isfinite(point.y()));
}

} // namespace

/// Qt 5.15 loses the first of two values under one key of an object.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libQt5Core.so\n";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Figure figure;
    QString error;
    if (!Figure::fromJson(json, figure, error)) {
        require(!error.isEmpty());
        return 0;
    }
    Figure again;
    require(Figure::fromJson(figure.toJson(), again, error));
    require(again.toJson() == figure.toJson());
    if (!figure.fault().isEmpty())
        return 0;
    const Figure thinned = figure.thinned(2);
    for (int i = 0; i < figure.curves.size(); ++i) {
        const QVector<QVector<QPointF>> pieces = figure.pieces(figure.curves.at(i));
        const QVector<QVector<QPointF>> thinnedPieces = thinned.pieces(thinned.curves.at(i));
        for (const QVector<QPointF>& piece : pieces)
            checkPiece(piece);
        require(thinnedPieces.size() == pieces.size());
        for (int j = 0; j < pieces.size(); ++j)
            require(thinnedPieces.at(j).first() == pieces.at(j).first()
                    && thinnedPieces.at(j).last() == pieces.at(j).last());
    }
    return 0;
}
