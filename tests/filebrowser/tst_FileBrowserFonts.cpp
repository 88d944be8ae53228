#include "BrowserParts.h"
#include "TestApplication.h"
#include "ui/FileBrowserWidget.h"

#include <platform/ui/style/StyleManager.h>

#include <QComboBox>
#include <QListView>
#include <QTreeView>

namespace {

constexpr int firstPixelSize = 21;

int instanceRequests = 0;

QVector<platform::ui::style::Fonts>& fontRequests()
{
    static QVector<platform::ui::style::Fonts> requests;
    return requests;
}

} // namespace

// These take the place of the style library's: a program's own definitions come first.
namespace platform {
namespace ui {
namespace style {

StyleManager* StyleManager::getInstance()
{
    ++instanceRequests;
    static StyleManager instance;
    return &instance;
}

QFont StyleManager::getStyleFont(Fonts font)
{
    QFont result;
    result.setPixelSize(firstPixelSize + fontRequests().size());
    fontRequests().append(font);
    return result;
}

} // namespace style
} // namespace ui
} // namespace platform

class tst_FileBrowserFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void askedForOncePerViewInOrder();
};

void tst_FileBrowserFonts::askedForOncePerViewInOrder()
{
    ui::FileBrowserWidget browser;
    const test::BrowserParts parts(browser);
    QCOMPARE(instanceRequests, 3);
    QCOMPARE(fontRequests(),
             QVector<platform::ui::style::Fonts>(3, platform::ui::style::Fonts::FileBrowser));
    QCOMPARE(parts.combo->font().pixelSize(), firstPixelSize);
    QCOMPARE(parts.tileView->font().pixelSize(), firstPixelSize + 1);
    QCOMPARE(parts.listView->font().pixelSize(), firstPixelSize + 2);

    browser.setAllowedDirs({QStringLiteral("/")});
    browser.setRootPath(QStringLiteral("/usr"));
    QCOMPARE(fontRequests().size(), 3);
}

int main(int argc, char** argv)
{
    return test::run<tst_FileBrowserFonts>(argc, argv);
}

#include "tst_FileBrowserFonts.moc"
