#include <kdQCore/nHtml>

#include <cstdlib>

/// Any bytes as rich text. Plain text comes out; text that holds no markup comes out as it went in.
extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    const QString html = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString text = nHtml::toPlainText(html);
    const bool mayHoldMarkup = html.contains(QLatin1Char('<')) || html.contains(QLatin1Char('&'));
    if (!mayHoldMarkup && text != html)
        abort();
    // Nothing is longer than what it came from, but for the number of a list item.
    if (text.size() > 3 * html.size())
        abort();
    return 0;
}
