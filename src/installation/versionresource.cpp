#include "versionresource_p.h"

namespace {

constexpr qint64 nodeHeaderSize = 6;

qint64 aligned(qint64 offset)
{
    return (offset + 3) & ~qint64(3);
}

/// The characters from \a offset to the next NUL or the end.
QString textAt(const ByteView& bytes, qint64 offset)
{
    QString text;
    for (auto unit = bytes.u16(offset); unit && *unit != 0; unit = bytes.u16(offset)) {
        text += QChar(*unit);
        offset += 2;
    }
    return text;
}

} // namespace

VersionResource::VersionResource(const ByteView& block)
{
    const auto root = nodeAt(block);
    if (root && root->key == QLatin1String("VS_VERSION_INFO"))
        m_root = root;
}

std::optional<VersionResource::Node> VersionResource::nodeAt(const ByteView& bytes)
{
    const auto length = bytes.u16(0);
    const auto valueLength = bytes.u16(2);
    const auto type = bytes.u16(4);
    if (!type || *length < nodeHeaderSize || !bytes.covers(0, *length))
        return std::nullopt;
    Node node;
    node.bytes = bytes.mid(0, *length);
    node.key = textAt(node.bytes, nodeHeaderSize);
    node.value = aligned(nodeHeaderSize + 2 * (qint64(node.key.size()) + 1));
    // Texts give their length in characters, other values in bytes.
    node.children = aligned(node.value + (*type == 1 ? 2 : 1) * qint64(*valueLength));
    return node;
}

std::optional<VersionResource::Node> VersionResource::child(const std::optional<Node>& parent,
                                                            const QString& key)
{
    if (!parent)
        return std::nullopt;
    qint64 position = parent->children;
    auto node = nodeAt(parent->bytes.mid(position, parent->bytes.size()));
    while (node && node->key.compare(key, Qt::CaseInsensitive) != 0) {
        position += aligned(node->bytes.size());
        node = nodeAt(parent->bytes.mid(position, parent->bytes.size()));
    }
    return node;
}

std::optional<ByteView> VersionResource::translations() const
{
    const auto node = child(child(m_root, QStringLiteral("VarFileInfo")), QStringLiteral("Translation"));
    if (!node)
        return std::nullopt;
    return node->bytes.mid(node->value, node->bytes.u16(2).value_or(0));
}

std::optional<QString> VersionResource::text(quint16 language, quint16 codePage, const QString& name) const
{
    const QString table =
        QStringLiteral("%1%2").arg(language, 4, 16, QLatin1Char('0')).arg(codePage, 4, 16, QLatin1Char('0'));
    const auto node = child(child(child(m_root, QStringLiteral("StringFileInfo")), table), name);
    if (!node)
        return std::nullopt;
    return textAt(node->bytes, node->value);
}
