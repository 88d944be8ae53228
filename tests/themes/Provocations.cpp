#include "Provocations.h"

#include "BrowserParts.h"
#include "KeypadKeys.h"
#include "QtVersions.h"

#include <Animator.h>
#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QIcon>
#include <QListView>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QPushButton>

namespace test {

namespace {

enum Deletion {
    AtOnce,
    /// Qt's own function goes on with the object after it has emitted the signal.
    Later
};

struct Entry
{
    const QMetaObject* declaredBy;
    QByteArray signal; ///< Empty for all signals of the class.
    Provocation way;
};

/// A function of a certain class as a function of any object.
template <typename Class, typename Use>
std::function<void(QObject*, const QMetaMethod&)> on(Use use)
{
    return [use](QObject* sender, const QMetaMethod&) { use(static_cast<Class&>(*sender)); };
}

/// For signals around which nothing of the library runs.
void emitDirectly(QObject* sender, const QMetaMethod& signal)
{
    const QList<QByteArray> types = signal.parameterTypes();
    QVariantList values;
    QGenericArgument arguments[5]; // no signal of Qt's has more
    for (int i = 0; i < types.size(); ++i)
        values.append(test::variantOf(signal.parameterType(i), nullptr));
    for (int i = 0; i < types.size(); ++i)
        arguments[i] = QGenericArgument(types.at(i).constData(), values.at(i).constData());
    signal.invoke(sender, Qt::DirectConnection, arguments[0], arguments[1], arguments[2],
                  arguments[3], arguments[4]);
}

void pressMouse(QWidget& widget)
{
    const QPoint position(5, 5);
    QMouseEvent press(QEvent::MouseButtonPress, position, widget.mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
}

void tap(QWidget& widget)
{
    const QPointer<QWidget> remaining(&widget);
    const QPoint position(5, 5);
    QMouseEvent release(QEvent::MouseButtonRelease, position, widget.mapToGlobal(position),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    pressMouse(widget);
    if (remaining)
        QCoreApplication::sendEvent(remaining, &release);
}

void type(QWidget& widget, Qt::Key key, const QString& text = QString())
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
}

void loseFocus(QWidget& widget)
{
    widget.setFocus();
    widget.clearFocus();
}

void requestContextMenu(QWidget& widget)
{
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    const QPoint position(5, 5);
    QContextMenuEvent request(QContextMenuEvent::Mouse, position, widget.mapToGlobal(position));
    QCoreApplication::sendEvent(&widget, &request);
}

void animate(Animator& animator)
{
    animator.setup(0);
    animator.interpolate(1, 2);
}

/// As a program selects.
void select(const ui::FileBrowserWidget& browser, const QString& path)
{
    const auto* view = browser.findChild<QListView*>(QString(), Qt::FindDirectChildrenOnly);
    const QModelIndex index = static_cast<ui::FileSystemModel*>(view->model())->index(path);
    view->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QVector<Entry> ofQtsClasses()
{
    const Provocation emitted{"emitted", emitDirectly, AtOnce};
    const QMetaObject* object = &QObject::staticMetaObject;
    const QMetaObject* widget = &QWidget::staticMetaObject;
    return {
        // The object is being deleted already; its window is in the middle of it, or else whole.
        {object,
         "destroyed(QObject*)",
         {"deleted", on<QObject>([](QObject& o) { delete &o; }), Later}},
        {object,
         "objectNameChanged(QString)",
         {"set", on<QObject>([](QObject& o) { o.setObjectName("other"); }), AtOnce}},
        {widget,
         "windowTitleChanged(QString)",
         {"set", on<QWidget>([](QWidget& w) { w.setWindowTitle("other"); }), AtOnce}},
        {widget,
         "windowIconChanged(QIcon)",
         {"set", on<QWidget>([](QWidget& w) { w.setWindowIcon(QIcon()); }), AtOnce}},
        {widget, "windowIconTextChanged(QString)", emitted},
        {widget,
         "customContextMenuRequested(QPoint)",
         {"asked for", on<QWidget>(requestContextMenu), AtOnce}},
        {&QLabel::staticMetaObject, "", emitted},
        {&QAbstractSlider::staticMetaObject, "", emitted},
        {&QAbstractItemModel::staticMetaObject, "", emitted},
        {&QFileSystemModel::staticMetaObject, "", emitted},
    };
}

QVector<Entry> ofButtons()
{
    const QMetaObject* button = &QAbstractButton::staticMetaObject;
    const auto click = on<QAbstractButton>([](QAbstractButton& b) { b.click(); });
    const auto check = on<QAbstractButton>([](QAbstractButton& b) {
        b.setCheckable(true);
        b.setChecked(true);
    });
    const QMetaObject* control = &SelectionControl::staticMetaObject;
    QVector<Entry> entries{
        {button, "toggled(bool)", {"set", check, Later}},
        {control, "stateChanged(int)", {"tapped", on<QWidget>(tap), AtOnce}},
        {control, "stateChanged(int)", {"clicked by the program", click, Later}},
        {control, "stateChanged(int)", {"set", check, Later}},
    };
    for (const char* signal : {"pressed()", "released()", "clicked(bool)"}) {
        entries.append({button, signal, {"clicked", click, AtOnce}});
        entries.append({button, signal, {"tapped", on<QWidget>(tap), AtOnce}});
    }
    return entries;
}

QVector<Entry> ofFields()
{
    using ui::LineEdit;
    const QMetaObject* qt = &QLineEdit::staticMetaObject;
    const QMetaObject* own = &LineEdit::staticMetaObject;
    const auto ok = on<LineEdit>([](LineEdit& field) { Q_EMIT field.signalOkKey(); });
    const auto cancel = on<LineEdit>([](LineEdit& field) { Q_EMIT field.signalCancelKey(); });
    const auto returnKey = on<LineEdit>([](LineEdit& field) { type(field, Qt::Key_Return); });
    const auto escapeKey = on<LineEdit>([](LineEdit& field) { type(field, Qt::Key_Escape); });
    const auto letter = on<LineEdit>([](LineEdit& field) { type(field, Qt::Key_A, "a"); });
    const auto setText = on<LineEdit>([](LineEdit& field) { field.setText("other"); });
    const auto selectAll = on<LineEdit>([](LineEdit& field) {
        field.setText("other");
        field.selectAll();
    });
    const auto tooLong = on<LineEdit>([](LineEdit& field) {
        field.setMaxLength(0);
        type(field, Qt::Key_A, "a");
    });
    return {
        {qt, "textChanged(QString)", {"set", setText, Later}},
        {qt, "cursorPositionChanged(int,int)", {"set", setText, Later}},
        {qt, "selectionChanged()", {"selected", selectAll, Later}},
        {qt, "inputRejected()", {"too long", tooLong, Later}},
        {qt, "textEdited(QString)", {"typed", letter, Later}},
        {qt, "textEdited(QString)", {"cancelled", cancel, AtOnce}},
        {qt, "returnPressed()", {"emitted", emitDirectly, AtOnce}},
        {qt, "editingFinished()", {"committed", ok, AtOnce}},
        {qt, "editingFinished()", {"Return key", returnKey, AtOnce}},
        {qt, "editingFinished()", {"Escape key", escapeKey, AtOnce}},
        {qt, "editingFinished()", {"focus loss", on<QWidget>(loseFocus), Later}},
        {own, "signalOkKey()", {"emitted", ok, AtOnce}},
        {own, "signalOkKey()", {"Return key", returnKey, AtOnce}},
        {own, "signalCancelKey()", {"emitted", cancel, AtOnce}},
        {own, "signalCancelKey()", {"Escape key", escapeKey, AtOnce}},
        {own, "signalCancelKey()", {"focus loss", on<QWidget>(loseFocus), Later}},
        {own, "signalClicked()", {"emitted", emitDirectly, AtOnce}},
        {own, "resultValidated(bool)", {"typed", letter, Later}},
        {own, "resultValidated(bool)", {"cancelled", cancel, AtOnce}},
        {own, "valueChanged()", {"committed", ok, AtOnce}},
        {own, "valueChanged()", {"Return key", returnKey, AtOnce}},
    };
}

QVector<Entry> ofKeypads()
{
    using ui::KeypadLineEdit;
    using ui::KeypadPopup;
    const auto open = on<KeypadLineEdit>([](KeypadLineEdit& field) {
        field.showKeypad();
        QCoreApplication::processEvents();
    });
    const auto focus = on<KeypadLineEdit>([](KeypadLineEdit& field) {
        field.setFocus();
        QCoreApplication::processEvents();
    });
    const auto ok =
        on<KeypadPopup>([](KeypadPopup& popup) { test::keypadKey(popup, "OK")->click(); });
    const auto cancel =
        on<KeypadPopup>([](KeypadPopup& popup) { test::keypadKey(popup, "Cancel")->click(); });
    return {
        {&KeypadLineEdit::staticMetaObject, "startKeypad()", {"asked for", open, AtOnce}},
        {&KeypadLineEdit::staticMetaObject, "startKeypad()", {"focused", focus, AtOnce}},
        {&KeypadPopup::staticMetaObject, "signalOk()", {"key", ok, AtOnce}},
        {&KeypadPopup::staticMetaObject, "signalCancel()", {"key", cancel, AtOnce}},
    };
}

QVector<Entry> ofAnimations()
{
    const QMetaObject* qt = &QAbstractAnimation::staticMetaObject;
    const auto run = on<Animator>(animate);
    const auto jump = on<Animator>([](Animator& animator) { animator.setCurrentValue(7); });
    const auto turn = on<Animator>(
        [](Animator& animator) { animator.setDirection(QAbstractAnimation::Backward); });
    return {
        {qt, "finished()", {"run", run, AtOnce}},
        {qt,
         "stateChanged(QAbstractAnimation::State,QAbstractAnimation::State)",
         {"run", run, AtOnce}},
        {qt, "directionChanged(QAbstractAnimation::Direction)", {"set", turn, AtOnce}},
        {qt, "currentLoopChanged(int)", {"emitted", emitDirectly, AtOnce}},
        {&QVariantAnimation::staticMetaObject, "valueChanged(QVariant)", {"set", jump, AtOnce}},
    };
}

QVector<Entry> ofBrowsers()
{
    using ui::FileBrowserWidget;
    const auto pressCrumb = on<BreadCrumbsWidget>(
        [](BreadCrumbsWidget& bar) { pressMouse(*test::crumbLabels(bar).constLast()); });
    const auto selectFile = on<FileBrowserWidget>([](FileBrowserWidget& browser) {
        select(browser, QCoreApplication::applicationFilePath());
    });
    const auto selectDirectory = on<FileBrowserWidget>([](FileBrowserWidget& browser) {
        select(browser, QCoreApplication::applicationDirPath());
    });
    const QMetaObject* browser = &FileBrowserWidget::staticMetaObject;
    return {
        {&BreadCrumbsWidget::staticMetaObject,
         "dirChanged(QString)",
         {"crumb", pressCrumb, AtOnce}},
        {&ClickableLabel::staticMetaObject,
         "clicked()",
         {"pressed", on<QWidget>(pressMouse), AtOnce}},
        {browser, "selectionChanged()", {"file", selectFile, AtOnce}},
        {browser, "selectionChanged()", {"directory", selectDirectory, AtOnce}},
    };
}

const QVector<Entry>& allEntries()
{
    static const QVector<Entry> all =
        ofQtsClasses() + ofButtons() + ofFields() + ofKeypads() + ofAnimations() + ofBrowsers();
    return all;
}

} // namespace

QVector<Provocation> provocations(const QMetaObject& metaObject, const QMetaMethod& signal)
{
    const QByteArray signature = signal.methodSignature();
    QVector<Provocation> result;
    for (const Entry& entry : allEntries()) {
        const bool is = entry.signal.isEmpty() ? signal.enclosingMetaObject() == entry.declaredBy
                                               : signature == entry.signal;
        if (is && metaObject.inherits(entry.declaredBy))
            result.append(entry.way);
    }
    return result;
}

void registerArgumentTypes()
{
    qRegisterMetaType<QAbstractAnimation::State>();
    qRegisterMetaType<QAbstractAnimation::Direction>();
    qRegisterMetaType<QAbstractItemModel::LayoutChangeHint>();
    qRegisterMetaType<QList<QPersistentModelIndex>>();
    qRegisterMetaType<QVector<int>>();
}

} // namespace test
