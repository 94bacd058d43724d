#pragma once

#include "peimage_p.h"

#include <QString>

#include <optional>

/// The version resource of an executable: a tree of named values. Takes any bytes.
class VersionResource {
public:
    explicit VersionResource(const ByteView& block);

    /// The value of \VarFileInfo\Translation: pairs of language and code page, two bytes each.
    std::optional<ByteView> translations() const;
    /// The value of \StringFileInfo\<language and code page>\<name>.
    std::optional<QString> text(quint16 language, quint16 codePage, const QString& name) const;

private:
    struct Node {
        ByteView bytes; ///< the whole node
        QString key;
        qint64 value = 0; ///< offsets in the node
        qint64 children = 0;
    };

    static std::optional<Node> nodeAt(const ByteView& bytes);
    static std::optional<Node> child(const std::optional<Node>& parent, const QString& key);

    std::optional<Node> m_root;
};
