#include "ShownGallery.h"

#include "GalleryPage.h"
#include "pages/Pages.h"
#include "PlatformMessages.h"
#include "properties/PropertyEditor.h"
#include "properties/PropertyGroup.h"
#include "tools/Tools.h"
#include "TouchStyle.h"

#include <QComboBox>
#include <QtTest>

namespace test {

ShownGallery::ShownGallery(const QString& page, const QSize& size)
    : window(allPages(), QString(), &stage)
{
    window.showPage(page);
    stage.resize(size);
    window.resize(size);
    stage.show();
    QVERIFY(QTest::qWaitForWindowActive(&stage));
}

void ShownGallery::chooseTool(const char* name)
{
    window.findChild<QComboBox*>(QStringLiteral("toolChoice"))
        ->setCurrentText(QString::fromLatin1(name));
}

PropertyEditor* ShownGallery::properties() const
{
    return window.findChild<PropertyEditor*>();
}

QWidget* ShownGallery::demo(const char* name) const
{
    for (const GalleryPage::DemoWidget& demo : window.page()->demoWidgets()) {
        if (demo.name == QLatin1String(name))
            return demo.widget;
    }
    return nullptr;
}

PropertyRow* ShownGallery::row(const char* name) const
{
    for (PropertyRow* row : properties()->findChildren<PropertyRow*>()) {
        if (row->name() == name && !row->parentWidget()->parentWidget()->parentWidget()->isHidden())
            return row;
    }
    return nullptr;
}

QString ShownGallery::log() const
{
    return window.findChild<SignalLog*>()->toPlainText();
}

void prepareGallery()
{
    dropPlatformMessages();
    TouchStyle::install();
    QFont font = QApplication::font();
    font.setPointSize(9); // as the gallery finds it, which makes larger ones of it
    font.setHintingPreference(QFont::PreferFullHinting); // whole pixels, with Qt 6 too
    QApplication::setFont(font);
}

void addPages()
{
    QTest::addColumn<QString>("id");
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& entry : pages)
        QTest::newRow(qPrintable(entry.id)) << entry.id;
}

void tap(QWidget* widget)
{
    const QPoint position = widget->mapTo(widget->window(), widget->rect().center());
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {}, position);
}

QImage imageOf(QWidget* widget)
{
    return widget->grab().toImage();
}

} // namespace test
