#include "TestApplication.h"

#include <platform/ui/style/StyleManager.h>

using platform::ui::style::Fonts;
using platform::ui::style::StyleManager;

class tst_StyleManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileBrowserIsFontNumberOne();
    void oneInstanceServesTheProcess();
    void fileBrowserFontIsFixed();
    void fontIsReturnedByValue();
    void unknownFontIsTheApplicationDefault();
};

void tst_StyleManager::fileBrowserIsFontNumberOne()
{
    QCOMPARE(int(Fonts::FileBrowser), 1);
}

void tst_StyleManager::oneInstanceServesTheProcess()
{
    StyleManager* const manager = StyleManager::getInstance();
    QVERIFY(manager);
    QCOMPARE(StyleManager::getInstance(), manager);
}

void tst_StyleManager::fileBrowserFontIsFixed()
{
    const QFont font = StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser);
    QCOMPARE(font.pixelSize(), 20);
    QCOMPARE(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser), font);
}

void tst_StyleManager::fontIsReturnedByValue()
{
    QFont font = StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser);
    font.setPixelSize(99);
    QCOMPARE(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser).pixelSize(), 20);
}

void tst_StyleManager::unknownFontIsTheApplicationDefault()
{
    QCOMPARE(StyleManager::getInstance()->getStyleFont(Fonts(0)), QFont());
    QCOMPARE(StyleManager::getInstance()->getStyleFont(Fonts(-7)), QFont());
}

const test::Registration<tst_StyleManager> registration;

#include "tst_StyleManager.moc"
