#include "AllPages.h"

#include "OverviewPage.h"

#include <QCoreApplication>

namespace {

template <typename Page>
GalleryPage* make(QWidget* parent)
{
    return new Page(parent);
}

QString tr(const char* title)
{
    return QCoreApplication::translate("Gallery", title);
}

} // namespace

QVector<PageEntry> allPages()
{
    return {
        {QStringLiteral("overview"), tr("Overview"), make<OverviewPage>},
    };
}
