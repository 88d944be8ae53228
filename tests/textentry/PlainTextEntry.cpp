#include "PlainTextEntry.h"

#include "QtVersions.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QValidator>
#include <QVariant>
#include <QVBoxLayout>

namespace test::plain {

LineEdit::LineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setProperty("inputValid", QVariant(true));
    setFocusPolicy(Qt::ClickFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QLineEdit::textEdited, this, &LineEdit::textEditedSlot);
    connect(this, &LineEdit::signalOkKey, this, &LineEdit::onOkKey);
    connect(this, &QLineEdit::returnPressed, this, &LineEdit::onOkKey);
    connect(this, &LineEdit::signalCancelKey, this, &LineEdit::onCancelKey);
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT signalCancelKey();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT signalOkKey();
    else
        QLineEdit::keyPressEvent(event);
}

void LineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    savedText = text();
    if (selectedText().isEmpty())
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT signalCancelKey();
}

void LineEdit::onOkKey()
{
    Q_EMIT valueChanged();
    blockSignals(true);
    clearFocus();
    blockSignals(false);
    Q_EMIT editingFinished();
}

void LineEdit::onCancelKey()
{
    setText(savedText);
    Q_EMIT textEdited(savedText);
    blockSignals(true);
    clearFocus();
    blockSignals(false);
    Q_EMIT editingFinished();
}

void LineEdit::textEditedSlot(const QString& text)
{
    bool valid = true;
    if (validator()) {
        QString copy = text;
        int position = 0;
        valid = validator()->validate(copy, position) == QValidator::Acceptable;
    }
    setProperty("inputValid", valid);
    style()->polish(this);
    Q_EMIT resultValidated(valid);
}

KeypadPopup::KeypadPopup(QWidget* parent, const QString& title, ui::keyboard::KeyboardType type,
                         int)
    : QWidget(parent, Qt::Popup)
    , target(parent)
{
    parent->installEventFilter(this);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    keypadWidget = ui::keyboard::IKeypad::create(type, this);
    using ui::keyboard::IKeypad;
    connect(keypadWidget, &IKeypad::signalOk, this, &KeypadPopup::slotOkButton);
    connect(keypadWidget, &IKeypad::signalCancel, this, &KeypadPopup::slotCancelButton);
    connect(parent, SIGNAL(resultValidated(bool)), keypadWidget, SLOT(allowEntry(bool)));

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QFrame(this);
    outer->addWidget(frame);
    frame->setFrameStyle(QFrame::Box | QFrame::Raised);
    frame->setLineWidth(1);
    frame->setMidLineWidth(2);
    frame->setFocusPolicy(Qt::NoFocus);
    frame->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    const QColor base(235, 235, 235);
    QPalette palette = frame->palette();
    palette.setColor(frame->backgroundRole(), base);
    palette.setColor(QPalette::Light, base.lighter(110));
    palette.setColor(QPalette::Mid, base.darker(125));
    palette.setColor(QPalette::Dark, base.darker(160));
    frame->setPalette(palette);
    frame->setAutoFillBackground(true);

    auto* inner = new QVBoxLayout(frame);
    inner->setContentsMargins(5, 5, 5, 5);
    inner->setSpacing(5);
    subtitleLabel = new QLabel(frame);
    subtitleLabel->setFixedHeight(20);
    subtitleLabel->setAlignment(Qt::AlignCenter);
    subtitleLabel->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    QPalette labelPalette = subtitleLabel->palette();
    labelPalette.setColor(subtitleLabel->backgroundRole(), base.darker(115));
    subtitleLabel->setPalette(labelPalette);
    subtitleLabel->setAutoFillBackground(true);
    subtitleLabel->setText(title);
    inner->addWidget(subtitleLabel);
    inner->addWidget(keypadWidget);
}

void KeypadPopup::setSubtitleLabel(const QString& text)
{
    subtitleLabel->setText(text);
}

void KeypadPopup::locatePopup()
{
    const QRect screen = QGuiApplication::primaryScreen()->virtualGeometry();
    QPoint position = target->mapToGlobal(QPoint(0, target->height()));
    if (position.y() + sizeHint().height() > screen.height())
        position.setY(position.y() - sizeHint().height() - target->height());
    if (position.x() + sizeHint().width() >= screen.width() - 9)
        position.setX(screen.width() - 10 - sizeHint().width());
    move(position);
}

bool KeypadPopup::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != target || event->type() != QEvent::FocusOut)
        return false;
    if (!isVisible() || !refocusPending)
        return false;
    refocusPending = false;
    target->activateWindow();
    target->setFocus(Qt::OtherFocusReason);
    return true;
}

void KeypadPopup::slotOkButton()
{
    Q_EMIT signalOk();
}

void KeypadPopup::slotCancelButton()
{
    Q_EMIT signalCancel();
}

bool KeypadPopup::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        const QPoint global = mapToGlobal(test::positionOf(mouse).toPoint());
        QWidget* under = QApplication::widgetAt(global);
        if (under && (under == target || target->isAncestorOf(under))) {
            QMouseEvent passed(mouse.type(), under->mapFromGlobal(global), global, mouse.button(),
                               mouse.buttons(), mouse.modifiers());
            QCoreApplication::sendEvent(under, &passed);
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QWidget::event(event);
}

void KeypadPopup::keyPressEvent(QKeyEvent* event)
{
    QCoreApplication::sendEvent(target, event);
}

void KeypadPopup::showEvent(QShowEvent*)
{
    refocusPending = true;
}

KeypadLineEdit::KeypadLineEdit(QWidget* parent, ui::keyboard::KeyboardType type)
    : LineEdit(parent)
    , keyboardType(type)
{
}

KeypadLineEdit::~KeypadLineEdit()
{
    blockSignals(true);
    if (popup)
        popup->hide();
}

void KeypadLineEdit::setMaxLength(int length)
{
    const int start = selectionStart();
    const int selected = selectedText().length();
    LineEdit::setMaxLength(length);
    if (selected > 0 && start <= text().length()) // else Qt complains
        setSelection(start, selected);
}

KeypadPopup* KeypadLineEdit::keypad() const
{
    return popup;
}

void KeypadLineEdit::showKeypad()
{
    if (!popup) {
        popup = new KeypadPopup(this, QString(), keyboardType, -1);
        connect(popup, &KeypadPopup::signalCancel, this, &KeypadLineEdit::onCancelKey);
        connect(popup, &KeypadPopup::signalOk, this, &KeypadLineEdit::onOkKey);
    }
    if (popup->isVisible())
        return;
    QTimer::singleShot(0, this, [this] {
        if (popup->isVisible())
            return; // startKeypad() is emitted once per showing
        popup->locatePopup();
        popup->show();
        Q_EMIT startKeypad();
    });
}

void KeypadLineEdit::hideKeypad()
{
    if (popup && popup->isVisible())
        QTimer::singleShot(0, this, [this] { popup->hide(); });
}

void KeypadLineEdit::onOkKey()
{
    hideKeypad();
    LineEdit::onOkKey();
}

void KeypadLineEdit::onCancelKey()
{
    hideKeypad();
    LineEdit::onCancelKey();
}

void KeypadLineEdit::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::PopupFocusReason) {
        clearFocus();
        return;
    }
    showKeypad();
    LineEdit::focusInEvent(event);
}

void KeypadLineEdit::focusOutEvent(QFocusEvent* event)
{
    LineEdit::focusOutEvent(event);
    hideKeypad();
    if (event->reason() == Qt::PopupFocusReason && QApplication::activePopupWidget()
        && QApplication::activePopupWidget()->parent() == this)
        Q_EMIT editingFinished();
}

} // namespace test::plain
