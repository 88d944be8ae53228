#include "BrowserParts.h"
#include "PlatformMessages.h"
#include "TestApplication.h"
#include "Tree.h"
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

/// A font that the device's library names though it is not installed.
QFont& missing()
{
    static QFont font;
    return font;
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
    QFont result = missing();
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
    void initTestCase();
    void init();
    void askedForOncePerViewInOrder();
    void missingFont_data();
    void missingFont();
};

void tst_FileBrowserFonts::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_FileBrowserFonts::init()
{
    instanceRequests = 0;
    fontRequests().clear();
    missing() = QFont();
}

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

void tst_FileBrowserFonts::missingFont_data()
{
    QTest::addColumn<QFont>("font");
    QTest::newRow("unknown family") << QFont(QStringLiteral("No Such Family"));
    QTest::newRow("no family") << QFont(QString());
    QFont styled(QStringLiteral("No Such Family"));
    styled.setStyleName(QStringLiteral("No Such Style"));
    QTest::newRow("unknown style") << styled;
}

void tst_FileBrowserFonts::missingFont()
{
    QFETCH(QFont, font);
    missing() = font;
    const test::Tree tree;
    tree.makeFile(QStringLiteral("name"));
    ui::FileBrowserWidget browser;
    browser.setAllowedDirs({tree.path()});
    browser.show();
    const test::BrowserParts parts(browser);
    QTRY_COMPARE(test::shownNames(*parts.tileView), QStringList{"name"});
    QCOMPARE(parts.tileView->font().family(), font.family());
    const QRect cell = parts.tileView->visualRect(test::entry(*parts.tileView, "name"));
    QVERIFY(cell.height() >= firstPixelSize); // another font stands in, at the size asked for
    QVERIFY(!browser.grab().isNull());
}

int main(int argc, char** argv)
{
    return test::run<tst_FileBrowserFonts>(argc, argv);
}

#include "tst_FileBrowserFonts.moc"
