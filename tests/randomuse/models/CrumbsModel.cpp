#include "CrumbsModel.h"

namespace soak {

void CrumbsModel::setRoot(const QString& path)
{
    m_root = path;
    m_current = path;
}

/// Two slashes at the beginning, as the bar gives below the root of all, are one.
void CrumbsModel::setCurrent(const QString& path)
{
    m_current = path.startsWith(QLatin1String("//")) ? path.mid(1) : path;
}

QString CrumbsModel::root() const
{
    return m_root;
}

QStringList CrumbsModel::names() const
{
    const QString above = m_root == QLatin1String("/") ? m_root : m_root + QLatin1Char('/');
    if (!m_current.startsWith(above))
        return {};
    QString below = m_current.mid(above.size());
    const int dot = below.indexOf(QLatin1Char('.'));
    if (dot >= 0)
        below = below.mid(below.size() - dot);
    return below.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

QStringList CrumbsModel::directories() const
{
    QStringList result;
    QString path = m_root;
    for (const QString& name : names()) {
        path += QLatin1Char('/') + name;
        result.append(path);
    }
    return result;
}

} // namespace soak
