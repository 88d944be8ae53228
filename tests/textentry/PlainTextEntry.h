#pragma once

#include <ui/keyboard/IKeypad.h>

#include <QLineEdit>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/**
 * The text fields of the library a second time, written down step by step as they are documented
 * and with none of the library's precautions, to compare the library with.
 */
namespace test::plain {

class LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget* parent = nullptr);

Q_SIGNALS:
    void signalCancelKey();
    void signalOkKey();
    void signalClicked();
    void resultValidated(bool valid);
    void valueChanged();

protected Q_SLOTS:
    virtual void textEditedSlot(const QString& text);
    void onOkKey();
    void onCancelKey();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString savedText;
};

class KeypadPopup : public QWidget
{
    Q_OBJECT

public:
    KeypadPopup(QWidget* parent, const QString& title, ui::keyboard::KeyboardType type, int);

    void setSubtitleLabel(const QString& text);
    void locatePopup();
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void signalOk();
    void signalCancel();

protected Q_SLOTS:
    void slotOkButton();
    void slotCancelButton();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent*) override { }
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent*) override { }

private:
    ui::keyboard::IKeypad* keypadWidget;
    QLabel* subtitleLabel;
    QWidget* target;
    bool refocusPending = true;
};

class KeypadLineEdit : public LineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    KeypadLineEdit(QWidget* parent, ui::keyboard::KeyboardType type);
    ~KeypadLineEdit() override;

    virtual void setMaxLength(int length);
    KeypadPopup* keypad() const;
    void showKeypad();
    void hideKeypad();

Q_SIGNALS:
    void startKeypad();

protected Q_SLOTS:
    void onOkKey();
    void onCancelKey();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    ui::keyboard::KeyboardType keyboardType;
    KeypadPopup* popup = nullptr;
};

} // namespace test::plain
