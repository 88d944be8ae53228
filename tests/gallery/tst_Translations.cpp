#include "AllClasses.h"
#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "pages/Pages.h"
#include "properties/PropertyEditor.h"
#include "TestApplication.h"
#include "Translations.h"

#include <ui/FileSystemModel.h>
#include <ui/keyboard/IKeypad.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace {

/// Marks every text that it is asked for, in place of a translation.
class MarkingTranslator : public QTranslator
{
public:
    static QString mark()
    {
        return QString(QChar(0x2020));
    }

    QString translate(const char*, const char* text, const char*, int) const override
    {
        return mark() + QString::fromUtf8(text);
    }

    bool isEmpty() const override
    {
        return false;
    }
};

bool hasWords(const QString& text)
{
    return std::count_if(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); }) > 1;
}

QStringList textsOf(const QWidget& widget)
{
    QStringList texts = {widget.accessibleName(), widget.toolTip()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts.append(label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts.append(button->text());
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        for (int index = 0; index < box->count(); ++index)
            texts.append(box->itemText(index));
    }
    return texts;
}

/// The texts in the widget and below that did not pass a translator.
QStringList unmarkedTexts(const QWidget& widget)
{
    QStringList texts = textsOf(widget);
    for (const QWidget* child : widget.findChildren<QWidget*>())
        texts += textsOf(*child);
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [](const QString& text) {
                                   return !hasWords(text)
                                       || text.contains(MarkingTranslator::mark());
                               }),
                texts.end());
    return texts;
}

/// Names rather than words: the library's, those of its classes and icons, and of directories.
bool isName(const QString& text)
{
    static const QRegularExpression names(
        QStringLiteral("^(platform_widgets .*|[a-z_]+\\.(svg|png)|/.*)$"));
    const auto isNamed = [&text](const test::ClassInfo& info) {
        return text == QLatin1String(info.name);
    };
    const QVector<test::ClassInfo>& classes = test::allClasses();
    static const QStringList directories = {QStringLiteral("music"), QStringLiteral("Berlin"),
                                            QStringLiteral("encores")};
    return names.match(text).hasMatch() || std::any_of(classes.cbegin(), classes.cend(), isNamed)
        || directories.contains(text);
}

} // namespace

/// The gallery in other languages.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void windowIsGerman();
    void keypadIsGerman();
    void qtIsGerman();
    void unknownLanguageChangesNothing();
    void pageLeavesNoTextOut_data();
    void pageLeavesNoTextOut();
    void keypadLeavesNoTextOut();
    void germanPageFits_data();
    void germanPageFits();
};

namespace {

const QLocale german(QLocale::German, QLocale::Germany);

/// The area that the window scrolls the page in.
const QScrollArea* scrolledBy(const GalleryWindow* window, const GalleryPage* page)
{
    for (const QScrollArea* area : window->findChildren<QScrollArea*>()) {
        if (area->widget() == page->parentWidget())
            return area;
    }
    return nullptr;
}

/// Whether nothing of the contents is cut off at a side.
bool fits(const QScrollArea* area)
{
    return area->widget()->width() <= area->viewport()->width();
}

void addPages()
{
    QTest::addColumn<int>("page");
    const QVector<PageEntry> pages = allPages();
    for (int page = 0; page < pages.size(); ++page)
        QTest::newRow(qPrintable(pages.at(page).id)) << page;
}

} // namespace

/// The font in points that the gallery finds, and makes larger ones of.
void tst_Translations::initTestCase()
{
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
}

void tst_Translations::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator*>());
}

void tst_Translations::windowIsGerman()
{
    installTranslations(german);
    const GalleryWindow window(allPages(), QString());
    QCOMPARE(window.windowTitle(), QStringLiteral("Widget-Galerie"));
    const auto* list = window.findChild<QListWidget*>(QStringLiteral("pageList"));
    QCOMPARE(list->item(0)->text(), QStringLiteral("\u00dcbersicht"));
    QCOMPARE(list->item(10)->text(), QStringLiteral("Dateibrowser"));
}

void tst_Translations::keypadIsGerman()
{
    installTranslations(german);
    QWidget parent;
    ui::keyboard::IKeypad::create(ui::keyboard::KeyboardType::Text, &parent);
    QStringList labels;
    for (const QAbstractButton* key : parent.findChildren<QAbstractButton*>())
        labels.append(key->text());
    QVERIFY(labels.contains(QStringLiteral("Leertaste")));
    QVERIFY(labels.contains(QStringLiteral("Abbruch")));
}

/// And with it the library's texts that are Qt's.
void tst_Translations::qtIsGerman()
{
    installTranslations(german);
    const ui::FileSystemModel model;
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Gr\u00f6\u00dfe"));
}

void tst_Translations::unknownLanguageChangesNothing()
{
    installTranslations(QLocale(QLocale::French, QLocale::France));
    const GalleryWindow window(allPages(), QString());
    QCOMPARE(window.windowTitle(), QStringLiteral("Widget Gallery"));
    const ui::FileSystemModel model;
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Size"));
}

void tst_Translations::pageLeavesNoTextOut_data()
{
    addPages();
}

void tst_Translations::pageLeavesNoTextOut()
{
    QFETCH(int, page);
    auto* translator = new MarkingTranslator;
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator);
    const PageEntry entry = allPages().at(page);
    const std::unique_ptr<GalleryPage> widget(entry.create(nullptr));

    QStringList texts = unmarkedTexts(*widget) << unmarkedTexts(QLabel(entry.title));
    for (const GalleryPage::DemoWidget& demoWidget : widget->demoWidgets())
        texts += unmarkedTexts(QLabel(demoWidget.name));
    texts.erase(std::remove_if(texts.begin(), texts.end(), isName), texts.end());
    QCOMPARE(texts, QStringList());
}

void tst_Translations::keypadLeavesNoTextOut()
{
    auto* translator = new MarkingTranslator;
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator);
    using ui::keyboard::KeyboardType;
    for (KeyboardType type : {KeyboardType::Integer, KeyboardType::Decimal, KeyboardType::Text}) {
        QWidget parent;
        ui::keyboard::IKeypad::create(type, &parent);
        QCOMPARE(unmarkedTexts(parent), QStringList());
    }
}

void tst_Translations::germanPageFits_data()
{
    addPages();
}

/// German words are longer, and the screen is 800 pixels wide.
void tst_Translations::germanPageFits()
{
    QFETCH(int, page);
    installTranslations(german);
    QWidget stage; // keeps the platform from being asked for more than a plain window
    GalleryWindow window(allPages(), QString(), &stage);
    stage.resize(window.size());
    QCOMPARE(stage.width(), 800);
    window.showPage(allPages().at(page).id);
    stage.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stage));

    QVERIFY(fits(scrolledBy(&window, window.page())));
    if (!window.page()->demoWidgets().isEmpty())
        QVERIFY(fits(window.findChild<PropertyEditor*>()->findChild<QScrollArea*>()));
}

const test::Registration<tst_Translations> registration;

#include "tst_Translations.moc"
