#include "Screenshots.h"

#include "Appearance.h"
#include "GalleryPage.h"
#include "Rendering.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QTextStream>

namespace {

struct Variant
{
    QString suffix;
    Appearance appearance;
    qreal devicePixelRatio;
};

/// What the page gets in a gallery window of 800 x 480 without the property editor, and about as
/// much height as it wants.
constexpr QSize leastSize(600, 400);

QVector<Variant> variants(const QString& styleSheet)
{
    return {{QStringLiteral("light"), {false, false, false, styleSheet}, 1.0},
            {QStringLiteral("light@2x"), {false, false, false, styleSheet}, 2.0},
            {QStringLiteral("dark"), {true, false, false, styleSheet}, 1.0},
            {QStringLiteral("right-to-left"), {false, true, false, styleSheet}, 1.0},
            {QStringLiteral("disabled"), {false, false, true, styleSheet}, 1.0}};
}

QSize sizeOf(const QWidget& page)
{
    QSize size = page.minimumSizeHint().expandedTo(leastSize);
    size.setHeight(qMax(size.height(), page.sizeHint().height()));
    if (page.hasHeightForWidth())
        size.setHeight(qMax(leastSize.height(), page.heightForWidth(size.width())));
    return size;
}

QImage picture(const PageEntry& entry, const Variant& variant)
{
    variant.appearance.applyToApplication();
    QWidget stage; // the page stands on it as it does in the window, as a child
    GalleryPage* page = entry.create(&stage);
    variant.appearance.applyToPage(*page);
    page->ensurePolished();
    page->resize(sizeOf(*page));
    stage.resize(page->size());
    rendering::showUnseen(&stage);
    rendering::waitUntil([page] { return page->isReady(); });
    return rendering::pictureOf(&stage, variant.devicePixelRatio);
}

} // namespace

bool takeScreenshots(const QVector<PageEntry>& pages, const QDir& directory,
                     const QString& styleSheet, QTextStream& out, QString* error)
{
    const QVector<Variant> looks = variants(styleSheet);
    for (const PageEntry& entry : pages) {
        for (const Variant& variant : looks) {
            const QString path = directory.absoluteFilePath(
                entry.id + QLatin1Char('-') + variant.suffix + QStringLiteral(".png"));
            if (!picture(entry, variant).save(path)) {
                *error = QCoreApplication::translate("Screenshots", "cannot write \"%1\"")
                             .arg(QDir::toNativeSeparators(path));
                return false;
            }
            out << QDir::toNativeSeparators(path) << Qt::endl;
        }
    }
    return true;
}
