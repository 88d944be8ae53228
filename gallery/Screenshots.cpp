#include "Screenshots.h"

#include "Appearance.h"
#include "GalleryPage.h"
#include "PageView.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPalette>
#include <QTextStream>
#include <QTimer>
#include <QWidget>

namespace {

/// Milliseconds; reading a directory of a slow medium takes some of them.
constexpr int longestWait = 5000;

} // namespace

bool rendering::waitUntil(const std::function<bool()>& condition)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(longestWait);
    while (!condition()) {
        if (!deadline.isActive())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void rendering::showUnseen(QWidget* window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    QCoreApplication::processEvents();
}

QImage rendering::pictureOf(QWidget* widget, qreal devicePixelRatio)
{
    QImage image(widget->size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(widget->palette().color(QPalette::Window));
    widget->render(&image);
    return image;
}

namespace {

struct Variant
{
    QString suffix;
    Appearance appearance;
    qreal devicePixelRatio;
};

QVector<Variant> variants(const QString& styleSheet)
{
    return {{QStringLiteral("light"), {false, false, false, styleSheet}, 1.0},
            {QStringLiteral("light@2x"), {false, false, false, styleSheet}, 2.0},
            {QStringLiteral("dark"), {true, false, false, styleSheet}, 1.0},
            {QStringLiteral("right-to-left"), {false, true, false, styleSheet}, 1.0},
            {QStringLiteral("disabled"), {false, false, true, styleSheet}, 1.0}};
}

QImage picture(const PageEntry& entry, const Variant& variant)
{
    variant.appearance.applyToApplication();
    QWidget stage; // the page stands on it as it does in the window, as a child
    auto* view = new PageView(entry, &stage);
    GalleryPage* page = view->page();
    variant.appearance.applyToPage(*page);
    view->ensurePolished();
    view->resize(view->pictureSize());
    stage.resize(view->size());
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
