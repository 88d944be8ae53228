#include "AllClasses.h"
#include "TestApplication.h"
#include "ui_AllWidgets.h"

#include <ui/KeypadPopup.h>

#include <QBuffer>
#include <QFrame>
#include <QIcon>
#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QUiLoader>

#include <memory>

namespace {

QList<QDesignerCustomWidgetInterface*> offeredWidgets()
{
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

/// All but the base of switches, which is abstract, and what a field makes by itself.
QVector<test::ClassInfo> offerableWidgets()
{
    QVector<test::ClassInfo> result;
    for (const test::ClassInfo& info : test::allWidgetClasses()) {
        if (info.metaObject != &SelectionControl::staticMetaObject
            && info.metaObject != &ui::KeypadPopup::staticMetaObject)
            result.append(info);
    }
    return result;
}

bool headerExists(const QString& header)
{
    return QFile::exists(QStringLiteral(HEADER_FOLDER "/") + header);
}

/// What every way of loading the form must give.
void verifyForm(QWidget& form)
{
    auto* frame = form.findChild<ui::CRoundedFrame*>(QStringLiteral("frame"));
    QVERIFY(frame);
    QCOMPARE(frame->radius(), 12);
    QCOMPARE(frame->lineWidth(), 3);
    QCOMPARE(frame->frameShadow(), QFrame::Raised);
    QCOMPARE(frame->frameShape(), ui::CRoundedFrame::NoFrame);
    QVERIFY(frame->findChild<QLabel*>(QStringLiteral("framedLabel")));

    auto* button = form.findChild<ui::CGridArrangedButton*>(QStringLiteral("button"));
    QVERIFY(button);
    QVERIFY(button->findChild<QLabel*>(QStringLiteral("buttonLabel")));

    auto* indicator = form.findChild<ui::widgets::ScrollIndicatorBar*>(QStringLiteral("indicator"));
    QVERIFY(indicator);
    QCOMPARE(indicator->maximum(), 200);
    QCOMPARE(indicator->orientation(), Qt::Horizontal);

    auto* toggle = form.findChild<Switch*>(QStringLiteral("toggle"));
    QVERIFY(toggle);
    QVERIFY(toggle->isChecked());
    QCOMPARE(toggle->property("height").toInt(), 48);
    QCOMPARE(toggle->property("thumbOnBrush").value<QColor>(), QColor(80, 7, 120));
    QCOMPARE(toggle->property("thumbOnOpacity").toDouble(), 0.75);

    QVERIFY(form.findChild<ui::LineEdit*>(QStringLiteral("lineEdit")));
    QVERIFY(form.findChild<ui::KeypadLineEdit*>(QStringLiteral("keypadField")));
    QVERIFY(form.findChild<ui::CBatteryStatusWidget*>(QStringLiteral("battery")));
    QVERIFY(form.findChild<ui::FileBrowserWidget*>());
    QVERIFY(form.findChild<BreadCrumbsWidget*>(QStringLiteral("crumbs")));
    QVERIFY(form.findChild<ClickableLabel*>(QStringLiteral("label")));
}

} // namespace

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersEveryWidget_data();
    void offersEveryWidget();
    void showsContentInDesignerOnly();
    void firstLookLoads_data();
    void firstLookLoads();
    void formThroughUic();
    void formThroughUiLoader();
};

void tst_DesignerPlugin::offersEveryWidget_data()
{
    QTest::addColumn<QString>("className");
    for (const test::ClassInfo& info : offerableWidgets())
        QTest::newRow(info.name) << QString::fromLatin1(info.metaObject->className());
}

void tst_DesignerPlugin::offersEveryWidget()
{
    QFETCH(QString, className);

    const auto offered = offeredWidgets();
    QVERIFY(offered.size() <= offerableWidgets().size()); // nothing else
    const auto found = std::find_if(offered.begin(), offered.end(),
                                    [&](auto* widget) { return widget->name() == className; });
    QVERIFY(found != offered.end());
    const bool isContainer = className == QLatin1String("ui::CRoundedFrame")
        || className == QLatin1String("ui::CGridArrangedButton");
    QCOMPARE((*found)->isContainer(), isContainer);
    QVERIFY((*found)->group().startsWith(QLatin1String("Platform")));
    QVERIFY(!(*found)->toolTip().isEmpty());
    QVERIFY2(headerExists((*found)->includeFile()), qPrintable((*found)->includeFile()));
    QVERIFY(!(*found)->icon().availableSizes().isEmpty()); // or the widget box shows Qt's logo

    QWidget parent;
    const QWidget* widget = (*found)->createWidget(&parent);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(QLatin1String(widget->metaObject()->className()), className); // or Designer complains
}

void tst_DesignerPlugin::showsContentInDesignerOnly()
{
    const auto offered = offeredWidgets();
    const auto crumbs = std::find_if(offered.begin(), offered.end(), [](auto* widget) {
        return widget->name() == QLatin1String("BreadCrumbsWidget");
    });
    QVERIFY(crumbs != offered.end());
    QWidget parent;
    QVERIFY(!(*crumbs)->createWidget(&parent)->findChild<ClickableLabel*>());
    (*crumbs)->initialize(nullptr);
    QVERIFY((*crumbs)->createWidget(&parent)->findChild<ClickableLabel*>());
}

void tst_DesignerPlugin::firstLookLoads_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("className");
    const auto offered = offeredWidgets();
    for (auto* widget : offered)
        QTest::newRow(qPrintable(widget->name())) << widget->domXml() << widget->name();
}

void tst_DesignerPlugin::firstLookLoads()
{
    QFETCH(QString, xml);
    QFETCH(QString, className);

    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(PLUGIN_FOLDER));
    QVERIFY(loader.availableWidgets().contains(className));
    QByteArray bytes = xml.toUtf8();
    QBuffer buffer(&bytes);
    const std::unique_ptr<QWidget> widget(loader.load(&buffer));
    QVERIFY2(widget != nullptr, qPrintable(loader.errorString()));
    QVERIFY(!widget->size().isEmpty());
    QVERIFY(!widget->objectName().isEmpty());
}

void tst_DesignerPlugin::formThroughUic()
{
    QWidget form;
    Ui::AllWidgets ui;
    ui.setupUi(&form);
    verifyForm(form);
}

void tst_DesignerPlugin::formThroughUiLoader()
{
    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(PLUGIN_FOLDER));
    QFile file(QStringLiteral(FORM_FILE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));
    QVERIFY2(form != nullptr, qPrintable(loader.errorString()));
    verifyForm(*form);
}

const test::Registration<tst_DesignerPlugin> registration;

#include "tst_DesignerPlugin.moc"
