#include "PageView.h"

#include "FlowLayout.h"
#include "GalleryPage.h"
#include "Touch.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QToolButton>
#include <QUrl>

QString reference::classPage(const QString& className)
{
    // As the tool that writes the reference names its files.
    QString name = className;
    name.replace(QLatin1String("::"), QLatin1String("_1_1"));
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char* directory : {GALLERY_REFERENCE_INSTALLED, GALLERY_REFERENCE_BUILT}) {
        const QString path = programs.filePath(
            QStringLiteral("%1/class%2.html").arg(QLatin1String(directory), name));
        if (QFile::exists(path))
            return QDir::cleanPath(path);
    }
    return {};
}

QString reference::shortName(const QString& className)
{
    return className.section(QLatin1String("::"), -1);
}

namespace {

constexpr int margin = 12;
constexpr int spacing = 4;
constexpr QSize leastPictureSize(600, 400);

} // namespace

PageView::PageView(const PageEntry& entry, QWidget* parent)
    : QWidget(parent)
    , m_page(entry.create(nullptr))
    , m_message(touch::makeLabel())
{
    m_message->setObjectName(QStringLiteral("referenceMessage"));
    m_message->setContentsMargins(margin, 0, margin, 0);
    m_message->hide();
    m_page->setObjectName(entry.id);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (!entry.classes.isEmpty())
        column->addWidget(makeLinks(entry.classes));
    column->addWidget(m_message);
    column->addWidget(m_page, 1);
}

GalleryPage* PageView::page() const
{
    return m_page;
}

QSize PageView::pictureSize() const
{
    QSize size = minimumSizeHint().expandedTo(leastPictureSize);
    size.setHeight(qMax(size.height(), sizeHint().height()));
    if (hasHeightForWidth())
        size.setHeight(qMax(leastPictureSize.height(), heightForWidth(size.width())));
    return size;
}

QWidget* PageView::makeLinks(const QStringList& classes)
{
    auto* links = new QWidget;
    auto* flow = new FlowLayout(links);
    flow->setContentsMargins(margin, 0, margin, 0);
    flow->setSpacing(spacing);
    for (const QString& className : classes) {
        auto* link = new QToolButton;
        link->setObjectName(QStringLiteral("referenceLink"));
        link->setText(reference::shortName(className));
        link->setToolTip(tr("Class page of %1").arg(className));
        link->setAutoRaise(true);
        link->setMinimumHeight(touch::targetSize);
        QFont font = link->font();
        font.setUnderline(true);
        link->setFont(font);
        connect(link, &QToolButton::clicked, this, [this, className] { openReference(className); });
        flow->addWidget(link);
    }
    return links;
}

void PageView::openReference(const QString& className)
{
    const QString path = reference::classPage(className);
    const bool opened = !path.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    m_message->setVisible(!opened);
    if (path.isEmpty())
        m_message->setText(tr("The reference is not installed; ./dev docs writes it."));
    else
        m_message->setText(
            tr("There is no browser here for %1").arg(QDir::toNativeSeparators(path)));
}
