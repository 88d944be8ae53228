#pragma once

#include <QStringList>

namespace soak {

/// Which crumbs a bar must show for a root and a directory that are absolute and clean.
class CrumbsModel
{
public:
    void setRoot(const QString& path);
    void setCurrent(const QString& path);

    QString root() const;
    /// Of all crumbs, the hidden ones first.
    QStringList names() const;
    /// The directories of the crumbs with these names.
    QStringList directories() const;

private:
    QString m_root = QStringLiteral("/");
    QString m_current;
};

} // namespace soak
