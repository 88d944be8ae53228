#include "AllClasses.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QIntValidator>
#include <QLabel>

namespace {

using Make = QWidget* (*)(QWidget* parent);

constexpr QSize size(240, 120);

QWidget* makeFrame(QWidget* parent)
{
    auto* frame = new ui::CRoundedFrame(parent);
    frame->enableFillContents(true);
    return frame;
}

QWidget* makeIndicator(QWidget* parent)
{
    auto* indicator = new ui::widgets::ScrollIndicatorBar(parent);
    indicator->setHighlightBar(true);
    return indicator;
}

QWidget* makeSwitch(QWidget* parent)
{
    return new Switch(QStringLiteral("HHH"), parent);
}

QWidget* makeLabel(QWidget* parent)
{
    auto* label = new ClickableLabel(parent);
    label->setText(QStringLiteral("HHH"));
    return label;
}

QWidget* makeBar(QWidget* parent)
{
    auto* bar = new BreadCrumbsWidget(parent);
    bar->setRootPath(QStringLiteral("/data"));
    bar->changeDir(QStringLiteral("/data/H/HH/HHH/HHHH"));
    return bar;
}

QWidget* makeButton(QWidget* parent)
{
    auto* button = new ui::CGridArrangedButton(parent);
    button->addWidget(new QLabel(QStringLiteral("HHH")), 0, 0);
    return button;
}

/// With a text that its validator does not accept.
template <typename Field>
QWidget* makeField(QWidget* parent)
{
    auto* field = new Field(parent);
    field->setValidator(new QIntValidator(field));
    QTest::keyClicks(field, QStringLiteral("-"));
    return field;
}

QWidget* makePopup(QWidget* parent)
{
    auto* field = new ui::LineEdit(parent);
    return new ui::KeypadPopup(field, QStringLiteral("HHH"), ui::keyboard::KeyboardType(), -1);
}

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

int redPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == QColor(Qt::red);
    }
    return count;
}

struct Hook
{
    const char* className;
    const char* rule;
    Make make;
};

const Hook hooks[] = {
    {"CRoundedFrame", "ui--CRoundedFrame { color: red }", makeFrame},
    {"CRoundedFrame", "ui--CRoundedFrame { background-color: red }", makeFrame},
    {"CBatteryStatusWidget", "ui--CBatteryStatusWidget { color: red }",
     make<ui::CBatteryStatusWidget>},
    {"ScrollIndicatorBar", "ui--widgets--ScrollIndicatorBar { selection-background-color: red }",
     makeIndicator},
    {"Switch", "#Switch { color: red }", makeSwitch},
    {"SelectionControl", "SelectionControl { qproperty-thumbOffBrush: red }", makeSwitch},
    {"Switch", "Switch { qproperty-thumbOffBrush: red }", makeSwitch},
    {"ClickableLabel", "ClickableLabel { color: red }", makeLabel},
    {"BreadCrumbsWidget", "#breadcrumb { color: red }", makeBar},
    {"BreadCrumbsWidget", "[directory=\"/data/H/HH\"] { color: red }", makeBar},
    {"BreadCrumbsWidget", "BreadCrumbsWidget QLabel { color: red }", makeBar},
    {"BreadCrumbsWidget", "BreadCrumbsWidget QPushButton { border: 2px solid red }", makeBar},
    {"CGridArrangedButton", "ui--CGridArrangedButton { border: 2px solid red }", makeButton},
    {"CGridArrangedButton", "ui--CGridArrangedButton QLabel { color: red }", makeButton},
    {"LineEdit", "ui--LineEdit[inputValid=\"false\"] { background: red }", makeField<ui::LineEdit>},
    {"LineEdit", "ui--LineEdit { background: red }", makeField<ui::KeypadLineEdit>},
    {"KeypadLineEdit", "ui--KeypadLineEdit[inputValid=\"false\"] { background: red }",
     makeField<ui::KeypadLineEdit>},
    {"KeypadPopup", "ui--KeypadPopup QFrame { background-color: red }", makePopup},
    {"KeypadPopup", "ui--KeypadPopup QLabel { color: red }", makePopup},
    {"KeypadPopup", "ui--KeypadPopup QPushButton { border: 2px solid red }", makePopup},
    {"FileBrowserWidget", "#FileBrowser QComboBox { border: 2px solid red }",
     make<ui::FileBrowserWidget>},
    {"FileBrowserWidget", "#FileBrowser #toolbarButton { border: 2px solid red }",
     make<ui::FileBrowserWidget>},
};

int redPixels(Make make, const QString& styleSheet)
{
    qApp->setStyleSheet(styleSheet);
    QWidget window;
    QWidget* widget = make(&window);
    widget->resize(size.expandedTo(widget->sizeHint()));
    return redPixels(widget->grab().toImage());
}

} // namespace

Q_DECLARE_METATYPE(Make)

/// What the application's style sheet may select, it reaches.
class tst_StyleSheetHooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyWidgetHasHook();
    void colors_data();
    void colors();
    void properties();
};

void tst_StyleSheetHooks::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_StyleSheetHooks::everyWidgetHasHook()
{
    QStringList covered;
    for (const Hook& hook : hooks)
        covered.append(QString::fromLatin1(hook.className));
    QCOMPARE(test::uncovered(covered, test::allWidgetClasses()), QString());
}

void tst_StyleSheetHooks::colors_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("rule");

    for (const Hook& hook : hooks)
        QTest::newRow(hook.rule) << hook.make << QString::fromLatin1(hook.rule);
}

void tst_StyleSheetHooks::colors()
{
    QFETCH(Make, make);
    QFETCH(QString, rule);
    QCOMPARE(redPixels(make, QStringLiteral("#nothing { color: red }")), 0);
    QVERIFY(redPixels(make, rule) > 0);
}

void tst_StyleSheetHooks::properties()
{
    qApp->setStyleSheet(
        QStringLiteral("ui--CRoundedFrame { qproperty-radius: 7; qproperty-frameShadow: Sunken;"
                       "                    qproperty-frameShape: NoFrame; }"
                       "Switch { qproperty-height: 50; qproperty-trackOffOpacity: 0.75; }"));
    ui::CRoundedFrame frame;
    frame.ensurePolished();
    QCOMPARE(frame.radius(), 7);
    QCOMPARE(frame.frameShadow(), QFrame::Sunken);
    QCOMPARE(frame.frameShape(), ui::CRoundedFrame::NoFrame);
    Switch control;
    control.ensurePolished();
    QCOMPARE(control.indicatorHeight(), 50);
    QCOMPARE(control.trackOffOpacity(), 0.75);
}

const test::Registration<tst_StyleSheetHooks> registration;

#include "tst_StyleSheetHooks.moc"
