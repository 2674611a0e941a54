#pragma once

#include "quillgrid/base/Export.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace quillgrid::qt {

/// The keys of a store that tells capital letters apart, found in any case. Of several that differ in nothing
/// else the last one counts.
class QUILLGRID_EXPORT KeySpelling {
public:
    KeySpelling() = default;
    explicit KeySpelling(const QStringList& keys) {
        for (const QString& key : keys)
            spelt_.insert(key.toCaseFolded(), key);
    }

    /// As it is spelt in the store; else as it was asked for.
    QString Of(const QString& key) const { return spelt_.value(key.toCaseFolded(), key); }
    void Add(const QString& key) { spelt_.insert(key.toCaseFolded(), key); }

private:
    QHash<QString, QString> spelt_;
};

} // namespace quillgrid::qt
