#include "ui/KeypadPopup.h"

#include <ui/keyboard/IKeypad.h>

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QDesktopWidget>
#endif

namespace ui {

namespace {

constexpr int frameLineWidth = 1;
constexpr int frameMidLineWidth = 2;
constexpr int frameMargin = 5;
constexpr int frameSpacing = 5;
constexpr int subtitleHeight = 20;
constexpr int rightScreenMargin = 10;

// Shades of the base colour in percent, as QColor::lighter() and QColor::darker() take them.
// mutant [110 -> 109; 110 -> 111]: The base colour lighter by either is white.
constexpr int lightFactor = 110;
constexpr int subtitleFactor = 115;
constexpr int midFactor = 125;
constexpr int darkFactor = 160;

QColor baseColor()
{
    return QColor(235, 235, 235);
}

/// From the innermost layout out, since a layout tells the next outer one only when it is
/// activated.
// NOLINTNEXTLINE(misc-no-recursion): no deeper than the keypad's widgets are nested
void activateLayouts(QWidget* widget)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): what follows may change the list
    const QObjectList children = widget->children();
    for (QObject* object : children) {
        auto* child = qobject_cast<QWidget*>(object);
        if (child && !child->isWindow())
            activateLayouts(child);
    }
    if (QLayout* layout = widget->layout())
        layout->activate();
}

/// Qt 6 has no desktop widget any more, whose geometry was the rectangle around all screens.
QSize desktopSize()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QApplication::desktop()->geometry().size();
#else
    QRect desktop;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        // mutant [dropped]: Not compiled with Qt 5.
        desktop |= screen->geometry(); // cppcheck-suppress useStlAlgorithm ; longer with it
    return desktop.size();
#endif
}

/// In the coordinates of the widget that gets \a event; Qt 6 has another name for it.
QPointF positionOf(const QMouseEvent& event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

bool isPassedToTarget(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
        || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

/// In a graphics scene the pop-up is no part of it: there its mere creation would take the focus.
Qt::WindowFlags windowFlagsFor(const QWidget* target)
{
    const bool isEmbedded = target->window()->graphicsProxyWidget();
    return isEmbedded ? Qt::Popup | Qt::BypassGraphicsProxyWidget : Qt::WindowFlags(Qt::Popup);
}

/// Hides \a popup, as its \a field has been hidden, and ends the edit as any other closing does.
void goWithField(QWidget* popup, const QPointer<QWidget>& field)
{
    popup->hide(); // may delete both
    // With a pop-up open, Qt leaves the focus in a window that is hidden: the next tap would be
    // none.
    if (field && !field->isVisible() && field->hasFocus())
        field->clearFocus();
}

} // namespace

KeypadPopup::KeypadPopup(QWidget* parent, const QString& title, ui::keyboard::KeyboardType type,
                         int)
    : QWidget(parent, windowFlagsFor(parent))
    , target(parent)
{
    parent->installEventFilter(this);
    // The pop-up dies with its parent, but an application may have given it another one meanwhile.
    connect(parent, &QObject::destroyed, this, [this] { target = nullptr; });
    // mutant [dropped]: The default of QWidget, spelt out because the pop-up must not take the
    // focus.
    setFocusPolicy(Qt::NoFocus);
    // mutant [order]: The keypad does not ask for it.
    setAutoFillBackground(true);

    keypadWidget = ui::keyboard::IKeypad::create(type, this);
    if (keypadWidget)
        connectKeypad();

    auto* outerLayout = new QVBoxLayout(this);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    QFrame* frame = createFrame();
    outerLayout->addWidget(frame);

    auto* innerLayout = new QVBoxLayout(frame);
    innerLayout->setContentsMargins(frameMargin, frameMargin, frameMargin, frameMargin);
    // mutant [order]: The subtitle does not depend on the layout.
    innerLayout->setSpacing(frameSpacing);
    createSubtitle(frame, title);
    innerLayout->addWidget(subtitleLabel);
    if (keypadWidget)
        innerLayout->addWidget(keypadWidget);
}

KeypadPopup::~KeypadPopup()
{
    // These are deleted next, when nothing is left that could take note of it.
    if (keypadWidget)
        // mutant [dropped]: Keeps the keypad, which dies with the pop-up, from writing to a part of
        // it that is dead already: no test sees that.
        keypadWidget->disconnect(this);
    if (subtitleLabel)
        // mutant [dropped]: The same for the label.
        subtitleLabel->disconnect(this);
}

void KeypadPopup::connectKeypad()
{
    using ui::keyboard::IKeypad;
    connect(keypadWidget, &IKeypad::signalOk, this, &KeypadPopup::slotOkButton);
    connect(keypadWidget, &IKeypad::signalCancel, this, &KeypadPopup::slotCancelButton);
    // By signature, as the edited widget may be of any class: Qt warns if it has no such signal.
    connect(target, SIGNAL(resultValidated(bool)), keypadWidget, SLOT(allowEntry(bool)));
    connect(keypadWidget, &QObject::destroyed, this, [this] { keypadWidget = nullptr; });
}

QFrame* KeypadPopup::createFrame()
{
    auto* frame = new QFrame(this);
    frame->setFrameStyle(QFrame::Box | QFrame::Raised);
    // mutant [dropped]: The default of QFrame.
    frame->setLineWidth(frameLineWidth);
    frame->setMidLineWidth(frameMidLineWidth);
    // mutant [dropped]: The default of QFrame, spelt out because the pop-up must not take the
    // focus.
    frame->setFocusPolicy(Qt::NoFocus);
    frame->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);

    QPalette palette = frame->palette();
    palette.setColor(frame->backgroundRole(), baseColor());
    palette.setColor(QPalette::Light, baseColor().lighter(lightFactor));
    palette.setColor(QPalette::Mid, baseColor().darker(midFactor));
    palette.setColor(QPalette::Dark, baseColor().darker(darkFactor));
    frame->setPalette(palette);
    frame->setAutoFillBackground(true);
    return frame;
}

void KeypadPopup::createSubtitle(QWidget* frame, const QString& title)
{
    subtitleLabel = new QLabel(title, frame);
    connect(subtitleLabel, &QObject::destroyed, this, [this] { subtitleLabel = nullptr; });
    subtitleLabel->setFixedHeight(subtitleHeight);
    subtitleLabel->setAlignment(Qt::AlignCenter);
    subtitleLabel->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);

    QPalette palette = subtitleLabel->palette();
    palette.setColor(subtitleLabel->backgroundRole(), baseColor().darker(subtitleFactor));
    // Light whatever the palette is, so the light text of a dark one could not be read on it.
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, subtitleLabel->foregroundRole(), Qt::black);
    subtitleLabel->setPalette(palette);
    subtitleLabel->setAutoFillBackground(true);
}

void KeypadPopup::setSubtitleLabel(const QString& text)
{
    if (subtitleLabel)
        subtitleLabel->setText(text);
}

void KeypadPopup::locatePopup()
{
    if (!target)
        return;
    const QSize screen = desktopSize();
    QPoint position = target->mapToGlobal(QPoint(0, target->height()));
    if (position.y() + sizeHint().height() > screen.height())
        position.ry() -= sizeHint().height() + target->height();
    // mutant [1 -> 0]: A pop-up that keeps the margin to the pixel is moved to where it is.
    if (position.x() + sizeHint().width() >= screen.width() - rightScreenMargin + 1)
        position.setX(screen.width() - rightScreenMargin - sizeHint().width());
    move(position);
}

void KeypadPopup::setKeypadSectionVisible(int section, bool visible)
{
    if (!keypadWidget)
        return;
    keypadWidget->setSectionVisible(section, visible);
    activateLayouts(this); // the size hint is the old one until then
    if (isVisible() && !testAttribute(Qt::WA_Resized)) {
        resize(sizeHint());
        setAttribute(Qt::WA_Resized, false); // so that the next showing measures afresh
    }
    locatePopup();
}

bool KeypadPopup::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == target && event->type() == QEvent::Hide)
        // mutant [0 -> 1]: A millisecond later is soon enough, too.
        QTimer::singleShot(0, this, [this] { goWithField(this, target); });
    if (watched != target || event->type() != QEvent::FocusOut || !isVisible() || !refocusPending)
        return false;
    // mutant [order]: Qt reports no loss of focus before activateWindow() returns.
    refocusPending = false;
    // mutant [order]: While a pop-up is open, QApplication takes no note of a new active window,
    // whenever it is asked for.
    target->activateWindow();
    target->setFocus(Qt::OtherFocusReason);
    return true;
}

void KeypadPopup::slotOkButton()
{
    buttonPressed = true;
    Q_EMIT signalOk();
}

void KeypadPopup::slotCancelButton()
{
    buttonPressed = true;
    Q_EMIT signalCancel();
}

bool KeypadPopup::event(QEvent* event)
{
    if (isPassedToTarget(event->type()) && passToTarget(*static_cast<QMouseEvent*>(event)))
        return true;
    return QWidget::event(event);
}

/// Whether \a event happened on the edited widget and has been sent there.
bool KeypadPopup::passToTarget(const QMouseEvent& event)
{
    if (!target)
        return false;
    const QPoint globalPosition = mapToGlobal(positionOf(event).toPoint());
    QWidget* receiver = QApplication::widgetAt(globalPosition);
    // The pop-up, being a window of its own, is no descendant in the sense of isAncestorOf().
    if (!receiver || (receiver != target && !target->isAncestorOf(receiver)))
        return false;
    QMouseEvent passedOn(event.type(), receiver->mapFromGlobal(globalPosition), globalPosition,
                         event.button(), event.buttons(), event.modifiers());
    QCoreApplication::sendEvent(receiver, &passedOn);
    return true;
}

void KeypadPopup::keyPressEvent(QKeyEvent* event)
{
    if (target)
        QCoreApplication::sendEvent(target, event);
}

void KeypadPopup::showEvent(QShowEvent*)
{
    refocusPending = true;
}

// Closing and hiding go ahead as usual; what they mean for the edit is decided by the edited
// widget.
void KeypadPopup::closeEvent(QCloseEvent*) { }

void KeypadPopup::hideEvent(QHideEvent*) { }

} // namespace ui
